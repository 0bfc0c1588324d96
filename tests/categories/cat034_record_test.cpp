// CAT034 at record level: disassembled members, the items without one, the
// accessors, and assembling records back into the octets they came from.
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "kovrel/cat034.h"
#include "kovrel/core.h"
#include "kovrel/datarecord.h"
#include "kovrel/uap.h"
#include "support/log_capture.h"
#include "support/record_walk.h"

using kovrel_test::LogCapture;
using kovrel_test::Octets;

namespace {

// 010, 000 (type 3), 030, 050 (COM, PSR, MDS), 060 (COM, MDS), 070 (two
// counters), 120 and SPF.
const Octets kStatus = {0xE7, 0x92, 0x19, 0x0D, 0x03, 0x6A, 0x2B, 0x40, 0x94, 0x00, 0x40, 0x00, 0x00,
                        0x84, 0x22, 0xC0, 0x02, 0x08, 0x10, 0x10, 0x20, 0x00, 0x64, 0x28, 0x00,
                        0x00, 0x05, 0x00, 0x00, 0x03, 0xDE, 0xAD};

AstDataRecord decode(const Octets &o) {
    AstDataRecord r;
    ast_datarecord_decode(&r, o.data(), o.size(), 34, &AST_UAP_STANDARD);
    return r;
}

// Disassembles into a structure holding garbage first.
void disassemble(AstRecord034 &d, const AstDataRecord *r) {
    std::memset(&d, 0x5A, sizeof d);
    ast_datarecord_034_disassemble(&d, r);
}

}  // namespace

TEST(Cat034Record, DisassemblesEveryItemWithAMember) {
    const AstDataRecord r = decode(kStatus);
    ASSERT_EQ(r.valid, 1);
    LogCapture log;
    AstRecord034 d;
    disassemble(d, &r);
    ASSERT_EQ(d.valid, 1u);
    EXPECT_EQ(d.i010.valid, 1u);
    EXPECT_EQ(d.i010.sac, 25u);
    EXPECT_EQ(d.i010.sic, 13u);
    EXPECT_EQ(d.i000.value, 3u);
    EXPECT_EQ(d.i030.raw, 0x6A2B40u);
    EXPECT_EQ(d.i020.valid, 0u);  // absent members stay zero
    EXPECT_EQ(d.i041.valid, 0u);
    EXPECT_EQ(d.i050.valid, 1u);
    EXPECT_EQ(d.i050.com_present, 1);
    EXPECT_EQ(d.i050.com_msc, 1);
    EXPECT_EQ(d.i050.com_tsv, 1);
    EXPECT_EQ(d.i050.ssr_present, 0);
    EXPECT_EQ(d.i050.subfields.spans[5].length, 2u);
    EXPECT_EQ(d.i060.com_red_rdp, 2u);
    EXPECT_EQ(d.i060.mds_red_rad, 6u);
    ASSERT_EQ(d.i070.count, 2u);
    EXPECT_EQ(d.i070.counters[0].typ, 1u);
    EXPECT_EQ(d.i070.counters[0].count, 16u);
    EXPECT_EQ(d.i070.counters[1].typ, 2u);
    EXPECT_EQ(d.i070.counters[1].count, 32u);
    EXPECT_EQ(d.i070.counters[2].count, 0u);
    EXPECT_EQ(d.i120.height.raw, 100);
    EXPECT_DOUBLE_EQ(d.i120.latitude.value, 56.25);
    // SPF has no member: reported at WARNING, blank before the colon.
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Failed to disassemble dataitem : I034/SPF."));
    EXPECT_EQ(log.size(), 1u);

    // Not a record of this category, or not a valid one: all zero.
    AstDataRecord other = r;
    other.category = 2;
    disassemble(d, &other);
    EXPECT_EQ(d.valid, 0u);
    EXPECT_EQ(d.i010.valid, 0u);
    other = r;
    other.valid = 0;
    disassemble(d, &other);
    EXPECT_EQ(d.valid, 0u);
    EXPECT_EQ(d.i050.com_present, 0);
}

TEST(Cat034Record, AccessorsReadTheFirstItem) {
    struct Case {
        Octets wire;
        uint32_t msg_valid, msg_value;
        uint32_t sac;  // 0: no SAC/SIC
    };
    // FSPEC 0xC0: 010, 000; FSPEC 0x40: 000 alone.
    const Case cases[] = {
        {{0xC0, 0x19, 0x0D, 0x01}, 1, 1, 25},  // North marker
        {{0xC0, 0x19, 0x0D, 0x02}, 1, 2, 25},  // sector crossing
        {{0xC0, 0x07, 0x0D, 0x03}, 0, 0, 7},   // geographical filtering: no message type
        {{0xC0, 0x07, 0x0D, 0x04}, 0, 0, 7},
        {{0xC0, 0x07, 0x0D, 0x05}, 0, 0, 7},
        {{0x40, 0x01}, 1, 1, 0},
        {{0x80, 0x19, 0x0D}, 0, 0, 25},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(::testing::PrintToString(c.wire));
        const AstDataRecord r = decode(c.wire);
        ASSERT_EQ(r.valid, 1);
        AstRecordMsgType m;
        ast_datarecord_034_get_msgtype(&m, &r);
        EXPECT_EQ(m.valid, c.msg_valid);
        EXPECT_EQ(m.value, c.msg_value);
        AstDataSourceIdentifier id;
        ast_datarecord_034_get_sacsic(&id, &r);
        EXPECT_EQ(id.valid, c.sac ? 1u : 0u);
        EXPECT_EQ(id.sac, c.sac);
        AstTimeOfDay tod;
        ast_datarecord_034_get_timeofday(&tod, &r);
        EXPECT_EQ(tod.valid, 0u);
    }
    const AstDataRecord r = decode(kStatus);
    AstTimeOfDay tod;
    ast_datarecord_034_get_timeofday(&tod, &r);
    ASSERT_EQ(tod.valid, 1u);
    EXPECT_EQ(tod.hour, 15u);
    EXPECT_EQ(tod.minute, 5u);
    EXPECT_EQ(tod.second, 58u);
    EXPECT_EQ(tod.millisecond, 500u);
    // An invalid record answers nothing.
    AstDataRecord invalid = decode({0xC0, 0x19, 0x0D, 0x01});
    invalid.valid = 0;
    AstRecordMsgType m;
    ast_datarecord_034_get_msgtype(&m, &invalid);
    EXPECT_EQ(m.valid, 0u);
    AstDataSourceIdentifier id;
    ast_datarecord_034_get_sacsic(&id, &invalid);
    EXPECT_EQ(id.valid, 0u);
}

