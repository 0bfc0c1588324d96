// CAT240 records: disassembly from wire octets, the record accessors, and
// the video vector with each of its statuses and the unpacking of 1-, 2-,
// 4- and 8-bit cells.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "kovrel/cat240.h"
#include "kovrel/core.h"
#include "kovrel/datarecord.h"
#include "kovrel/uap.h"
#include "support/log_capture.h"
#include "support/record_walk.h"

using kovrel_test::LogCapture;
using kovrel_test::Octets;

namespace {

// FRNs of the standard profile.
enum Frn : uint32_t {
    kSource = 1, kType = 2, kHeader = 3, kSummary = 4, kNano = 5, kFemto = 6, kRes = 7,
    kCounters = 8, kLow = 9, kMedium = 10, kHigh = 11, kTime = 12, kRe = 13, kSp = 14,
};
using Items = std::vector<std::pair<uint32_t, Octets>>;

// A record holding items, each given by its FRN, in FRN order.
Octets record_of(const Items &items) {
    uint8_t fspec[2] = {0x01, 0x00};
    for (const auto &[frn, octets] : items) fspec[(frn - 1) / 7] |= static_cast<uint8_t>(0x80 >> ((frn - 1) % 7));
    Octets o(fspec, fspec + 2);
    if (fspec[1] == 0) o = {static_cast<uint8_t>(fspec[0] & 0xFE)};
    for (const auto &[frn, octets] : items) o.insert(o.end(), octets.begin(), octets.end());
    return o;
}

struct Decoded {
    Octets wire;
    AstDataRecord record;
    AstRecord240 video;
};

// Decodes and disassembles; the octets stay alive with the spans.
void decode(Decoded &d, const Items &items) {
    d.wire = record_of(items);
    ast_datarecord_decode(&d.record, d.wire.data(), d.wire.size(), 240, &AST_UAP_STANDARD);
    ASSERT_EQ(d.record.valid, 1);
    ASSERT_EQ(d.record.length, d.wire.size());
    ast_datarecord_240_disassemble(&d.video, &d.record);
}

const Octets kSac = {0x07, 0x01};
const Octets kVideoMessage = {0x02};
const Octets kIndex = {0x00, 0x00, 0x00, 0x2A};
// 90 to 180 deg, from cell 10, cells of 1000 ns (1000000 fs).
const Octets kNanoHeader = {0x40, 0x00, 0x80, 0x00, 0x00, 0x00, 0x00, 0x0A, 0x00, 0x00, 0x03, 0xE8};
const Octets kFemtoHeader = {0x40, 0x00, 0x80, 0x00, 0x00, 0x00, 0x00, 0x0A, 0x00, 0x0F, 0x42, 0x40};
const Octets kTod = {0x00, 0x10, 0x00};  // 32 s

Octets res(uint8_t code, bool compressed = false) { return {static_cast<uint8_t>(compressed ? 0x80 : 0), code}; }
Octets counters(uint16_t vb, uint32_t cells) {
    return {static_cast<uint8_t>(vb >> 8), static_cast<uint8_t>(vb), static_cast<uint8_t>(cells >> 16),
            static_cast<uint8_t>(cells >> 8), static_cast<uint8_t>(cells)};
}
Octets low(const Octets &video) {
    Octets o(1 + video.size());
    o[0] = static_cast<uint8_t>(video.size() / 4);
    std::copy(video.begin(), video.end(), o.begin() + 1);
    return o;
}
Octets repeated(uint8_t rep, size_t unit) {
    Octets o(1 + rep * unit, 0x81);
    o[0] = rep;
    return o;
}

struct VectorCase {
    const char *what;
    Items items;
    uint32_t status;
    std::vector<uint32_t> cells;  // expected when status is 0
    uint32_t mask;
};

const std::vector<VectorCase> kVectors = {
    {"1-bit cells, whole block", {{kType, kVideoMessage}, {kNano, kNanoHeader}, {kRes, res(1)},
      {kLow, low({0xA5, 0x00, 0xFF, 0x01})}}, 0,
     {1, 0, 1, 0, 0, 1, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 1, 1, 1, 1, 0, 0, 0, 0, 0, 0, 0, 1}, 1},
    {"2-bit cells, counted", {{kType, kVideoMessage}, {kNano, kNanoHeader}, {kRes, res(2)}, {kCounters, counters(1, 3)},
      {kLow, low({0xE4, 0xFF, 0xFF, 0xFF})}}, 0, {3, 2, 1}, 3},
    {"4-bit cells, counted", {{kType, kVideoMessage}, {kFemto, kFemtoHeader}, {kRes, res(3)},
      {kCounters, counters(2, 3)}, {kLow, low({0x12, 0x34, 0x56, 0x78})}}, 0, {1, 2, 3}, 15},
    {"8-bit cells", {{kType, kVideoMessage}, {kNano, kNanoHeader}, {kRes, res(4)}, {kCounters, counters(4, 4)},
      {kLow, low({0x00, 0x05, 0x00, 0xFF})}}, 0, {0, 5, 0, 255}, 255},
    {"counters beyond the block", {{kType, kVideoMessage}, {kNano, kNanoHeader}, {kRes, res(4)},
      {kCounters, counters(5, 4)}, {kLow, low({0x01, 0x02, 0x03, 0x04})}}, 0, {1, 2, 3, 4}, 255},
    {"more cells than counted octets", {{kType, kVideoMessage}, {kNano, kNanoHeader}, {kRes, res(4)},
      {kCounters, counters(2, 3)}, {kLow, low({0x01, 0x02, 0x03, 0x04})}}, 0, {1, 2, 3, 4}, 255},
    {"empty block", {{kType, kVideoMessage}, {kNano, kNanoHeader}, {kRes, res(4)}, {kCounters, counters(0, 0)},
      {kLow, {0x00}}}, 0, {}, 255},
    {"video summary", {{kType, {0x01}}, {kSummary, {0x01, 'x'}}}, 2, {}, 0},
    {"no message type", {{kSource, kSac}, {kNano, kNanoHeader}, {kRes, res(4)}, {kLow, low({1, 2, 3, 4})}}, 3, {}, 0},
    {"message type 3", {{kType, {0x03}}, {kNano, kNanoHeader}, {kRes, res(4)}, {kLow, low({1, 2, 3, 4})}}, 3, {}, 0},
    {"no header", {{kType, kVideoMessage}, {kRes, res(4)}, {kLow, low({1, 2, 3, 4})}}, 4, {}, 0},
    {"two headers, no resolution", {{kType, kVideoMessage}, {kNano, kNanoHeader}, {kFemto, kFemtoHeader},
      {kLow, low({1, 2, 3, 4})}}, 5, {}, 0},
    {"no resolution", {{kType, kVideoMessage}, {kNano, kNanoHeader}, {kLow, low({1, 2, 3, 4})}}, 6, {}, 0},
    {"RES 0", {{kType, kVideoMessage}, {kNano, kNanoHeader}, {kRes, res(0)}, {kLow, low({1, 2, 3, 4})}}, 7, {}, 0},
    {"RES 7 compressed", {{kType, kVideoMessage}, {kNano, kNanoHeader}, {kRes, res(7, true)}}, 7, {}, 0},
    {"RES 5", {{kType, kVideoMessage}, {kNano, kNanoHeader}, {kRes, res(5)}, {kLow, low({1, 2, 3, 4})}}, 8, {}, 0},
    {"RES 6 compressed", {{kType, kVideoMessage}, {kNano, kNanoHeader}, {kRes, res(6, true)}}, 8, {}, 0},
    {"compressed", {{kType, kVideoMessage}, {kNano, kNanoHeader}, {kRes, res(4, true)}}, 9, {}, 0},
    {"no block", {{kType, kVideoMessage}, {kNano, kNanoHeader}, {kRes, res(4)}, {kCounters, counters(1, 1)}}, 10, {}, 0},
    {"two blocks", {{kType, kVideoMessage}, {kNano, kNanoHeader}, {kRes, res(4)}, {kLow, {0x00}},
      {kMedium, repeated(1, 64)}}, 11, {}, 0},
};

}  // namespace

