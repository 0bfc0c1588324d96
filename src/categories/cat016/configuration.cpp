// CAT016's own items: the reporting period, the transmitter/receiver pairs,
// the height of the system reference point and the properties of every
// transmitter and receiver.
// Each is one packed layout (items/packed.h) that gives its decoder,
// encoder, texts and named fields.
#include <iterator>

#include "items/packed.h"
#include "categories/cat016/item_fields.h"
#include "kovrel/cat016.h"

namespace {

using namespace kovrel::packed;

constexpr double kLsbPosition = 180.0 / 2147483648.0;  // 180/2^31 degrees
constexpr double kLsbHeight = 0.25;                     // m

using T200 = AstItem016_200;
constexpr Element k200[] = {KOVREL_QUANTITY(T200, "period", period, 8, 1.0, "s")};

using Pair = AstItem016Pair;
constexpr Element kPair[] = {
    num("pid", KOVREL_MEMBER(Pair, pid), 16),
    num("tid", KOVREL_MEMBER(Pair, tid), 16),
    num("rid", KOVREL_MEMBER(Pair, rid), 16),
};
using T300 = AstItem016_300;
constexpr Repeated k300{kPair, std::size(kPair), 6, KOVREL_MEMBER(T300, rep), offsetof(T300, pairs), sizeof(Pair),
                        AST_ITEM016_300_MAX};

using T405 = AstItem016_405;
constexpr Element k405[] = {KOVREL_QUANTITY(T405, "height", height, 16, kLsbHeight, "m")};

using Tx = AstItem016Transmitter;
constexpr Element kTransmitter[] = {
    num("tid", KOVREL_MEMBER(Tx, tid), 16),
    KOVREL_QUANTITY(Tx, "lat", lat, 32, kLsbPosition, "deg"),
    KOVREL_QUANTITY(Tx, "lon", lon, 32, kLsbPosition, "deg"),
    KOVREL_QUANTITY(Tx, "alt", alt, 16, kLsbHeight, "m"),
    KOVREL_QUANTITY(Tx, "tto", tto, 32, 2.0, "ns"),
    spare(4),
    KOVREL_QUANTITY(Tx, "ato", ato, 20, 1.0, "ns"),
    num("pci", KOVREL_MEMBER(Tx, pci), 16),
};
using T410 = AstItem016_410;
constexpr Repeated k410{kTransmitter, std::size(kTransmitter), 21, KOVREL_MEMBER(T410, rep),
                        offsetof(T410, transmitters), sizeof(Tx), AST_ITEM016_410_MAX};

using Rx = AstItem016Receiver;
constexpr Element kReceiver[] = {
    num("rid", KOVREL_MEMBER(Rx, rid), 16),
    KOVREL_QUANTITY(Rx, "lat", lat, 32, kLsbPosition, "deg"),
    KOVREL_QUANTITY(Rx, "lon", lon, 32, kLsbPosition, "deg"),
    KOVREL_QUANTITY(Rx, "alt", alt, 16, kLsbHeight, "m"),
};
using T420 = AstItem016_420;
constexpr Repeated k420{kReceiver, std::size(kReceiver), 12, KOVREL_MEMBER(T420, rep), offsetof(T420, receivers),
                        sizeof(Rx), AST_ITEM016_420_MAX};

using I200 = FixedItem<T200, k200, 16200>;
using I300 = RepeatedItem<T300, k300, 16300>;
using I405 = FixedItem<T405, k405, 16405>;
using I410 = RepeatedItem<T410, k410, 16410>;
using I420 = RepeatedItem<T420, k420, 16420>;

}  // namespace

KOVREL_PACKED_ITEM(016_200, AstItem016_200, I200)
KOVREL_PACKED_ITEM(016_300, AstItem016_300, I300)
KOVREL_PACKED_ITEM(016_405, AstItem016_405, I405)
KOVREL_PACKED_ITEM(016_410, AstItem016_410, I410)
KOVREL_PACKED_ITEM(016_420, AstItem016_420, I420)

extern "C" KOVREL_API void ast_dataitem_016_400_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                       const AstPositionWgs84 *in) {
    encode_position(out, buffer, size, in, kLsbPosition);
}

KOVREL_ENCODE_EX(016_400, AstPositionWgs84, ast_dataitem_016_400_encode)

namespace kovrel::fields {

namespace {

constexpr auto k200Rows = rows_of<named_count(k200)>(k200);
constexpr auto kPairRows = rows_of<named_count(kPair)>(kPair);
constexpr auto k405Rows = rows_of<named_count(k405)>(k405);
constexpr auto kTransmitterRows = rows_of<named_count(kTransmitter)>(kTransmitter);
constexpr auto kReceiverRows = rows_of<named_count(kReceiver)>(kReceiver);

constinit const FieldDesc kPairDesc = describe<Pair>(kPairRows.rows);
constinit const FieldDesc kTransmitterDesc = describe<Tx>(kTransmitterRows.rows);
constinit const FieldDesc kReceiverDesc = describe<Rx>(kReceiverRows.rows);

constexpr FieldRow k300Rows[] = {
    array("pairs", KOVREL_MEMBER(T300, pairs), KOVREL_MEMBER(T300, rep), sizeof(Pair), AST_ITEM016_300_MAX,
          kPairDesc),
};
constexpr FieldRow k410Rows[] = {
    array("tx", KOVREL_MEMBER(T410, transmitters), KOVREL_MEMBER(T410, rep), sizeof(Tx), AST_ITEM016_410_MAX,
          kTransmitterDesc),
};
constexpr FieldRow k420Rows[] = {
    array("rx", KOVREL_MEMBER(T420, receivers), KOVREL_MEMBER(T420, rep), sizeof(Rx), AST_ITEM016_420_MAX,
          kReceiverDesc),
};

}  // namespace

constinit const FieldDesc k016_200 = describe<T200, init_valid<T200, ast_dataitem_016_200_init>>(k200Rows.rows);
constinit const FieldDesc k016_300 = describe<T300, init_valid<T300, ast_dataitem_016_300_init>>(k300Rows);
constinit const FieldDesc k016_405 = describe<T405, init_valid<T405, ast_dataitem_016_405_init>>(k405Rows.rows);
constinit const FieldDesc k016_410 = describe<T410, init_valid<T410, ast_dataitem_016_410_init>>(k410Rows);
constinit const FieldDesc k016_420 = describe<T420, init_valid<T420, ast_dataitem_016_420_init>>(k420Rows);

}  // namespace kovrel::fields
