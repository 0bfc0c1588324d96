// Register 2,0: aircraft identification.
#include "items/bds_internal.h"
#include "kovrel/bds.h"

extern "C" {

KOVREL_API AstBds20 ast_bds_20_decode(const AstDataItem *reg) {
    AstBds20 r{};
    const uint8_t *octets = kovrel::bds_octets(reg, 0x20);
    // The register repeats its own code in the first MB octet.
    if (!octets || octets[0] != 0x20) return r;
    kovrel::bds_chars(kovrel::MbBits(octets), r.chars);
    r.valid = 1;
    return r;
}

KOVREL_API void ast_bds_20_get_detail_html(char *buffer, size_t size, const AstDataItem *reg) {
    kovrel::BdsTable t(buffer, size);
    const AstBds20 r = ast_bds_20_decode(reg);
    if (r.valid != 1) return;
    t.begin(false);
    t.char_rows(r.chars);
    t.end();
}

}  // extern "C"