TEST(Cat240Record, VectorStatusesInTheirOrder) {
    LogCapture log;
    for (const auto &c : kVectors) {
        Decoded d;
        decode(d, c.items);
        std::vector<uint32_t> cells(64, 0xDEADBEEF);
        const AstVideoVector v = ast_datarecord_240_get_vector(&d.video, cells.data(), cells.size());
        EXPECT_EQ(v.status, c.status) << c.what;
        EXPECT_EQ(v.valid, c.status == 0 ? 1 : 0) << c.what;
        if (c.status != 0) {
            EXPECT_EQ(v.cells, nullptr) << c.what;
            continue;
        }
        EXPECT_EQ(v.cells, cells.data()) << c.what;
        EXPECT_EQ(v.cell_mask, c.mask) << c.what;
        ASSERT_EQ(v.cell_count, c.cells.size()) << c.what;
        EXPECT_EQ(std::vector<uint32_t>(cells.begin(), cells.begin() + c.cells.size()), c.cells) << c.what;
        EXPECT_EQ(cells[c.cells.size()], 0xDEADBEEF) << c.what;  // nothing written past the cells
    }
}

TEST(Cat240Record, VectorPlacesTheVideoAndLogsHowItsExtentWasFound) {
    LogCapture log;
    Decoded d;
    decode(d, {{kSource, kSac}, {kType, kVideoMessage}, {kHeader, kIndex}, {kNano, kNanoHeader}, {kRes, res(4)},
               {kCounters, counters(4, 4)}, {kLow, low({9, 8, 7, 6})}, {kTime, kTod}});
    uint32_t cells[4];
    AstVideoVector v = ast_datarecord_240_get_vector(&d.video, cells, 4);
    ASSERT_EQ(v.status, 0u);
    EXPECT_EQ(v.start_az, 90.0);
    EXPECT_EQ(v.end_az, 180.0);
    EXPECT_DOUBLE_EQ(v.cell_duration, 1e-6);
    EXPECT_DOUBLE_EQ(v.cell_length, 149.896229);
    EXPECT_DOUBLE_EQ(v.start_range, 1498.96229);
    EXPECT_EQ(v.start_rg, 10u);
    EXPECT_EQ(v.msg_index, 42u);
    EXPECT_EQ(v.tod_valid, 1);
    EXPECT_EQ(v.hour * 3600000u + v.minute * 60000u + v.second * 1000u + v.millisecond, 32000u);
    EXPECT_EQ(v.res, 4u);
    EXPECT_EQ(log.size(), 0u);

    // Every capacity below the cell count is refused, and the counts are
    // still given so that the caller knows what to provide.
    for (size_t capacity = 0; capacity < 4; ++capacity) {
        v = ast_datarecord_240_get_vector(&d.video, cells, capacity);
        EXPECT_EQ(v.status, 14u) << capacity;
        EXPECT_EQ(v.cell_count, 4u);
    }
    v = ast_datarecord_240_get_vector(&d.video, nullptr, 100);
    EXPECT_EQ(v.status, 14u);

    // Without counters, the block gives the extent; inconsistent counters
    // are ignored.
    decode(d, {{kType, kVideoMessage}, {kNano, kNanoHeader}, {kRes, res(4)}, {kLow, low({1, 2, 3, 4})}});
    v = ast_datarecord_240_get_vector(&d.video, cells, 4);
    EXPECT_EQ(v.status, 0u);
    EXPECT_EQ(v.msg_index, 0u);
    EXPECT_EQ(v.tod_valid, 0);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL,
                             "I240/049 is missing, the extent of the video block is derived from its size."));
    log.clear();
    decode(d, {{kType, kVideoMessage}, {kNano, kNanoHeader}, {kRes, res(4)}, {kCounters, counters(5, 4)},
               {kLow, low({1, 2, 3, 4})}});
    ast_datarecord_240_get_vector(&d.video, cells, 4);
    EXPECT_TRUE(log.contains(AST_LOG_WARNING,
                             "I240/049 counters VB 5 CELLS 4 are inconsistent with the video block size 4."));
    EXPECT_EQ(log.size(), 1u);
}

