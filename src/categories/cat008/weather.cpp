// CAT008's own items: the vector qualifier and contour identifier, the
// polar, Cartesian and start/end weather vectors, the contour points, the
// processing and station status, and the picture's item count. Each is one
// packed layout (items/packed.h) that gives its decoder,
// encoder, texts and named fields.
#include <cmath>
#include <iterator>

#include "categories/cat008/item_fields.h"
#include "items/packed.h"
#include "kovrel/cat008.h"

namespace {

using namespace kovrel::packed;

constexpr double kLsbRange = 1.0 / 64.0;            // NM at a scaling factor of 0
constexpr double kLsbAzimuth = 360.0 / 65536.0;     // degrees

const char *org_name(uint32_t v) {
    static constexpr const char *kNames[] = {"LOCAL", "SYSTEM"};
    return v < 2 ? kNames[v] : nullptr;
}

const char *fstlst_name(uint32_t v) {
    static constexpr const char *kNames[] = {"INTERMEDIATE", "LAST", "FIRST", "ONLY"};
    return v < 4 ? kNames[v] : nullptr;
}

using T020 = AstItem008_020;
constexpr Element k020First[] = {
    coded("org", KOVREL_MEMBER(T020, org), 1, org_name),
    num("i", KOVREL_MEMBER(T020, i), 3),
    num("s", KOVREL_MEMBER(T020, s), 3),
    spare(1),  // FX
};
constexpr Element k020Second[] = {
    spare(5),
    when(bit("tst", KOVREL_MEMBER(T020, tst)), KOVREL_MEMBER(T020, ext)),
    when(bit("er", KOVREL_MEMBER(T020, er)), KOVREL_MEMBER(T020, ext)),
    spare(1),  // FX
};
constexpr Part k020Parts[] = {part(k020First), part(k020Second, KOVREL_MEMBER(T020, ext))};
constexpr Extended k020{k020Parts, std::size(k020Parts)};

// The vector entries hold raw values only; their fields scale them.
using Polar = AstItem008Polar;
constexpr Element kPolar[] = {
    quantity("str", KOVREL_MEMBER(Polar, str), {}, {}, 8, kLsbRange, "NM"),
    quantity("endr", KOVREL_MEMBER(Polar, endr), {}, {}, 8, kLsbRange, "NM"),
    quantity("az", KOVREL_MEMBER(Polar, az), {}, {}, 16, kLsbAzimuth, "deg"),
};
using T034 = AstItem008_034;
constexpr Repeated k034{kPolar, std::size(kPolar), 4, KOVREL_MEMBER(T034, rep), offsetof(T034, vectors),
                        sizeof(Polar), AST_ITEM008_VECTOR_MAX};

using Cart = AstItem008Cartesian;
constexpr Element kCartesian[] = {
    quantity("x", KOVREL_MEMBER(Cart, x), {}, {}, 8, kLsbRange, "NM"),
    quantity("y", KOVREL_MEMBER(Cart, y), {}, {}, 8, kLsbRange, "NM"),
    quantity("length", KOVREL_MEMBER(Cart, length), {}, {}, 8, kLsbRange, "NM"),
};
using T036 = AstItem008_036;
constexpr Repeated k036{kCartesian, std::size(kCartesian), 3, KOVREL_MEMBER(T036, rep), offsetof(T036, vectors),
                        sizeof(Cart), AST_ITEM008_VECTOR_MAX};

using Seg = AstItem008Segment;
constexpr Element kSegment[] = {
    quantity("x1", KOVREL_MEMBER(Seg, x1), {}, {}, 8, kLsbRange, "NM"),
    quantity("y1", KOVREL_MEMBER(Seg, y1), {}, {}, 8, kLsbRange, "NM"),
    quantity("x2", KOVREL_MEMBER(Seg, x2), {}, {}, 8, kLsbRange, "NM"),
    quantity("y2", KOVREL_MEMBER(Seg, y2), {}, {}, 8, kLsbRange, "NM"),
};
using T038 = AstItem008_038;
constexpr Repeated k038{kSegment, std::size(kSegment), 4, KOVREL_MEMBER(T038, rep), offsetof(T038, vectors),
                        sizeof(Seg), AST_ITEM008_VECTOR_MAX};

using T040 = AstItem008_040;
constexpr Element k040[] = {
    coded("org", KOVREL_MEMBER(T040, org), 1, org_name),
    num("i", KOVREL_MEMBER(T040, i), 3),
    spare(2),
    coded("fstlst", KOVREL_MEMBER(T040, fstlst), 2, fstlst_name),
    num("csn", KOVREL_MEMBER(T040, csn), 8),
};

using Point = AstItem008Point;
constexpr Element kPoint[] = {
    quantity("x1", KOVREL_MEMBER(Point, x1), {}, {}, 8, kLsbRange, "NM"),
    quantity("y1", KOVREL_MEMBER(Point, y1), {}, {}, 8, kLsbRange, "NM"),
};
using T050 = AstItem008_050;
constexpr Repeated k050{kPoint, std::size(kPoint), 2, KOVREL_MEMBER(T050, rep), offsetof(T050, points),
                        sizeof(Point), AST_ITEM008_VECTOR_MAX};

// Three octets, the FX bit last; the category defines nothing after them.
using T100 = AstItem008_100;
constexpr Element k100[] = {
    num("f", KOVREL_MEMBER(T100, f), 5),
    num("r", KOVREL_MEMBER(T100, r), 3),
    num("q", KOVREL_MEMBER(T100, q), 15),
    spare(1),  // FX
};
constexpr Part k100Parts[] = {part(k100)};
constexpr Extended k100x{k100Parts, 1};

using T110 = AstItem008_110;
constexpr Chain k110{KOVREL_MEMBER(T110, count), offsetof(T110, status), AST_ITEM008_110_MAX};
constexpr char kStatusTag[] = "STATUS";

using T120 = AstItem008_120;
constexpr Element k120[] = {num("total", KOVREL_MEMBER(T120, total), 16)};

void polar_lsb(T034 *out) {
    out->range_lsb = kLsbRange;
    out->az_lsb = kLsbAzimuth;
}
template <typename T>
void range_lsb(T *out) {
    out->lsb = kLsbRange;
}

using I020 = ExtendedItem<T020, k020, 8020>;
using I034 = RepeatedItem<T034, k034, 8034, polar_lsb>;
using I036 = RepeatedItem<T036, k036, 8036, range_lsb<T036>>;
using I038 = RepeatedItem<T038, k038, 8038, range_lsb<T038>>;
using I040 = FixedItem<T040, k040, 8040>;
using I050 = RepeatedItem<T050, k050, 8050, range_lsb<T050>>;
using I100 = ExtendedItem<T100, k100x, 8100>;
using I110 = ChainItem<T110, k110, 8110, kStatusTag>;
using I120 = FixedItem<T120, k120, 8120>;

}  // namespace

