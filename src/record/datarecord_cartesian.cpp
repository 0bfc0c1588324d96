// The Cartesian position accessor. AstDataRecordFuncs has a fixed layout
// and no slot for it, so the categories that carry a Cartesian target
// position are listed in a table of their own, indexed by category.
#include <array>

#include "kovrel/cat001.h"
#include "kovrel/cat010.h"
#include "kovrel/cat020.h"
#include "kovrel/cat048.h"
#include "kovrel/cat062.h"
#include "kovrel/datarecord.h"
#include "record/record_access.h"

namespace {

using CartesianFn = void (*)(AstRecordCartesian *, const AstDataRecord *);

constexpr std::array<CartesianFn, 256> kCartesian = [] {
    std::array<CartesianFn, 256> t{};
    t[1] = ast_datarecord_001_get_cartesiancoord;
    t[10] = ast_datarecord_010_get_cartesiancoord;
    t[20] = ast_datarecord_020_get_cartesiancoord;
    t[48] = ast_datarecord_048_get_cartesiancoord;
    t[62] = ast_datarecord_062_get_cartesiancoord;
    return t;
}();

}  // namespace

extern "C" KOVREL_API void ast_datarecord_get_cartesiancoord(AstRecordCartesian *out, const AstDataRecord *record) {
    if (!out) return;
    kovrel::access::clear(out);
    if (!record || record->valid != 1 || record->category >= kCartesian.size()) return;
    if (const CartesianFn fn = kCartesian[record->category]) fn(out, record);
}
