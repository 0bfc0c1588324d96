// CAT048 items served by the common items: summaries, capabilities and the
// structured decode and encode reached through the item dispatch.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <vector>

#include "kovrel/cat048.h"
#include "kovrel/datarecord.h"
#include "support/record_walk.h"
#include "support/served.h"

using kovrel_test::expect_served;
using kovrel_test::Octets;

namespace {

}  // namespace

TEST(Cat048, CommonItemsOfATrackReport) {
    const Octets track = {0xcd, 0xf5, 0x31, 0x06,              // FSPEC
                          0x19, 0x01,                          // 010
                          0x58, 0x78, 0x65,                    // 140
                          0x0a, 0x3f,                          // 070
                          0x05, 0x78,                          // 090
                          0x3c, 0x65, 0x4a,                    // 220
                          0x10, 0xc2, 0x31, 0xcb, 0x38, 0x20,  // 240
                          0x02,                                // 250: BDS 2,0 and 6,0
                          0x20, 0x10, 0xc2, 0x31, 0xcb, 0x38, 0x20, 0x20,
                          0x80, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x60,
                          0x01, 0x23,                          // 161
                          0x08, 0x00, 0x40, 0x00,              // 200
                          0x08, 0x00,                          // 080
                          0x84, 0x40, 0x00, 0x00,              // 100
                          0x03, 0xab, 0xcd,                    // SPF
                          0x02, 0x00};                         // REF
    AstDataRecord r;
    ast_datarecord_decode(&r, track.data(), track.size(), 48, &AST_UAP_STANDARD);
    ASSERT_EQ(r.valid, 1);
    expect_served(r, {{48010, "SAC:025 SIC:001", 0xf, sizeof(AstDataSourceIdentifier)},
                      {48140, "TOD:12:34:56.789", 0xf, sizeof(AstTimeOfDay)},
                      {48070, "MODE_3/A:5077", 0xf, sizeof(AstMode3aCode)},
                      {48090, "MODE_C:0350", 0xf, sizeof(AstModeCCode)},
                      {48220, "ADDR:3C654A", 0xf, sizeof(AstTargetAddress)},
                      {48240, "ACID:DLH123  ", 0xf, sizeof(AstAircraftId)},
                      {48250, "BDS:2,0 6,0", 0x7, sizeof(AstModesMb)},
                      {48161, "TRACK_NUM:0291", 0xb, sizeof(AstTrackNumber)},  // no detail view
                      {48200, "SPD:450.00 HDG:90.00", 0xf, sizeof(AstVelocityPolar)},
                      {48080, "QTY:aBCD", 0x7, sizeof(AstMode3aConfidence)},
                      {48100, "CODE:5000 QTY:ABCD NOT_VALIDATED", 0x7, sizeof(AstModeCConfidence)},
                      {48999, "SPECIAL_PURPOSE", 0x3, sizeof(AstSpecialPurposeField)},
                      {48998, "RESERVED_EXPANSION", 0x3, sizeof(AstReservedExpansionField)}});

    // The decoded structures point into the record.
    AstModesMb mb;
    AstDataItemValue v;
    ast_dataitem_decode(&v, &mb, sizeof mb, &r.items[6]);
    EXPECT_EQ(mb.rep, 2u);
    EXPECT_EQ(mb.bds[1].id, 0x60u);
    EXPECT_EQ(mb.bds[1].data, r.items[6].data + 9);
    AstTrackNumber number;
    ast_dataitem_decode(&v, &number, sizeof number, &r.items[7]);
    EXPECT_EQ(number.number, 0x123u);
    EXPECT_EQ(number.twelve_bit, 1);
    AstSpecialPurposeField spf;
    ast_dataitem_decode(&v, &spf, sizeof spf, &r.items[11]);
    EXPECT_EQ(spf.length, 2u);
    EXPECT_EQ(spf.data, r.items[11].data + 1);
}