TEST(Cat240Record, BlocksThatAreNotValid) {
    LogCapture log;
    // A high-volume block of REP 255: delimited, refused by its decoder.
    Decoded d;
    decode(d, {{kType, kVideoMessage}, {kNano, kNanoHeader}, {kRes, res(4)}, {kHigh, repeated(255, 256)}});
    EXPECT_EQ(d.video.i052.valid, 0);
    EXPECT_EQ(d.video.i052.length, 65280u);
    std::vector<uint32_t> cells(70000);
    EXPECT_EQ(ast_datarecord_240_get_vector(&d.video, cells.data(), cells.size()).status, 13u);
    // Beside another block it still counts as present.
    decode(d, {{kType, kVideoMessage}, {kNano, kNanoHeader}, {kRes, res(4)}, {kLow, low({1, 2, 3, 4})},
               {kHigh, repeated(255, 256)}});
    EXPECT_EQ(ast_datarecord_240_get_vector(&d.video, cells.data(), cells.size()).status, 11u);
    decode(d, {{kType, kVideoMessage}, {kNano, kNanoHeader}, {kRes, res(4)}, {kHigh, repeated(254, 256)}});
    AstVideoVector v = ast_datarecord_240_get_vector(&d.video, cells.data(), cells.size());
    EXPECT_EQ(v.status, 0u);
    EXPECT_EQ(v.cell_count, 65024u);
    EXPECT_EQ(cells[65023], 0x81u);

    // A block whose flag says it is shorter than its REP (as a caller may
    // build the record).
    decode(d, {{kType, kVideoMessage}, {kNano, kNanoHeader}, {kRes, res(4)}, {kMedium, repeated(1, 64)}});
    AstRecord240 r = d.video;
    r.i051.valid = 0;
    EXPECT_EQ(ast_datarecord_240_get_vector(&r, cells.data(), cells.size()).status, 12u);
    r = d.video;
    r.i051 = AstVideoBlock{};
    r.i052 = AstVideoBlock{0, 65025, nullptr};
    EXPECT_EQ(ast_datarecord_240_get_vector(&r, cells.data(), cells.size()).status, 13u);
    r.i052.length = 65024;
    EXPECT_EQ(ast_datarecord_240_get_vector(&r, cells.data(), cells.size()).status, 12u);
    r.i052.valid = 1;  // valid without its octets
    EXPECT_EQ(ast_datarecord_240_get_vector(&r, cells.data(), cells.size()).status, 12u);
    r.valid = 0;
    EXPECT_EQ(ast_datarecord_240_get_vector(&r, cells.data(), cells.size()).status, 1u);
    EXPECT_EQ(ast_datarecord_240_get_vector(nullptr, cells.data(), cells.size()).status, 1u);
}

