// CAT034 service messages as CAT002 messages, for consumers that only read
// the older category.
#include "kovrel/convert.h"
#include "kovrel/core.h"

namespace {

constexpr uint32_t kNorthMarker = 1;
constexpr uint32_t kSectorCrossing = 2;

}  // namespace

extern "C" {

KOVREL_API AstRecord002 ast_datarecord_convert_034_002(const AstRecord034 *in) {
    AstRecord002 out{};
    if (!in || in->valid != 1) return out;
    out.valid = 1;
    if (in->i000.valid == 1) {
        // Both categories number these two messages alike; CAT002 has no
        // geographical filtering or jamming strobe message.
        if (in->i000.value == kNorthMarker || in->i000.value == kSectorCrossing)
            out.i000 = in->i000;
        else
            ast_log(AST_LOG_WARNING, "Unsupported I034/000 message type %u detected.", in->i000.value);
    }
    if (in->i010.valid == 1) out.i010 = in->i010;
    if (in->i020.valid == 1) {
        // An azimuth outside one turn tells the encoder to write the raw
        // sector number as it came.
        out.i020.valid = 1;
        out.i020.raw = in->i020.raw;
        out.i020.azimuth = -1.0;
    }
    if (in->i030.valid == 1) {
        out.i030.valid = 1;
        out.i030.raw = in->i030.raw;
    }
    return out;
}

}  // extern "C"
