// Data source identifier: System Area Code (octet 1) and System
// Identification Code (octet 2). The detail view asks the application's
// lookup callbacks who owns the SAC and which systems stand behind the pair.
#include <cstdio>

#include "core/state.h"
#include "items/item_fields.h"
#include "items/item_support.h"
#include "kovrel/items_ident.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr uint64_t kLength = 2;

// Copies a callback text field: the application may leave it unterminated,
// so never read past the field.
template <size_t N>
void field_text(char *dst, size_t size, const char (&field)[N]) {
    std::snprintf(dst, size, "%.*s", static_cast<int>(N), field);
}

// "name [code]" from two callback fields.
template <size_t N, size_t M>
void country_text(char *dst, size_t size, const char (&name)[N], const char (&code)[M]) {
    std::snprintf(dst, size, "%.*s [%.*s]", static_cast<int>(N), name, static_cast<int>(M), code);
}

// A code octet as the "Hex" and "Dec" cells of its table.
struct CodeCells {
    explicit CodeCells(uint32_t code) {
        std::snprintf(hex, sizeof hex, "0x%.2X", static_cast<unsigned>(code));
        std::snprintf(dec, sizeof dec, "%03d", static_cast<int>(code));
    }
    char hex[8];
    char dec[16];
};

void sac_table(items::DetailTable &t, uint32_t sac) {
    const CodeCells code(sac);
    t.title("System Area Code (SAC)");
    t.header("Octet", "Name", "Hex", "Dec", "Region", "Country");

    bool shown = false;
    if (kovrel::g_sac_get_info) {
        AstSacInfo info{};
        kovrel::g_sac_get_info(&info, sac);
        const size_t count = info.count < AST_SAC_INFO_MAX_ENTRIES ? info.count : AST_SAC_INFO_MAX_ENTRIES;
        for (size_t i = 0; i < count; ++i) {
            const AstSacInfoEntry &e = info.entries[i];
            if (e.valid != 1) continue;
            char region[64];
            char country[128];
            field_text(region, sizeof region, e.region);
            country_text(country, sizeof country, e.country_name, e.country_code);
            t.row("Octet[1]", "SAC", code.hex, code.dec, region, country);
            shown = true;
        }
    }
    if (!shown) t.row("Octet[1]", "SAC", code.hex, code.dec, "Unknown Region", "Unknown Country");
    t.end();
}

void sic_table(items::DetailTable &t, uint32_t sac, uint32_t sic) {
    const CodeCells code(sic);
    t.title("System Identification Code (SIC)");
    t.header("Octet", "Name", "Hex", "Dec", "Country", "System", "Type", "Manufacturer", "Model", "Description");

    bool shown = false;
    if (kovrel::g_sacsic_get_sensor) {
        // About 12 KiB, on the stack: the library allocates nothing.
        AstSensorList list{};
        kovrel::g_sacsic_get_sensor(&list, sac, sic);
        const size_t count =
            list.count < AST_SENSOR_LIST_MAX_ENTRIES ? list.count : AST_SENSOR_LIST_MAX_ENTRIES;
        for (size_t i = 0; i < count; ++i) {
            const AstSensorEntry &e = list.entries[i];
            if (e.valid != 1) continue;
            char country[128];
            char system[128];
            char type[64];
            char manufacturer[128];
            char model[128];
            char description[256];
            country_text(country, sizeof country, e.country_name, e.country_code);
            field_text(system, sizeof system, e.system);
            field_text(type, sizeof type, e.type);
            field_text(manufacturer, sizeof manufacturer, e.manufacturer);
            field_text(model, sizeof model, e.model);
            field_text(description, sizeof description, e.description);
            t.row("Octet[2]", "SIC", code.hex, code.dec, country, system, type, manufacturer, model, description);
            shown = true;
        }
    }
    if (!shown)
        t.row("Octet[2]", "SIC", code.hex, code.dec, "Unknown", "Unknown", "Unknown", "Unknown", "Unknown",
              "Unknown System");
    t.end();
}

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_data_source_identifier_init(AstDataSourceIdentifier *out) {
    if (out) *out = AstDataSourceIdentifier{0, 0, 0};
}

KOVREL_API AstDataSourceIdentifier ast_dataitem_data_source_identifier_decode(const AstDataItem *item) {
    AstDataSourceIdentifier out;
    ast_dataitem_data_source_identifier_init(&out);
    if (!items::span_ok(item, kLength)) return out;
    out.sac = item->data[0];
    out.sic = item->data[1];
    out.valid = 1;
    return out;
}

KOVREL_API void ast_dataitem_data_source_identifier_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                           const AstDataSourceIdentifier *in) {
    if (!items::encode_begin(out, buffer, size, kLength)) return;
    if (!in || in->valid != 1 || in->sac > 0xFF || in->sic > 0xFF) return;
    buffer[0] = static_cast<uint8_t>(in->sac);
    buffer[1] = static_cast<uint8_t>(in->sic);
    items::encode_done(out, buffer, kLength);
}

KOVREL_API void ast_dataitem_data_source_identifier_get_summary(char *buffer, size_t size,
                                                                const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_data_source_identifier_decode, [](TextWriter &w, const auto &dsi) {
        w.append("SAC:");
        w.append_int(static_cast<int>(dsi.sac), 3);
        w.append(" SIC:");
        w.append_int(static_cast<int>(dsi.sic), 3);
    });
}

KOVREL_API void ast_dataitem_data_source_identifier_get_detail_html(char *buffer, size_t size,
                                                                    const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_data_source_identifier_decode, [](TextWriter &w, const auto &dsi) {
        items::DetailTable t(w);
        sac_table(t, dsi.sac);
        sic_table(t, dsi.sac, dsi.sic);
    });
}

}  // extern "C"

namespace kovrel::fields {

namespace {
using T = AstDataSourceIdentifier;
constexpr FieldRow kSourceRows[] = {
    integer("sac", KOVREL_MEMBER(T, sac)).width(8),
    integer("sic", KOVREL_MEMBER(T, sic)).width(8),
};
}  // namespace

constinit const FieldDesc kDataSourceIdentifier =
    describe<T, init_valid<T, ast_dataitem_data_source_identifier_init>>(kSourceRows);

}  // namespace kovrel::fields
