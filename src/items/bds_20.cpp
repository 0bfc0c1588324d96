// Register 2,0: aircraft identification.
#include "items/bds_support.h"
#include "items/item_fields.h"
#include "kovrel/bds.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

}  // namespace

extern "C" {

KOVREL_API AstBds20 ast_bds_20_decode(const AstDataItem *reg) {
    AstBds20 r{};
    const uint8_t *octets = items::bds_octets(reg, 0x20);
    // The register repeats its own code in the first MB octet.
    if (!octets || octets[0] != 0x20) return r;
    items::chars_decode(r.chars, octets + 1);
    r.valid = 1;
    return r;
}

KOVREL_API void ast_bds_20_get_detail_html(char *buffer, size_t size, const AstDataItem *reg) {
    items::describe(buffer, size, reg, ast_bds_20_decode, [](TextWriter &w, const auto &r) {
        items::DetailTable t(w);
        t.header("Item", "Value");
        t.char_rows(r.chars);
        t.end();
    });
}

}  // extern "C"

namespace kovrel::fields {

namespace {
using T = AstBds20;
constexpr FieldRow kRows[] = {
    text("acid", KOVREL_MEMBER(T, chars)),
};
}  // namespace

constinit const FieldDesc kBds20 = describe<T>(kRows);

}  // namespace kovrel::fields