KOVREL_PACKED_ITEM(008_020, AstItem008_020, I020)
KOVREL_PACKED_ITEM(008_034, AstItem008_034, I034)
KOVREL_PACKED_ITEM(008_036, AstItem008_036, I036)
KOVREL_PACKED_ITEM(008_038, AstItem008_038, I038)
KOVREL_PACKED_ITEM(008_040, AstItem008_040, I040)
KOVREL_PACKED_ITEM(008_050, AstItem008_050, I050)
KOVREL_PACKED_ITEM(008_100, AstItem008_100, I100)
KOVREL_PACKED_ITEM(008_110, AstItem008_110, I110)
KOVREL_PACKED_ITEM(008_120, AstItem008_120, I120)

extern "C" KOVREL_API double ast_dataitem_008_vector_lsb(const AstItem008_100 *status) {
    if (!status || status->valid != 1 || status->f < -16 || status->f > 15) return kLsbRange;
    return std::ldexp(1.0, status->f - 6);
}

namespace kovrel::fields {

namespace {

constexpr auto k020Rows1 = rows_of<named_count(k020First)>(k020First);
constexpr auto k020Rows2 = rows_of<named_count(k020Second)>(k020Second);
constexpr FieldRow k020Rows[] = {k020Rows1.rows[0], k020Rows1.rows[1], k020Rows1.rows[2], k020Rows2.rows[0],
                                 k020Rows2.rows[1]};
constexpr auto kPolarRows = rows_of<named_count(kPolar)>(kPolar);
constexpr auto kCartesianRows = rows_of<named_count(kCartesian)>(kCartesian);
constexpr auto kSegmentRows = rows_of<named_count(kSegment)>(kSegment);
constexpr auto k040Rows = rows_of<named_count(k040)>(k040);
constexpr auto kPointRows = rows_of<named_count(kPoint)>(kPoint);
constexpr auto k100Rows = rows_of<named_count(k100)>(k100);
constexpr auto k120Rows = rows_of<named_count(k120)>(k120);

constinit const FieldDesc kPolarDesc = describe<Polar>(kPolarRows.rows);
constinit const FieldDesc kCartesianDesc = describe<Cart>(kCartesianRows.rows);
constinit const FieldDesc kSegmentDesc = describe<Seg>(kSegmentRows.rows);
constinit const FieldDesc kPointDesc = describe<Point>(kPointRows.rows);

constexpr FieldRow k034Rows[] = {
    array("vectors", KOVREL_MEMBER(T034, vectors), KOVREL_MEMBER(T034, rep), sizeof(Polar), AST_ITEM008_VECTOR_MAX,
          kPolarDesc),
};
constexpr FieldRow k036Rows[] = {
    array("vectors", KOVREL_MEMBER(T036, vectors), KOVREL_MEMBER(T036, rep), sizeof(Cart), AST_ITEM008_VECTOR_MAX,
          kCartesianDesc),
};
constexpr FieldRow k038Rows[] = {
    array("vectors", KOVREL_MEMBER(T038, vectors), KOVREL_MEMBER(T038, rep), sizeof(Seg), AST_ITEM008_VECTOR_MAX,
          kSegmentDesc),
};
constexpr FieldRow k050Rows[] = {
    array("points", KOVREL_MEMBER(T050, points), KOVREL_MEMBER(T050, rep), sizeof(Point), AST_ITEM008_VECTOR_MAX,
          kPointDesc),
};

// One status word: seven bits of its octet.
constexpr FieldRow kWordRows[] = {integer(nullptr, member_of<uint32_t>(0)).width(7)};
constinit const FieldDesc kWord = describe<uint32_t>(kWordRows);
constexpr FieldRow k110Rows[] = {
    array("status", KOVREL_MEMBER(T110, status), KOVREL_MEMBER(T110, count), sizeof(uint32_t), AST_ITEM008_110_MAX,
          kWord),
};

}  // namespace

constinit const FieldDesc k008_020 = describe<T020, init_valid<T020, ast_dataitem_008_020_init>>(k020Rows);
constinit const FieldDesc k008_034 = describe<T034, init_valid<T034, ast_dataitem_008_034_init>>(k034Rows);
constinit const FieldDesc k008_036 = describe<T036, init_valid<T036, ast_dataitem_008_036_init>>(k036Rows);
constinit const FieldDesc k008_038 = describe<T038, init_valid<T038, ast_dataitem_008_038_init>>(k038Rows);
constinit const FieldDesc k008_040 = describe<T040, init_valid<T040, ast_dataitem_008_040_init>>(k040Rows.rows);
constinit const FieldDesc k008_050 = describe<T050, init_valid<T050, ast_dataitem_008_050_init>>(k050Rows);
constinit const FieldDesc k008_100 = describe<T100, init_valid<T100, ast_dataitem_008_100_init>>(k100Rows.rows);
constinit const FieldDesc k008_110 = describe<T110, init_valid<T110, ast_dataitem_008_110_init>>(k110Rows);
constinit const FieldDesc k008_120 = describe<T120, init_valid<T120, ast_dataitem_008_120_init>>(k120Rows.rows);

}  // namespace kovrel::fields
