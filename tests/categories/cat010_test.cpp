#include <gtest/gtest.h>

#include <cstddef>
#include <vector>

#include "kovrel/cat010.h"
#include "kovrel/items.h"
#include "kovrel/core.h"
#include "kovrel/dataitem.h"
#include "kovrel/uap.h"
#include "support/log_capture.h"
#include "support/record_walk.h"

using kovrel_test::LogCapture;

namespace {

uint64_t size_of(std::vector<uint8_t> o, AstItemId id, size_t available = SIZE_MAX) {
    return ast_dataitem_get_size(o.data(), available == SIZE_MAX ? o.size() : available, id);
}

}  // namespace

TEST(Cat010, ThreeOctetDescriptorsAndStatus) {
    LogCapture log;
    // I010/020, I010/170 and I010/270 reach three octets in edition 1.1.
    for (AstItemId id : {10020u, 10170u, 10270u}) {
        SCOPED_TRACE(id);
        EXPECT_EQ(size_of({0x40, 0xFF, 0xFF}, id), 1u);
        EXPECT_EQ(size_of({0x41, 0x01, 0x02, 0xFF}, id), 3u);
        EXPECT_EQ(size_of({0x41, 0x01}, id), 0u);
        EXPECT_EQ(size_of({0x41, 0x01, 0x01}, id), 0u);
    }
    EXPECT_EQ(log.size(), 0u);
    EXPECT_EQ(size_of({0x41, 0x01, 0x01, 0x00}, 10020), 3u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Dataitem length exceed max: 3"));
}

TEST(Cat010, FixedAndRepetitiveItems) {
    const std::vector<uint8_t> seven = {0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07, 0x08};
    EXPECT_EQ(size_of(seven, 10245), 7u);  // status octet and six characters
    EXPECT_EQ(size_of(seven, 10245, 6), 0u);
    EXPECT_EQ(size_of(seven, 10041), 8u);
    EXPECT_EQ(size_of(seven, 10041, 7), 0u);
    EXPECT_EQ(size_of(seven, 10500), 4u);
    // Presences are two octets, MB data eight.
    EXPECT_EQ(size_of({0x03, 1, 2, 3, 4, 5, 6}, 10280), 7u);
    EXPECT_EQ(size_of({0x03, 1, 2, 3, 4, 5}, 10280), 0u);
    std::vector<uint8_t> mb(17, 0x00);
    mb[0] = 2;
    EXPECT_EQ(size_of(mb, 10250), 17u);
    EXPECT_EQ(size_of(mb, 10250, 16), 0u);
}

TEST(Cat010, Names) {
    LogCapture log;
    EXPECT_STREQ(ast_dataitem_get_name(10270), "Target Size and Orientation");
    EXPECT_STREQ(ast_dataitem_010_get_name(10200), "Calculated Track Velocity in Polar Co-ordinates");
    EXPECT_STREQ(ast_dataitem_010_get_name(10998), "Reserved Expansion Field");
    EXPECT_EQ(log.size(), 0u);
    EXPECT_STREQ(ast_dataitem_010_get_name(10997), "Unknown CAT010 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I010/RFS."));
    EXPECT_STREQ(ast_dataitem_010_get_name(20020), "Unknown CAT010 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I020/020."));
}