TEST(Cat240Record, DisassemblyAndAccessors) {
    LogCapture log;
    Decoded d;
    decode(d, {{kSource, kSac}, {kType, kVideoMessage}, {kHeader, kIndex}, {kSummary, {0x02, 'o', 'k'}},
               {kFemto, kFemtoHeader}, {kRes, res(3)}, {kCounters, counters(2, 3)}, {kLow, low({1, 2, 3, 4})},
               {kTime, kTod}, {kRe, {0x02, 0x00}}, {kSp, {0x01}}});
    const AstRecord240 &v = d.video;
    EXPECT_EQ(v.valid, 1);
    EXPECT_EQ(v.i000.value, 2u);
    EXPECT_EQ(v.i010.sac, 7u);
    EXPECT_EQ(v.i020.msg_index, 42u);
    EXPECT_STREQ(v.i030.text, "ok");
    EXPECT_EQ(v.i040.valid, 0);
    EXPECT_EQ(v.i041.valid, 1);
    EXPECT_DOUBLE_EQ(v.i041.cell_dur, 1e-9);
    EXPECT_EQ(v.i048.res, 3u);
    EXPECT_EQ(v.i049.nb_cells, 3u);
    EXPECT_EQ(v.i050.video, d.wire.data() + d.wire.size() - 10);  // then 4 octets, I240/140, RE, SP
    EXPECT_EQ(v.i051.valid + v.i052.valid, 0);
    EXPECT_EQ(v.i140.second, 32u);
    // RE and SP have no member; the text keeps its blank before the colon.
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Failed to disassemble dataitem : I240/REF."));
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Failed to disassemble dataitem : I240/SPF."));
    EXPECT_EQ(log.size(), 2u);

    // Disassembling set this thread's video state: 4-bit cells.
    const Octets block = {0x02, 0, 0, 0, 0, 0, 0, 0, 0};
    AstDataItem item;
    ast_dataitem_scan(&item, block.data(), block.size(), 240050);
    char text[64];
    ast_dataitem_get_summary(text, sizeof text, &item);
    EXPECT_STREQ(text, "OCTET:8, CELL:16");

    AstRecordMsgType type;
    ast_datarecord_get_msgtype(&type, &d.record);
    EXPECT_EQ(type.valid, 1u);
    EXPECT_EQ(type.value, 7u);
    AstDataSourceIdentifier src;
    ast_datarecord_get_sacsic(&src, &d.record);
    EXPECT_EQ(src.valid * 1000 + src.sac * 10 + src.sic, 1071u);
    AstTimeOfDay tod;
    ast_datarecord_get_timeofday(&tod, &d.record);
    EXPECT_EQ(tod.valid, 1u);
    EXPECT_EQ(tod.second, 32u);

    decode(d, {{kType, {0x01}}, {kSummary, {0x01, 'x'}}});
    ast_datarecord_get_msgtype(&type, &d.record);
    EXPECT_EQ(type.value, 7u);
    ast_datarecord_get_sacsic(&src, &d.record);
    EXPECT_EQ(src.valid, 0u);
    EXPECT_EQ(src.sac, 0xFFFFFFFFu);
    decode(d, {{kType, {0x03}}});
    ast_datarecord_get_msgtype(&type, &d.record);
    EXPECT_EQ(type.valid, 0u);

    // Not valid, or another category: all zero. No items: valid and empty.
    AstRecord240 zero;
    std::memset(&zero, 0, sizeof zero);
    AstDataRecord other = d.record;
    other.category = 48;
    AstRecord240 out;
    ast_datarecord_240_disassemble(&out, &other);
    EXPECT_EQ(std::memcmp(&out, &zero, sizeof out), 0);
    other = d.record;
    other.valid = 0;
    ast_datarecord_240_disassemble(&out, &other);
    EXPECT_EQ(std::memcmp(&out, &zero, sizeof out), 0);
    ast_datarecord_240_disassemble(&out, nullptr);
    EXPECT_EQ(std::memcmp(&out, &zero, sizeof out), 0);
    other = d.record;
    other.item_count = 0;
    ast_datarecord_240_disassemble(&out, &other);
    EXPECT_EQ(out.valid, 1);
    EXPECT_EQ(out.i000.valid, 0u);
}
