// Encoders of the CAT020 items laid out as common items whose common
// functions only decode: the Cartesian position (two 24-bit fields at
// 0.5 m), the Cartesian velocity (two 16-bit fields at 0.25 m/s), the
// measured and geometric heights (6.25 ft) and the Mode C code with the
// quality of its pulses. Each writes the raw members its decoder fills.
#include "categories/cat010/surface_support.h"
#include "items/item_ex.h"
#include "kovrel/cat020.h"

namespace {

namespace items = kovrel::items;
using kovrel::surface::fits_signed;

// The reply pulses in the order they stand on the wire, as positions in
// the code's octal digits A4 A2 A1 B4 B2 B1 C4 C2 C1 D4 D2 D1 (0 = A4).
enum Pulse { A4, A2, A1, B4, B2, B1, C4, C2, C1, D4, D2, D1 };
constexpr Pulse kWireOrder[12] = {C1, A1, C2, A2, C4, A4, B1, D1, B2, D2, B4, D4};

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_020_042_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                            const AstPositionCartesian *in) {
    if (!items::encode_begin(out, buffer, size, 6)) return;
    if (!in || in->valid != 1 || !fits_signed(in->x_raw, 24) || !fits_signed(in->y_raw, 24)) return;
    ast_twos_complement_encode(buffer, 3, in->x_raw);
    ast_twos_complement_encode(buffer + 3, 3, in->y_raw);
    items::encode_done(out, buffer, 6);
}

KOVREL_API void ast_dataitem_020_202_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                            const AstVelocityCartesian *in) {
    if (!items::encode_begin(out, buffer, size, 4)) return;
    if (!in || in->valid != 1 || !fits_signed(in->vx_raw, 16) || !fits_signed(in->vy_raw, 16)) return;
    ast_twos_complement_encode(buffer, 2, in->vx_raw);
    ast_twos_complement_encode(buffer + 2, 2, in->vy_raw);
    items::encode_done(out, buffer, 4);
}

KOVREL_API void ast_dataitem_020_110_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstHeight *in) {
    kovrel::surface::height_encode(out, buffer, size, in);
}

KOVREL_API void ast_dataitem_020_105_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstHeight *in) {
    kovrel::surface::height_encode(out, buffer, size, in);
}

KOVREL_API void ast_dataitem_020_100_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                            const AstModeCConfidence *in) {
    if (!items::encode_begin(out, buffer, size, 4)) return;
    if (!in || in->valid != 1 || in->code > 07777u) return;
    const uint8_t q[12] = {in->qa4, in->qa2, in->qa1, in->qb4, in->qb2, in->qb1,
                           in->qc4, in->qc2, in->qc1, in->qd4, in->qd2, in->qd1};
    uint32_t reply = 0, quality = 0;
    for (int i = 0; i < 12; ++i) {
        const int pulse = kWireOrder[i];
        reply |= ((in->code >> (11 - pulse)) & 1u) << (11 - i);
        quality |= (q[pulse] ? 1u : 0u) << (11 - i);
    }
    buffer[0] = static_cast<uint8_t>((in->validated ? 0u : 0x80u) | (in->garbled ? 0x40u : 0u) | (reply >> 8));
    buffer[1] = static_cast<uint8_t>(reply & 0xFFu);
    buffer[2] = static_cast<uint8_t>(quality >> 8);
    buffer[3] = static_cast<uint8_t>(quality & 0xFFu);
    items::encode_done(out, buffer, 4);
}

}  // extern "C"

KOVREL_ENCODE_EX(020_042, AstPositionCartesian, ast_dataitem_020_042_encode)
KOVREL_ENCODE_EX(020_202, AstVelocityCartesian, ast_dataitem_020_202_encode)
KOVREL_ENCODE_EX(020_110, AstHeight, ast_dataitem_020_110_encode)
KOVREL_ENCODE_EX(020_105, AstHeight, ast_dataitem_020_105_encode)
KOVREL_ENCODE_EX(020_100, AstModeCConfidence, ast_dataitem_020_100_encode)
