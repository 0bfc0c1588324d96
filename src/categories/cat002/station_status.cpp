// ASR-10SS station status (items 2901 and 2902): up to sixteen FX-extended
// octets of 2-bit states and single flags on the station's subsystems. The
// two sensor generations send the same layout; only the title of their
// detail view tells them apart. The layout, one line per field: octet,
// highest bit, width in bits, member.
#include <cctype>
#include <cstddef>
#include <cstdio>
#include <cstring>

#include "categories/cat002/item_fields.h"
#include "items/item_ex.h"
#include "items/item_support.h"
#include "kovrel/cat002.h"

#define KOVREL_002_STATUS_FIELDS(X) \
    X(1, 8, 2, psr_a_state) \
    X(1, 6, 2, psr_a_tx) \
    X(1, 4, 2, psr_a_rx) \
    X(2, 8, 2, psr_b_state) \
    X(2, 6, 2, psr_b_tx) \
    X(2, 4, 2, psr_b_rx) \
    X(3, 8, 5, psr_mode) \
    X(4, 8, 2, psr_proc) \
    X(4, 6, 2, psr_wx) \
    X(4, 4, 2, psr_mti) \
    X(5, 8, 1, alm_azimuth) \
    X(5, 7, 1, alm_north) \
    X(5, 6, 1, alm_drive) \
    X(5, 5, 1, alm_waveguide) \
    X(5, 4, 1, alm_rf_power) \
    X(5, 3, 1, alm_cooling) \
    X(5, 2, 1, alm_supply) \
    X(6, 8, 2, mssr_a_state) \
    X(6, 6, 2, mssr_a_tx) \
    X(6, 4, 2, mssr_a_rx) \
    X(7, 8, 2, mssr_b_state) \
    X(7, 6, 2, mssr_b_tx) \
    X(7, 4, 2, mssr_b_rx) \
    X(8, 8, 2, mssr_proc) \
    X(8, 6, 2, mssr_modes) \
    X(8, 4, 2, mssr_monitor) \
    X(9, 8, 2, rdp_a) \
    X(9, 6, 2, rdp_b) \
    X(9, 4, 2, comms) \
    X(10, 8, 2, lan_a) \
    X(10, 6, 2, lan_b) \
    X(11, 8, 2, ups) \
    X(11, 6, 1, mains_fail) \
    X(11, 5, 1, generator_on) \
    X(11, 4, 2, environment) \
    X(12, 8, 2, cms) \
    X(12, 6, 1, local_control) \
    X(12, 5, 1, maintenance) \
    X(12, 4, 1, test_target) \
    X(12, 3, 1, blanking) \
    X(12, 2, 1, fault_reset) \
    X(13, 8, 2, time_source) \
    X(13, 6, 1, time_sync_lost) \
    X(13, 5, 2, clock) \
    X(14, 8, 1, rotation_stopped) \
    X(14, 7, 2, line_a) \
    X(14, 5, 2, line_b) \
    X(14, 3, 2, line_c) \
    X(15, 8, 2, aux_1) \
    X(15, 6, 2, aux_2) \
    X(15, 4, 2, aux_3) \
    X(16, 8, 2, aux_4) \
    X(16, 6, 2, aux_5) \
    X(16, 4, 2, aux_6)

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;
using T = AstItem002_901;

constexpr uint64_t kMaxOctets = 16;

struct StatusField {
    uint8_t octet;  // 1..16
    uint8_t high;   // highest bit, 8..2
    uint8_t width;  // 1 or more bits
    uint32_t offset;
    const char *name;
};

constexpr StatusField kFields[] = {
#define KOVREL_STATUS_ROW(OCTET, HIGH, WIDTH, NAME) {OCTET, HIGH, WIDTH, static_cast<uint32_t>(offsetof(T, NAME)), #NAME},
    KOVREL_002_STATUS_FIELDS(KOVREL_STATUS_ROW)
#undef KOVREL_STATUS_ROW
};

// Flags are u8 members, multi-bit fields u32.
void store(T *out, const StatusField &f, uint32_t value) {
    unsigned char *at = reinterpret_cast<unsigned char *>(out) + f.offset;
    if (f.width == 1) {
        const uint8_t v = static_cast<uint8_t>(value);
        std::memcpy(at, &v, sizeof v);
    } else {
        std::memcpy(at, &value, sizeof value);
    }
}

uint32_t field_value(const uint8_t *octets, const StatusField &f) {
    const uint8_t o = octets[f.octet - 1];
    const unsigned shift = f.high - f.width;  // bit numbers run 8 (MSB) to 1
    return (o >> shift) & ((1u << f.width) - 1u);
}

