// CAT015's own simple items: the message type, target report descriptor,
// warnings, update period, track status, classification, measurement
// identifiers and associations, and the contour of the target. Each is one
// packed layout (items/packed.h) that gives its decoder,
// encoder, texts and named fields.
#include <iterator>

#include "categories/cat015/item_fields.h"
#include "items/packed.h"
#include "kovrel/cat015.h"

namespace {

using namespace kovrel::packed;

template <size_t N>
const char *name_of(const char *const (&names)[N], uint32_t v) {
    return v < N ? names[v] : nullptr;
}

const char *mt_name(uint32_t v) {
    static constexpr const char *kNames[] = {nullptr, "MEASUREMENT_PLOT", "MEASUREMENT_TRACK",
                                             "SENSOR_CENTRIC_PLOT", "SENSOR_CENTRIC_TRACK", "TRACK_END"};
    return name_of(kNames, v);
}
const char *momu_name(uint32_t v) {
    static constexpr const char *kNames[] = {"MONO_STATIC", "MULTI_STATIC", "OTHER", "UNKNOWN"};
    return name_of(kNames, v);
}
const char *ttax_name(uint32_t v) {
    static constexpr const char *kNames[] = {"ACTUAL", "REFERENCE", "SYNTHETIC", "SIMULATED"};
    return name_of(kNames, v);
}
const char *scd_name(uint32_t v) {
    static constexpr const char *kNames[] = {"UNKNOWN", "FORWARD", "BACKWARD", "STATIC"};
    return name_of(kNames, v);
}

using T000 = AstItem015_000;
constexpr Element k000[] = {
    coded("mt", KOVREL_MEMBER(T000, mt), 7, mt_name),
    bit("rg", KOVREL_MEMBER(T000, rg)),
};

using T020 = AstItem015_020;
constexpr Element k020[] = {
    coded("momu", KOVREL_MEMBER(T020, momu), 2, momu_name),
    coded("ttax", KOVREL_MEMBER(T020, ttax), 2, ttax_name),
    coded("scd", KOVREL_MEMBER(T020, scd), 2, scd_name),
    spare(1),
    spare(1),  // FX
};
constexpr Part k020Parts[] = {part(k020)};
constexpr Extended k020x{k020Parts, 1};

using T030 = AstItem015_030;
constexpr Chain k030{KOVREL_MEMBER(T030, count), offsetof(T030, codes), AST_ITEM015_030_MAX};
constexpr char kWarningTag[] = "WE";

using T050 = AstItem015_050;
constexpr Element k050[] = {spare(2), KOVREL_QUANTITY(T050, "upd", upd, 14, 1.0 / 128.0, "s")};

using T170 = AstItem015_170;
constexpr Element k170[] = {
    bit("biz", KOVREL_MEMBER(T170, biz)), bit("baz", KOVREL_MEMBER(T170, baz)),
    bit("tur", KOVREL_MEMBER(T170, tur)), spare(1),
    bit("cstp", KOVREL_MEMBER(T170, cstp)), bit("csth", KOVREL_MEMBER(T170, csth)),
    bit("cnf", KOVREL_MEMBER(T170, cnf)), spare(1),  // FX
};
constexpr Part k170Parts[] = {part(k170)};
constexpr Extended k170x{k170Parts, 1};

using Class = AstItem015Class;
constexpr Element kClass[] = {
    num("cls", KOVREL_MEMBER(Class, cls), 9),
    num("prb", KOVREL_MEMBER(Class, prb), 7),
};
using T300 = AstItem015_300;
constexpr Repeated k300{kClass, std::size(kClass), 2, KOVREL_MEMBER(T300, rep), offsetof(T300, classes),
                        sizeof(Class), AST_ITEM015_300_MAX};

using T400 = AstItem015_400;
constexpr Element k400[] = {
    num("pid", KOVREL_MEMBER(T400, pid), 16),
    num("on", KOVREL_MEMBER(T400, on), 24),
};

using Mid = AstItem015Measurement;
constexpr Element kMid[] = {
    num("pid", KOVREL_MEMBER(Mid, pid), 16),
    num("on", KOVREL_MEMBER(Mid, on), 24),
};
using T480 = AstItem015_480;
constexpr Repeated k480{kMid, std::size(kMid), 5, KOVREL_MEMBER(T480, rep), offsetof(T480, associations),
                        sizeof(Mid), AST_ITEM015_480_MAX};

constexpr double kLsbAzimuth = 360.0 / 65536.0;    // degrees
constexpr double kLsbElevation = 180.0 / 65536.0;  // degrees
constexpr double kLsbRange = 10000.0 / 65536.0;    // m

using Contour = AstItem015Contour;
constexpr Element kContour[] = {
    quantity("azcon", KOVREL_MEMBER(Contour, azcon), {}, {}, 16, kLsbAzimuth, "deg"),
    quantity("elcon", KOVREL_MEMBER(Contour, elcon), {}, {}, 16, kLsbElevation, "deg"),
    quantity("rgconstop", KOVREL_MEMBER(Contour, rgconstop), {}, {}, 16, kLsbRange, "m"),
    quantity("rgconstart", KOVREL_MEMBER(Contour, rgconstart), {}, {}, 16, kLsbRange, "m"),
};
using T631 = AstItem015_631;
constexpr Repeated k631{kContour, std::size(kContour), 8, KOVREL_MEMBER(T631, rep), offsetof(T631, points),
                        sizeof(Contour), AST_ITEM015_631_MAX};

void contour_lsb(T631 *out) {
    out->az_lsb = kLsbAzimuth;
    out->el_lsb = kLsbElevation;
    out->rg_lsb = kLsbRange;
}

using I000 = FixedItem<T000, k000, 15000>;
using I020 = ExtendedItem<T020, k020x, 15020>;
using I030 = ChainItem<T030, k030, 15030, kWarningTag>;
using I050 = FixedItem<T050, k050, 15050>;
using I170 = ExtendedItem<T170, k170x, 15170>;
using I300 = RepeatedItem<T300, k300, 15300>;
using I400 = FixedItem<T400, k400, 15400>;
using I480 = RepeatedItem<T480, k480, 15480>;
using I631 = RepeatedItem<T631, k631, 15631, contour_lsb>;

}  // namespace