TEST(Cat010, RecordScansBackToBack) {
    // One item per FRN of the standard UAP (FRN 26 is spare), in FRN order.
    const std::vector<std::vector<uint8_t>> items = {
        {0x00, 0x07},                                      // I010/010
        {0x01},                                            // I010/000
        {0x21, 0x01, 0x80},                                // I010/020
        {0x00, 0x96, 0x00},                                // I010/140
        {0x1F, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00},  // I010/041
        {0x00, 0x10, 0x40, 0x00},                          // I010/040
        {0xFF, 0x00, 0x00, 0x20},                          // I010/042
        {0x00, 0x20, 0x80, 0x00},                          // I010/200
        {0x00, 0x01, 0xFF, 0xFF},                          // I010/202
        {0x01, 0x23},                                      // I010/161
        {0x41, 0x00},                                      // I010/170
        {0x0A, 0xBC},                                      // I010/060
        {0x40, 0x12, 0x34},                                // I010/220
        {0x00, 0x04, 0x20, 0xF1, 0xCB, 0x3C, 0x20},        // I010/245
        {0x01, 0, 0, 0, 0, 0, 0, 0, 0x20},                 // I010/250
        {0x02},                                            // I010/300
        {0x01, 0x40},                                      // I010/090
        {0x00, 0x64},                                      // I010/091
        {0x15, 0x2A},                                      // I010/270
        {0x00},                                            // I010/550
        {0x81},                                            // I010/310
        {0x01, 0x02, 0x00, 0x03},                          // I010/500
        {0x02, 0x01, 0x02, 0x03, 0x04},                    // I010/280
        {0x7F},                                            // I010/131
        {0x01, 0xFF},                                      // I010/210
        {},                                                // spare
        {0x02, 0x00},                                      // I010/SPF
        {0x03, 0x01, 0x02},                                // I010/REF
    };
    ASSERT_EQ(ast_uap_max_frn(&AST_UAP_STANDARD, 10), items.size());
    kovrel_test::expect_frn_items(10, items);
}

namespace {

constexpr uint32_t kDec = AST_DATAITEM_CAP_DECODE, kSum = AST_DATAITEM_CAP_SUMMARY;
constexpr uint32_t kDet = AST_DATAITEM_CAP_DETAIL, kEnc = AST_DATAITEM_CAP_ENCODE;

struct Wired {
    AstItemId id;
    kovrel_test::Octets octets;
    const char *summary;  // "NOT_IMPLEMENTED" where the row has none
    uint32_t caps;
    size_t storage;       // size of the decoded structure
};

}  // namespace

