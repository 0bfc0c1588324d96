// I062/290 System Track Update Ages and I062/295 Track Data Age: how long
// ago each kind of sensor (290) and each kind of data (295) last updated
// the track, in quarters of a second. Every age is one octet but the ADS-C
// age of I062/290, which takes two.
#include <cstddef>

#include "categories/cat062/item_fields.h"
#include "categories/cat062/support.h"
#include "items/item_ex.h"
#include "kovrel/cat062.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;
using namespace kovrel::cat062;

constexpr double kAgeLsb = 0.25;  // s
constexpr uint32_t kAdsAge = 5;   // the two-octet subfield of I062/290

// Field names of the ages, subfield 1 first.
constexpr const char *k290Names[10] = {"trk", "psr", "ssr", "mds", "ads", "es", "vdl", "uat", "lop", "mlt"};
constexpr const char *k295Names[31] = {"mfl", "md1", "md2", "mda", "md4", "md5", "mhg", "ias", "tas", "sal", "fss",
                                       "tid", "com", "sab", "acs", "bvr", "gvr", "ran", "tar", "tan", "gsp", "vun",
                                       "met", "emc", "pos", "gal", "pun", "mb",  "iar", "mac", "bps"};

uint64_t age_octets(AstItemId id, uint32_t number) { return id == 62290 && number == kAdsAge ? 2 : 1; }

template <typename T, AstItemId Id>
bool decode_age(T &o, uint32_t number, const AstSubfield &s) {
    constexpr size_t kCount = sizeof o.ages / sizeof o.ages[0];
    if (number == 0 || number > kCount) return false;
    const uint64_t n = age_octets(Id, number);
    if (!span_is(s, n)) return false;
    AstItem062Age &age = o.ages[number - 1];
    age.raw = octets_u(s.data, static_cast<int>(n));
    age.age = age.raw * kAgeLsb;
    age.present = 1;
    return true;
}

template <typename T>
void write_age_summary(TextWriter &w, const T &o, uint32_t number) {
    w.appendf("AGE:%.2f LSB:S", o.ages[number - 1].age);
}

template <typename T, AstItemId Id>
void write_age_detail(TextWriter &w, const T &o, uint32_t number) {
    items::DetailTable t(w);
    t.header("Bit", "Item", "Value");
    t.rowf(age_octets(Id, number) == 2 ? "Bit[0-15]" : "Bit[0-7]", "AGE LSB=S", "%.2f", o.ages[number - 1].age);
    t.end();
}

}  // namespace

namespace kovrel::cat062 {

void summary_290(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    subfield_text<AstItem062_290, ast_dataitem_062_290_init, decode_age<AstItem062_290, 62290>,
                  write_age_summary<AstItem062_290>>(62290, buffer, size, span, subfield_id);
}

void detail_290(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    subfield_text<AstItem062_290, ast_dataitem_062_290_init, decode_age<AstItem062_290, 62290>,
                  write_age_detail<AstItem062_290, 62290>>(62290, buffer, size, span, subfield_id);
}

void summary_295(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    subfield_text<AstItem062_295, ast_dataitem_062_295_init, decode_age<AstItem062_295, 62295>,
                  write_age_summary<AstItem062_295>>(62295, buffer, size, span, subfield_id);
}

void detail_295(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    subfield_text<AstItem062_295, ast_dataitem_062_295_init, decode_age<AstItem062_295, 62295>,
                  write_age_detail<AstItem062_295, 62295>>(62295, buffer, size, span, subfield_id);
}

}  // namespace kovrel::cat062

extern "C" {

KOVREL_API void ast_dataitem_062_290_init(AstItem062_290 *out) {
    if (out) *out = AstItem062_290{};
}

KOVREL_API void ast_dataitem_062_290_decode(AstItem062_290 *out, const AstDataItem *item) {
    decode_compound<AstItem062_290, ast_dataitem_062_290_init, decode_age<AstItem062_290, 62290>>(out, item, 62290);
}

KOVREL_API void ast_dataitem_062_295_init(AstItem062_295 *out) {
    if (out) *out = AstItem062_295{};
}

KOVREL_API void ast_dataitem_062_295_decode(AstItem062_295 *out, const AstDataItem *item) {
    decode_compound<AstItem062_295, ast_dataitem_062_295_init, decode_age<AstItem062_295, 62295>>(out, item, 62295);
}

}  // extern "C"

KOVREL_DECODE_EX(062_290, AstItem062_290, ast_dataitem_062_290_decode)
KOVREL_DECODE_EX(062_295, AstItem062_295, ast_dataitem_062_295_decode)

namespace kovrel::fields {

namespace {

// One row per age: its value in seconds from the raw count, shown when the
// subfield is there.
template <typename T, size_t N>
struct AgeRows {
    FieldRow rows[N];
};

template <typename T, size_t N>
constexpr AgeRows<T, N> age_rows(const char *const (&names)[N], AstItemId id) {
    AgeRows<T, N> r{};
    for (size_t i = 0; i < N; ++i) {
        const auto at = static_cast<uint32_t>(offsetof(T, ages) + i * sizeof(AstItem062Age));
        const Member raw{Store::U32, at + static_cast<uint32_t>(offsetof(AstItem062Age, raw)), 4};
        const Member present{Store::U8, at + static_cast<uint32_t>(offsetof(AstItem062Age, present)), 1};
        const uint8_t bits = (id == 62290 && i + 1 == kAdsAge) ? 16 : 8;
        r.rows[i] = scaled(names[i], raw, kAgeLsb, "s").width(bits).when(present);
    }
    return r;
}

constexpr AgeRows<AstItem062_290, 10> k290 = age_rows<AstItem062_290>(k290Names, 62290);
constexpr AgeRows<AstItem062_295, 31> k295 = age_rows<AstItem062_295>(k295Names, 62295);

}  // namespace

constinit const FieldDesc k062_290 =
    describe<AstItem062_290, init_valid<AstItem062_290, ast_dataitem_062_290_init>>(k290.rows);
constinit const FieldDesc k062_295 =
    describe<AstItem062_295, init_valid<AstItem062_295, ast_dataitem_062_295_init>>(k295.rows);

}  // namespace kovrel::fields