void decode(T *out, const AstDataItem *item, AstItemId id) {
    *out = T{};
    if (!item || item->valid != 1 || !item->data || item->id != id) return;
    if (item->length == 0 || item->length > kMaxOctets) return;
    for (const StatusField &f : kFields)
        if (f.octet <= item->length) store(out, f, field_value(item->data, f));
    out->length = static_cast<uint32_t>(item->length);
    out->valid = 1;
}

// The first field of a channel octet: 1 when the channel is on line.
bool on_line(const AstDataItem *item, unsigned octet) { return item->length >= octet && (item->data[octet - 1] >> 6) == 1; }

void summary(char *buffer, size_t size, const AstDataItem *item, AstItemId id) {
    TextWriter w(buffer, size);
    T d;
    decode(&d, item, id);
    if (d.valid != 1) return;
    char text[32] = "";
    TextWriter t(text, sizeof text);
    if (on_line(item, 1)) t.append(" PSR_A");
    if (on_line(item, 2)) t.append(" PSR_B");
    if (on_line(item, 6)) t.append(" MSSR_A");
    if (on_line(item, 7)) t.append(" MSSR_B");
    w.append(text[0] == ' ' ? text + 1 : "UNKNOWN");
}

void detail(char *buffer, size_t size, const AstDataItem *item, AstItemId id, const char *title) {
    TextWriter w(buffer, size);
    T d;
    decode(&d, item, id);
    if (d.valid != 1) return;
    items::DetailTable t(w);
    t.title(title);
    t.header("Octet", "Bit", "Item", "Value");
    for (const StatusField &f : kFields) {
        if (f.octet > d.length) break;
        char octet[8], bits[16], name[24], value[12];
        std::snprintf(octet, sizeof octet, "%u", static_cast<unsigned>(f.octet));
        if (f.width == 1)
            std::snprintf(bits, sizeof bits, "Bit[%u]", static_cast<unsigned>(f.high));
        else
            std::snprintf(bits, sizeof bits, "Bit[%u-%u]", static_cast<unsigned>(f.high),
                          static_cast<unsigned>(f.high - f.width + 1));
        size_t n = 0;
        for (; f.name[n] && n + 1 < sizeof name; ++n)
            name[n] = static_cast<char>(std::toupper(static_cast<unsigned char>(f.name[n])));
        name[n] = '\0';
        std::snprintf(value, sizeof value, "%u", field_value(item->data, f));
        t.row(octet, bits, name, value);
    }
    t.end();
}

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_002_901_init(AstItem002_901 *out) {
    if (out) *out = AstItem002_901{};
}

KOVREL_API void ast_dataitem_002_901_decode(AstItem002_901 *out, const AstDataItem *item) {
    if (out) decode(out, item, 2901);
}

KOVREL_API void ast_dataitem_002_901_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    summary(buffer, size, item, 2901);
}

KOVREL_API void ast_dataitem_002_901_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    detail(buffer, size, item, 2901, "ASR-10SS");
}

KOVREL_API void ast_dataitem_002_902_init(AstItem002_902 *out) {
    if (out) *out = AstItem002_902{};
}

KOVREL_API void ast_dataitem_002_902_decode(AstItem002_902 *out, const AstDataItem *item) {
    if (out) decode(out, item, 2902);
}

KOVREL_API void ast_dataitem_002_902_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    summary(buffer, size, item, 2902);
}

KOVREL_API void ast_dataitem_002_902_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    detail(buffer, size, item, 2902, "ASR-10SS Mk2");
}

}  // extern "C"

KOVREL_DECODE_EX(002_901, AstItem002_901, ast_dataitem_002_901_decode)
KOVREL_DECODE_EX(002_902, AstItem002_902, ast_dataitem_002_902_decode)

namespace kovrel::fields {

namespace {

// One row per field, named by its member; flags as flags, states with their width.
template <uint8_t Width>
constexpr FieldRow status_row(const char *name, Member m) {
    if constexpr (Width == 1)
        return flag(name, m);
    else
        return integer(name, m).width(Width);
}

constexpr FieldRow kRows[] = {
#define KOVREL_STATUS_FIELD(OCTET, HIGH, WIDTH, NAME) status_row<WIDTH>(#NAME, KOVREL_MEMBER(T, NAME)),
    KOVREL_002_STATUS_FIELDS(KOVREL_STATUS_FIELD)
#undef KOVREL_STATUS_FIELD
};

}  // namespace

constinit const FieldDesc k002_901 = describe<T, init_valid<T, ast_dataitem_002_901_init>>(kRows);

}  // namespace kovrel::fields