// The items of CAT008, 010, 015, 016, 019 and 020 served by the common
// items: delimited, summarised (WGS-84 LSBs and the 16-bit track number are
// chosen by identifier), decoded into storage of exactly the structure's
// size, and written back octet for octet where the row has an encoder.
TEST(CommonItemRows, Cat008To020) {
    const size_t kSource = sizeof(AstDataSourceIdentifier), kTime = sizeof(AstTimeOfDay);
    const size_t kType = sizeof(AstMessageType), kField = sizeof(AstExplicitField);
    const std::vector<Wired> rows = {
        {8010, {0x01, 0x07}, "SAC:001 SIC:007", kDec | kSum | kDet | kEnc, kSource},
        {8000, {0xFE}, "NOT_IMPLEMENTED", kDec | kEnc, kType},
        {8090, {0xA8, 0xBF, 0xFF}, "TOD:23:59:59.992", kDec | kSum | kDet | kEnc, kTime},
        {8999, {0x02, 0x55}, "SPECIAL_PURPOSE", kDec | kSum, kField},
        {8997, {0x03, 0x01, 0x02}, "RANDOM_FIELD_SEQUENCING", kDec | kSum, kField},

        {10010, {0x00, 0x07}, "SAC:000 SIC:007", kDec | kSum | kDet | kEnc, kSource},
        {10000, {0x01}, "NOT_IMPLEMENTED", kDec | kEnc, kType},
        {10140, {0x00, 0x96, 0x00}, "TOD:00:05:00.000", kDec | kSum | kDet | kEnc, kTime},
        {10041, {0x20, 0, 0, 0, 0xF0, 0, 0, 0}, "WGS84:450000N0223000W", kDec | kSum | kDet | kEnc,
         sizeof(AstPositionWgs84)},
        {10200, {0x01, 0x00, 0x40, 0x00}, "SPD:56.25 HDG:90.00", kDec | kSum | kDet | kEnc, sizeof(AstVelocityPolar)},
        {10161, {0x01, 0x23}, "TRACK_NUM:0291", kDec | kSum | kEnc, sizeof(AstTrackNumber)},
        {10060, {0x2A, 0x3F}, "MODE_3/A:5077 SMOOTHED", kDec | kSum | kDet | kEnc, sizeof(AstMode3aCode)},
        {10220, {0x40, 0x12, 0x34}, "ADDR:401234", kDec | kSum | kDet | kEnc, sizeof(AstTargetAddress)},
        {10245, {0x80, 0x2C, 0xC3, 0x71, 0xCB, 0x3D, 0x20}, "CALLSIGN:KLM1234 ", kDec | kSum | kDet | kEnc,
         sizeof(AstTargetId)},
        {10250, {0x01, 1, 2, 3, 4, 5, 6, 7, 0x40}, "BDS:4,0", kDec | kSum | kDet, sizeof(AstModesMb)},
        {10090, {0x80, 0x64}, "MODE_C:0025 NOT_VALIDATED", kDec | kSum | kDet | kEnc, sizeof(AstModeCCode)},
        {10091, {0x00, 0x64}, "H:625.00 LSB:FT", kDec | kSum | kDet | kEnc, sizeof(AstHeight)},
        {10999, {0x02, 0x00}, "SPECIAL_PURPOSE", kDec | kSum, kField},
        {10998, {0x03, 0x01, 0x02}, "RESERVED_EXPANSION", kDec | kSum, kField},

        {15010, {0x10, 0x20}, "SAC:016 SIC:032", kDec | kSum | kDet | kEnc, kSource},
        {15015, {0x2A}, "SVC_ID:042", kDec | kSum | kEnc, sizeof(AstServiceId)},
        {15145, {0x00, 0x00, 0x81}, "TOD:00:00:01.007", kDec | kSum | kDet | kEnc, kTime},
        {15161, {0xF1, 0x23}, "TRACK_NUM:61731", kDec | kSum | kEnc, sizeof(AstTrackNumber)},
        {15999, {0x01}, "SPECIAL_PURPOSE", kDec | kSum, kField},

        {16010, {0x02, 0x03}, "SAC:002 SIC:003", kDec | kSum | kDet | kEnc, kSource},
        {16015, {0x07}, "SVC_ID:007", kDec | kSum | kEnc, sizeof(AstServiceId)},
        {16000, {0x02}, "NOT_IMPLEMENTED", kDec | kEnc, kType},
        {16140, {0x00, 0x00, 0x80}, "TOD:00:00:01.000", kDec | kSum | kDet | kEnc, kTime},
        {16400, {0xE0, 0, 0, 0, 0x40, 0, 0, 0}, "WGS84:450000S0900000E", kDec | kSum | kDet | kEnc,
         sizeof(AstPositionWgs84)},
        {16999, {0x02, 0xFF}, "SPECIAL_PURPOSE", kDec | kSum, kField},

        {19010, {0x00, 0x01}, "SAC:000 SIC:001", kDec | kSum | kDet | kEnc, kSource},
        {19000, {0x03}, "NOT_IMPLEMENTED", kDec | kEnc, kType},
        {19140, {0x00, 0x3C, 0x00}, "TOD:00:02:00.000", kDec | kSum | kDet | kEnc, kTime},
        {19600, {0x10, 0, 0, 0, 0xE0, 0, 0, 0}, "WGS84:450000N0900000W", kDec | kSum | kDet | kEnc,
         sizeof(AstPositionWgs84)},
        {19998, {0x02, 0x01}, "RESERVED_EXPANSION", kDec | kSum, kField},
        {19999, {0x02, 0x01}, "SPECIAL_PURPOSE", kDec | kSum, kField},

        {20010, {0x00, 0x0A}, "SAC:000 SIC:010", kDec | kSum | kDet | kEnc, kSource},
        {20140, {0x00, 0x00, 0x00}, "TOD:00:00:00.000", kDec | kSum | kDet | kEnc, kTime},
        {20041, {0x00, 0x80, 0, 0, 0x00, 0x40, 0, 0}, "WGS84:450000N0223000E", kDec | kSum | kDet | kEnc,
         sizeof(AstPositionWgs84)},
        {20042, {0x00, 0x00, 0x64, 0xFF, 0xFF, 0x38}, "X:50.0 Y:-100.0 LSB:M", kDec | kSum | kEnc,
         sizeof(AstPositionCartesian)},
        {20161, {0x0F, 0xFF}, "TRACK_NUM:4095", kDec | kSum | kEnc, sizeof(AstTrackNumber)},
        {20070, {0xC1, 0x23}, "MODE_3/A:0443 NOT_VALIDATED GARBLED", kDec | kSum | kDet | kEnc, sizeof(AstMode3aCode)},
        {20050, {0x0A, 0x3F}, "MODE_2:5077", kDec | kSum | kDet | kEnc, sizeof(AstMode3aCode)},
        {20050, {0xE1, 0x23}, "MODE_2:0443 NOT_VALIDATED GARBLED SMOOTHED", kDec | kSum | kDet | kEnc,
         sizeof(AstMode3aCode)},
        {20202, {0x00, 0x28, 0xFF, 0xD8}, "VX:10.00 VY:-10.00 LSB:M/S", kDec | kSum | kEnc,
         sizeof(AstVelocityCartesian)},
        {20090, {0x3F, 0xFF}, "MODE_C:0000", kDec | kSum | kDet | kEnc, sizeof(AstModeCCode)},
        {20100, {0x05, 0x00, 0x01, 0x00}, "CODE:3000 QTY:aBCD", kDec | kSum | kDet | kEnc,
         sizeof(AstModeCConfidence)},
        {20100, {0xCA, 0x5A, 0x0F, 0xF0}, "CODE:4631 QTY:abcd NOT_VALIDATED GARBLED", kDec | kSum | kDet | kEnc,
         sizeof(AstModeCConfidence)},
        {20220, {0xAB, 0xCD, 0xEF}, "ADDR:ABCDEF", kDec | kSum | kDet | kEnc, sizeof(AstTargetAddress)},
        {20245, {0x40, 0x04, 0x20, 0xF1, 0xCB, 0x38, 0x20}, "REGISTRATION:ABC123  ", kDec | kSum | kDet | kEnc,
         sizeof(AstTargetId)},
        {20110, {0xFF, 0x9C}, "H:-625.00 LSB:FT", kDec | kSum | kDet | kEnc, sizeof(AstHeight)},
        {20105, {0x00, 0x01}, "H:6.25 LSB:FT", kDec | kSum | kDet | kEnc, sizeof(AstHeight)},
        {20250, {0x02, 1, 2, 3, 4, 5, 6, 7, 0x40, 1, 2, 3, 4, 5, 6, 7, 0x50}, "BDS:4,0 5,0", kDec | kSum | kDet,
         sizeof(AstModesMb)},
        {20998, {0x01}, "RESERVED_EXPANSION", kDec | kSum, kField},
        {20999, {0x01}, "SPECIAL_PURPOSE", kDec | kSum, kField},
    };
    for (const Wired &w : rows) {
        SCOPED_TRACE(w.id);
        AstDataItem item;
        ast_dataitem_scan(&item, w.octets.data(), w.octets.size(), w.id);
        EXPECT_EQ(item.length, w.octets.size());
        if (item.valid != 1) continue;
        EXPECT_EQ(ast_dataitem_get_capabilities(w.id), w.caps);
        char text[16384];
        ast_dataitem_get_summary(text, sizeof text, &item);
        EXPECT_STREQ(text, w.summary);
        ast_dataitem_get_detail_html(text, sizeof text, &item);
        EXPECT_EQ(text[0] != '\0', (w.caps & kDet) != 0);

        alignas(std::max_align_t) unsigned char storage[sizeof(AstModesMb)];
        AstDataItemValue value;
        ast_dataitem_decode(&value, storage, w.storage - 1, &item);
        EXPECT_EQ(value.valid, 0);
        EXPECT_EQ(value.value, nullptr);
        ast_dataitem_decode(&value, storage, w.storage, &item);
        EXPECT_EQ(value.valid, 1);
        EXPECT_EQ(value.id, w.id);
        EXPECT_EQ(value.value, storage);
        if (value.valid != 1 || (w.caps & kEnc) == 0) continue;
        uint8_t buffer[16] = {};
        AstDataItem written;
        ast_dataitem_encode(&written, buffer, sizeof buffer, &value);
        EXPECT_EQ(written.valid, 1);
        EXPECT_EQ(written.id, w.id);
        EXPECT_EQ(kovrel_test::Octets(buffer, buffer + written.length), w.octets);
    }
}
