// I048/260 ACAS Resolution Advisory Report: the 56 bits of Mode S register
// BDS 3,0 (ACAS active resolution advisory) as the transponder reported them.
#include "categories/cat048/item_fields.h"
#include "items/item_ex.h"
#include "items/item_fields.h"
#include "items/item_support.h"
#include "kovrel/bds.h"
#include "kovrel/cat048.h"
#include "kovrel/enums.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr AstItemId kId = 48260;
constexpr uint64_t kLength = 7;
constexpr uint32_t kRegister = 0x30;
constexpr uint32_t kThreatModeS = 1;  // a threat Mode S address follows

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_048_260_init(AstItem048_260 *out) {
    if (out) *out = AstItem048_260{};
}

KOVREL_API void ast_dataitem_048_260_decode(AstItem048_260 *out, const AstDataItem *item) {
    ast_dataitem_048_260_init(out);
    if (!out || !items::span_ok(item, kLength) || item->id != kId) return;
    AstDataItem reg;
    ast_bds_decode(&reg, item->data, kLength, kRegister);
    out->bds = ast_bds_30_decode(&reg);
    out->valid = out->bds.valid == 1 ? 1 : 0;
}

KOVREL_API void ast_dataitem_048_260_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_048_260_decode, [](TextWriter &w, const auto &) {
        char code[8];
        w.append("BDS:");
        w.append(ast_bds_type_to_str_simple(code, sizeof code, kRegister));
    });
}

KOVREL_API void ast_dataitem_048_260_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_048_260_decode, [](TextWriter &w, const auto &a) {
        const AstBds30 &r = a.bds;
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[8-21]", "ACTIVE_RESOLUTION_ADVISORIES", "%d", r.ara_present);
        t.rowf("Bit[22-25]", "RESOLUTION_ADVISORY_COMPLEMENTS", "%d", r.rac_present);
        t.rowf("Bit[26]", "RESOLUTION_ADVISORY_TERMINATED", "%d", r.ra_terminated);
        t.rowf("Bit[27]", "MULTIPLE_THREAT_ENCOUNTER", "%d", r.multiple_threat);
        t.row("Bit[28-29]", "THREAT_TYPE", ast_threat_type_to_str(ast_threat_type_from_int(r.threat_type)));
        if (r.threat_type == kThreatModeS)
            t.rowf("Bit[30-53]", "THREAT_MODE_S_ADDRESS", "%02X%02X%02X", r.tid[0], r.tid[1], r.tid[2]);
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(048_260, AstItem048_260, ast_dataitem_048_260_decode)

namespace kovrel::fields {

namespace {

using T = AstItem048_260;

// The register's fields, under "bds".
constexpr FieldRow kRows[] = {
    group("bds", KOVREL_MEMBER(T, bds), kBds30),
};

}  // namespace

constinit const FieldDesc k048_260 = describe<T, init_valid<T, ast_dataitem_048_260_init>>(kRows);

}  // namespace kovrel::fields