TEST(Cat034Record, AssemblesTheOctetsItWasDisassembledFrom) {
    const Octets records[] = {
        {0xF0, 0x19, 0x0D, 0x01, 0x6A, 0x2B, 0x40, 0x00},              // 010, 000, 030, 020
        {0xF8, 0x19, 0x0D, 0x02, 0x6A, 0x2B, 0x40, 0x40, 0x02, 0x00},  // and 041
        {0x40, 0x04},                                                  // 000 alone
        {0xE0, 0xFF, 0xFF, 0x01, 0xA8, 0xBF, 0xFF},                    // highest SAC/SIC and time
    };
    for (const Octets &wire : records) {
        SCOPED_TRACE(::testing::PrintToString(wire));
        const AstDataRecord r = decode(wire);
        ASSERT_EQ(r.valid, 1);
        AstRecord034 d;
        disassemble(d, &r);
        std::vector<uint8_t> buffer(wire.size() + 4, 0xEE);
        AstDataRecord out;
        ast_datarecord_034_assemble(&out, buffer.data(), wire.size(), &d, &AST_UAP_STANDARD);
        ASSERT_EQ(out.valid, 1);
        EXPECT_EQ(Octets(buffer.begin(), buffer.begin() + out.length), wire);
        EXPECT_EQ(buffer[wire.size()], 0xEE);
        // One octet short: invalid, nothing written past the size given.
        std::vector<uint8_t> small(wire.size(), 0xEE);
        ast_datarecord_034_assemble(&out, small.data(), wire.size() - 1, &d, &AST_UAP_STANDARD);
        EXPECT_EQ(out.valid, 0);
        EXPECT_EQ(small.back(), 0xEE);
    }

    // The status, processing mode, counters and position come back through
    // the record's own encoders (PSR and MDS of I034/050 from their spans);
    // SPF, which has no member, is left out.
    AstRecord034 d;
    const AstDataRecord status = decode(kStatus);
    disassemble(d, &status);
    std::vector<uint8_t> buffer(64, 0xEE);
    AstDataRecord out;
    ast_datarecord_034_assemble(&out, buffer.data(), buffer.size(), &d, &AST_UAP_STANDARD);
    ASSERT_EQ(out.valid, 1);
    Octets expected(kStatus.begin(), kStatus.end() - 3);
    expected[1] = 0x90;
    EXPECT_EQ(Octets(buffer.begin(), buffer.begin() + out.length), expected);
    // Values out of their fields' range make the record invalid.
    struct Bad {
        const char *what;
        void (*spoil)(AstRecord034 &);
    };
    const Bad bad[] = {
        {"RDPC 3", [](AstRecord034 &r) { r.i050.com_rdpc = 3; }},
        {"channels 4", [](AstRecord034 &r) { r.i050.ssr_ch_ab = 4; r.i050.ssr_present = 1; }},
        {"RED-RDP 8", [](AstRecord034 &r) { r.i060.com_red_rdp = 8; }},
        {"STC 4", [](AstRecord034 &r) { r.i060.psr_stc = 4; r.i060.psr_present = 1; }},
        {"REP 17", [](AstRecord034 &r) { r.i070.count = 17; }},
        {"TYP 32", [](AstRecord034 &r) { r.i070.counters[1].typ = 32; }},
        {"COUNT 2048", [](AstRecord034 &r) { r.i070.counters[0].count = 2048; }},
        {"height 32768", [](AstRecord034 &r) { r.i120.height.raw = 32768; }},
        {"latitude 2^23", [](AstRecord034 &r) { r.i120.latitude.raw = 1 << 23; }},
        // A compound item without a subfield could not be read back.
        {"050 empty", [](AstRecord034 &r) { r.i050.com_present = r.i050.ssr_present = 0; r.i050.subfields.valid = 0; }},
        {"060 empty", [](AstRecord034 &r) { r.i060.com_present = r.i060.mds_present = 0; }},
    };
    for (const Bad &b : bad) {
        AstRecord034 spoilt = d;
        b.spoil(spoilt);
        ast_datarecord_034_assemble(&out, buffer.data(), buffer.size(), &spoilt, &AST_UAP_STANDARD);
        EXPECT_EQ(out.valid, 0) << b.what;
    }
    d.i010.sac = 256;
    ast_datarecord_034_assemble(&out, buffer.data(), buffer.size(), &d, &AST_UAP_STANDARD);
    EXPECT_EQ(out.valid, 0);
}
