// CAT048 target reports as CAT001 plots and tracks, for consumers that only
// read the older category.
#include "kovrel/convert.h"

namespace {

// CAT048 TYP (0..7) to the CAT001 SSR/PSR field: the Mode S all-call and
// roll-call detections count as SSR, with or without a primary hit.
constexpr uint32_t kSsrPsr[8] = {0, 1, 2, 3, 2, 2, 3, 3};

AstItem001_020 descriptor(const AstItem048_020 &in, bool track) {
    AstItem001_020 out{};
    out.valid = 1;
    out.typ = track ? 1u : 0u;
    out.sim = in.sim;
    out.ssr_psr = kSsrPsr[in.typ & 7u];
    out.ant = in.rdp;  // the same bit: CAT048 names it the processing chain, CAT001 the antenna
    out.spi = in.spi;
    out.rab = in.rab;
    out.tst = in.tst;
    out.me = in.me;
    out.mi = in.mi;
    return out;
}

AstItem001_170 track_status(const AstItem048_170 &in, const AstItem048_020 &descriptor) {
    AstItem001_170 out{};
    out.valid = 1;
    out.con = in.cnf;
    out.rad = (in.rad == 0 || in.rad == 2) ? 1u : 0u;
    out.man = (in.cdm == 1 || in.cdm == 2 || in.mah) ? 1u : 0u;
    out.dou = in.dou;
    out.rdpc = descriptor.valid == 1 ? descriptor.rdp : 1u;
    return out;
}

}  // namespace

extern "C" {

KOVREL_API AstRecord001 ast_datarecord_convert_048_001(const AstRecord048 *in) {
    AstRecord001 out{};
    if (!in || in->valid != 1) return out;
    out.valid = 1;
    if (in->i010.valid == 1) out.i010 = in->i010;
    if (in->i020.valid == 1) out.i020 = descriptor(in->i020, in->i161.valid == 1);
    if (in->i040.valid == 1) {
        // Only the values: the raw fields of the two categories count in
        // different steps.
        out.i040.valid = 1;
        out.i040.rho.value = in->i040.rho;
        out.i040.theta.value = in->i040.theta;
    }
    if (in->i042.valid == 1) {
        out.i042.valid = 1;
        out.i042.x.raw = in->i042.x / 2;  // 1/128 NM to 1/64 NM, toward zero
        out.i042.y.raw = in->i042.y / 2;
    }
    if (in->i070.valid == 1) out.i070 = in->i070;
    if (in->i090.valid == 1) out.i090 = in->i090;
    if (in->i140.valid == 1) {
        out.i141.valid = 1;
        out.i141.raw = in->i140.raw;  // whole; the item's encoder keeps the low 16 bits
    }
    if (in->i161.valid == 1) out.i161 = in->i161;
    if (in->i170.valid == 1) out.i170 = track_status(in->i170, in->i020);
    if (in->i200.valid == 1) out.i200 = in->i200;
    return out;
}

}  // extern "C"
