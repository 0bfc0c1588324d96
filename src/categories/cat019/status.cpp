// CAT019's own items: the system and tracking processor status, the remote
// sensors and reference transponders, and the height and undulation of the
// system reference point.
// Each is one packed layout (items/packed.h) that gives its decoder,
// encoder, texts and named fields.
#include <iterator>

#include "items/packed.h"
#include "categories/cat019/item_fields.h"
#include "kovrel/cat019.h"

namespace {

using namespace kovrel::packed;

const char *nogo_name(uint32_t v) {
    static constexpr const char *kNames[] = {"OPERATIONAL", "DEGRADED", "NOGO", "UNDEFINED"};
    return v < 4 ? kNames[v] : nullptr;
}

// Transponder states; 0 has no meaning and is shown as its number.
const char *reftr_name(uint32_t v) {
    static constexpr const char *kNames[] = {nullptr, "WARNING", "FAULTED", "GOOD"};
    return v < 4 ? kNames[v] : nullptr;
}

using T550 = AstItem019_550;
constexpr Element k550[] = {
    coded("nogo", KOVREL_MEMBER(T550, nogo), 2, nogo_name),
    bit("ovl", KOVREL_MEMBER(T550, ovl)),
    bit("tsv", KOVREL_MEMBER(T550, tsv)),
    bit("ttf", KOVREL_MEMBER(T550, ttf)),
    spare(3),
};

using T551 = AstItem019_551;
constexpr Element k551[] = {
    bit("tp1a", KOVREL_MEMBER(T551, tp1a)), bit("tp1b", KOVREL_MEMBER(T551, tp1b)),
    bit("tp2a", KOVREL_MEMBER(T551, tp2a)), bit("tp2b", KOVREL_MEMBER(T551, tp2b)),
    bit("tp3a", KOVREL_MEMBER(T551, tp3a)), bit("tp3b", KOVREL_MEMBER(T551, tp3b)),
    bit("tp4a", KOVREL_MEMBER(T551, tp4a)), bit("tp4b", KOVREL_MEMBER(T551, tp4b)),
};

using S = AstItem019Sensor;
constexpr Element kSensor[] = {
    num("rsi", KOVREL_MEMBER(S, rsi), 8),
    spare(1),
    bit("rs1090", KOVREL_MEMBER(S, rs1090)),
    bit("tx1030", KOVREL_MEMBER(S, tx1030)),
    bit("tx1090", KOVREL_MEMBER(S, tx1090)),
    bit("rss", KOVREL_MEMBER(S, rss)),
    bit("rso", KOVREL_MEMBER(S, rso)),
    spare(2),
};
using T552 = AstItem019_552;
constexpr Repeated k552{kSensor, std::size(kSensor), 2, KOVREL_MEMBER(T552, rep), offsetof(T552, sensors), sizeof(S),
                        AST_ITEM019_552_MAX};

using T553 = AstItem019_553;
constexpr Element k553First[] = {
    coded("reftr1", KOVREL_MEMBER(T553, reftr1), 2, reftr_name),
    spare(2),
    coded("reftr2", KOVREL_MEMBER(T553, reftr2), 2, reftr_name),
    spare(1),
    spare(1),  // FX
};
constexpr Element k553Second[] = {
    when(coded("reftr3", KOVREL_MEMBER(T553, reftr3), 2, reftr_name), KOVREL_MEMBER(T553, ext)),
    spare(2),
    when(coded("reftr4", KOVREL_MEMBER(T553, reftr4), 2, reftr_name), KOVREL_MEMBER(T553, ext)),
    spare(1),
    spare(1),  // FX
};
constexpr Part k553Parts[] = {
    part(k553First),
    part(k553Second, KOVREL_MEMBER(T553, ext)),
};
constexpr Extended k553{k553Parts, 2};

using T610 = AstItem019_610;
constexpr Element k610[] = {KOVREL_QUANTITY(T610, "height", height, 16, 0.25, "m")};

using T620 = AstItem019_620;
constexpr Element k620[] = {KOVREL_QUANTITY(T620, "und", und, 8, 1.0, "m")};

using I550 = FixedItem<T550, k550, 19550>;
using I551 = FixedItem<T551, k551, 19551>;
using I552 = RepeatedItem<T552, k552, 19552>;
using I553 = ExtendedItem<T553, k553, 19553>;
using I610 = FixedItem<T610, k610, 19610>;
using I620 = FixedItem<T620, k620, 19620>;

constexpr double kLsb600 = 180.0 / 1073741824.0;  // 180/2^30 degrees

}  // namespace

KOVREL_PACKED_ITEM(019_550, AstItem019_550, I550)
KOVREL_PACKED_ITEM(019_551, AstItem019_551, I551)
KOVREL_PACKED_ITEM(019_552, AstItem019_552, I552)
KOVREL_PACKED_ITEM(019_553, AstItem019_553, I553)
KOVREL_PACKED_ITEM(019_610, AstItem019_610, I610)
KOVREL_PACKED_ITEM(019_620, AstItem019_620, I620)

extern "C" KOVREL_API void ast_dataitem_019_600_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                       const AstPositionWgs84 *in) {
    encode_position(out, buffer, size, in, kLsb600);
}

KOVREL_ENCODE_EX(019_600, AstPositionWgs84, ast_dataitem_019_600_encode)

namespace kovrel::fields {

namespace {

constexpr auto k550Rows = rows_of<named_count(k550)>(k550);
constexpr auto k551Rows = rows_of<named_count(k551)>(k551);
constexpr auto kSensorRows = rows_of<named_count(kSensor)>(kSensor);
constexpr auto k553Rows1 = rows_of<named_count(k553First)>(k553First);
constexpr auto k553Rows2 = rows_of<named_count(k553Second)>(k553Second);
constexpr FieldRow k553Rows[] = {k553Rows1.rows[0], k553Rows1.rows[1], k553Rows2.rows[0], k553Rows2.rows[1]};
constexpr auto k610Rows = rows_of<named_count(k610)>(k610);
constexpr auto k620Rows = rows_of<named_count(k620)>(k620);

constinit const FieldDesc kSensorDesc = describe<S>(kSensorRows.rows);
constexpr FieldRow k552Rows[] = {
    array("rs", KOVREL_MEMBER(T552, sensors), KOVREL_MEMBER(T552, rep), sizeof(S), AST_ITEM019_552_MAX,
          kSensorDesc),
};

}  // namespace

constinit const FieldDesc k019_550 = describe<T550, init_valid<T550, ast_dataitem_019_550_init>>(k550Rows.rows);
constinit const FieldDesc k019_551 = describe<T551, init_valid<T551, ast_dataitem_019_551_init>>(k551Rows.rows);
constinit const FieldDesc k019_552 = describe<T552, init_valid<T552, ast_dataitem_019_552_init>>(k552Rows);
constinit const FieldDesc k019_553 = describe<T553, init_valid<T553, ast_dataitem_019_553_init>>(k553Rows);
constinit const FieldDesc k019_610 = describe<T610, init_valid<T610, ast_dataitem_019_610_init>>(k610Rows.rows);
constinit const FieldDesc k019_620 = describe<T620, init_valid<T620, ast_dataitem_019_620_init>>(k620Rows.rows);

}  // namespace kovrel::fields