KOVREL_PACKED_ITEM(015_000, AstItem015_000, I000)
KOVREL_PACKED_ITEM(015_020, AstItem015_020, I020)
KOVREL_PACKED_ITEM(015_030, AstItem015_030, I030)
KOVREL_PACKED_ITEM(015_050, AstItem015_050, I050)
KOVREL_PACKED_ITEM(015_170, AstItem015_170, I170)
KOVREL_PACKED_ITEM(015_300, AstItem015_300, I300)
KOVREL_PACKED_ITEM(015_400, AstItem015_400, I400)
KOVREL_PACKED_ITEM(015_480, AstItem015_480, I480)
KOVREL_PACKED_ITEM(015_631, AstItem015_631, I631)

namespace kovrel::fields {

namespace {

constexpr auto k000Rows = rows_of<named_count(k000)>(k000);
constexpr auto k020Rows = rows_of<named_count(k020)>(k020);
constexpr auto k050Rows = rows_of<named_count(k050)>(k050);
constexpr auto k170Rows = rows_of<named_count(k170)>(k170);
constexpr auto kClassRows = rows_of<named_count(kClass)>(kClass);
constexpr auto k400Rows = rows_of<named_count(k400)>(k400);
constexpr auto kMidRows = rows_of<named_count(kMid)>(kMid);
constexpr auto kContourRows = rows_of<named_count(kContour)>(kContour);

constinit const FieldDesc kClassDesc = describe<Class>(kClassRows.rows);
constinit const FieldDesc kMidDesc = describe<Mid>(kMidRows.rows);
constinit const FieldDesc kContourDesc = describe<Contour>(kContourRows.rows);

// One warning/error value: seven bits of its octet.
constexpr FieldRow kCodeRows[] = {integer(nullptr, member_of<uint32_t>(0)).width(7)};
constinit const FieldDesc kCode = describe<uint32_t>(kCodeRows);

constexpr FieldRow k030Rows[] = {
    array("codes", KOVREL_MEMBER(T030, codes), KOVREL_MEMBER(T030, count), sizeof(uint32_t), AST_ITEM015_030_MAX,
          kCode),
};
constexpr FieldRow k300Rows[] = {
    array("classes", KOVREL_MEMBER(T300, classes), KOVREL_MEMBER(T300, rep), sizeof(Class), AST_ITEM015_300_MAX,
          kClassDesc),
};
constexpr FieldRow k480Rows[] = {
    array("associations", KOVREL_MEMBER(T480, associations), KOVREL_MEMBER(T480, rep), sizeof(Mid),
          AST_ITEM015_480_MAX, kMidDesc),
};
constexpr FieldRow k631Rows[] = {
    array("points", KOVREL_MEMBER(T631, points), KOVREL_MEMBER(T631, rep), sizeof(Contour), AST_ITEM015_631_MAX,
          kContourDesc),
};

}  // namespace

constinit const FieldDesc k015_000 = describe<T000, init_valid<T000, ast_dataitem_015_000_init>>(k000Rows.rows);
constinit const FieldDesc k015_020 = describe<T020, init_valid<T020, ast_dataitem_015_020_init>>(k020Rows.rows);
constinit const FieldDesc k015_030 = describe<T030, init_valid<T030, ast_dataitem_015_030_init>>(k030Rows);
constinit const FieldDesc k015_050 = describe<T050, init_valid<T050, ast_dataitem_015_050_init>>(k050Rows.rows);
constinit const FieldDesc k015_170 = describe<T170, init_valid<T170, ast_dataitem_015_170_init>>(k170Rows.rows);
constinit const FieldDesc k015_300 = describe<T300, init_valid<T300, ast_dataitem_015_300_init>>(k300Rows);
constinit const FieldDesc k015_400 = describe<T400, init_valid<T400, ast_dataitem_015_400_init>>(k400Rows.rows);
constinit const FieldDesc k015_480 = describe<T480, init_valid<T480, ast_dataitem_015_480_init>>(k480Rows);
constinit const FieldDesc k015_631 = describe<T631, init_valid<T631, ast_dataitem_015_631_init>>(k631Rows);

}  // namespace kovrel::fields
