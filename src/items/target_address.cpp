// Mode S 24-bit target address, with the country of its address block in
// the detail view when the application lends a lookup.
#include "core/state.h"
#include "items/item_fields.h"
#include "items/item_support.h"
#include "kovrel/codec.h"
#include "kovrel/items_mode.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr uint64_t kLength = 3;

// The paragraphs the application's callbacks make possible: the country the
// address belongs to, and its flag once the country is known.
void country_paragraphs(TextWriter &w, uint32_t address, const AstDataItem *item) {
    if (!kovrel::g_icao_addr_get_country) return;
    AstCountryInfo country{};
    kovrel::g_icao_addr_get_country(&country, address, item);
    // The application's texts are read within their arrays only.
    country.name[sizeof country.name - 1] = '\0';
    country.code[sizeof country.code - 1] = '\0';
    if (country.valid != 1) {
        ast_html_gen_para(w.end(), w.end_size(),
                          "This ICAO 24-bit address %.6X is allocated to unknown country/region.", address);
        w.resync();
        return;
    }
    ast_html_gen_para(w.end(), w.end_size(), "This ICAO 24-bit address %.6X is allocated to %s (%s).", address,
                      country.name, country.code);
    w.resync();
    if (!kovrel::g_get_national_flag) return;
    const char *flag = kovrel::g_get_national_flag(country.code);
    if (!flag) return;
    ast_html_gen_para(w.end(), w.end_size(), "<img src=\"%s\" alt=\"%s\"/>", flag, country.code);
    w.resync();
}

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_target_address_init(AstTargetAddress *out) {
    if (out) *out = AstTargetAddress{};
}

KOVREL_API void ast_dataitem_target_address_decode(AstTargetAddress *out, const AstDataItem *item) {
    if (!out) return;
    *out = AstTargetAddress{};
    if (!items::span_ok(item, kLength)) return;
    ast_unsigned_decode(&out->address, item->data, 3);
    out->valid = 1;
}

KOVREL_API void ast_dataitem_target_address_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                   const AstTargetAddress *in) {
    if (!items::encode_begin(out, buffer, size, kLength)) return;
    // An all-zero address is never written: receivers take it as "no address".
    if (!in || in->valid != 1 || in->address == 0) return;
    ast_unsigned_encode(buffer, 3, in->address);
    items::encode_done(out, buffer, kLength);
}

KOVREL_API void ast_dataitem_target_address_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_target_address_decode,
                    [](TextWriter &w, const auto &a) {
                        w.append("ADDR:");
                        w.append_hex(a.address, 6);
                    });
}

KOVREL_API void ast_dataitem_target_address_get_detail_html(char *buffer, size_t size,
                                                            const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_target_address_decode, [item](TextWriter &w, const auto &a) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0-23]", "TARGET_ADDRESS (HEX)", "%.6X", a.address);
        t.rowf("Bit[0-23]", "TARGET_ADDRESS (OCT)", "%.8o", a.address);
        t.rowf("Bit[0-23]", "TARGET_ADDRESS (DEC)", "%u", a.address);
        t.end();
        country_paragraphs(w, a.address, item);
    });
}

}  // extern "C"

namespace kovrel::fields {

namespace {
using T = AstTargetAddress;
constexpr FieldRow kAddressRows[] = {
    integer("aa", KOVREL_MEMBER(T, address)).width(24).shown(AST_FIELD_FORMAT_HEX6),
};
}  // namespace

constinit const FieldDesc kTargetAddress = describe<T, init_valid<T, ast_dataitem_target_address_init>>(kAddressRows);

}  // namespace kovrel::fields
