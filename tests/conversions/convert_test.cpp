// The conversions CAT048 -> CAT001 and CAT034 -> CAT002, from the wire to
// the wire: a source record is decoded, disassembled, converted and
// assembled, and the octets that come out are compared with the expected
// ones. A few members are looked at directly where the wire cannot show
// them (values left 0, the whole time of day, the sector's azimuth).
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "kovrel/convert.h"
#include "kovrel/core.h"
#include "kovrel/datarecord.h"
#include "kovrel/uap.h"
#include "support/log_capture.h"

using kovrel_test::LogCapture;

namespace {

using Octets = std::vector<uint8_t>;

AstRecord048 disassemble_048(const Octets &wire) {
    AstDataRecord r;
    ast_datarecord_decode(&r, wire.data(), wire.size(), 48, &AST_UAP_STANDARD);
    EXPECT_EQ(r.valid, 1);
    EXPECT_EQ(r.length, wire.size());
    AstRecord048 d;
    ast_datarecord_048_disassemble(&d, &r);
    return d;
}

AstRecord034 disassemble_034(const Octets &wire) {
    AstDataRecord r;
    ast_datarecord_decode(&r, wire.data(), wire.size(), 34, &AST_UAP_STANDARD);
    EXPECT_EQ(r.valid, 1);
    EXPECT_EQ(r.length, wire.size());
    AstRecord034 d;
    ast_datarecord_034_disassemble(&d, &r);
    return d;
}

// Assembles into a buffer with a canary after it; checks that a buffer one
// octet short is refused without a write past it. Empty when invalid.
template <typename Record, typename Assemble>
Octets assembled(const Record &rec, Assemble assemble) {
    Octets buffer(300, 0xA5);
    AstDataRecord out;
    assemble(&out, buffer.data(), buffer.size() - 1, &rec);
    EXPECT_EQ(buffer.back(), 0xA5);
    if (out.valid != 1) return {};
    const size_t n = out.length;
    Octets tight(n, 0xA5);
    tight.push_back(0xA5);
    assemble(&out, tight.data(), n - 1, &rec);
    EXPECT_EQ(out.valid, 0);
    EXPECT_EQ(tight[n - 1], 0xA5);
    return Octets(buffer.begin(), buffer.begin() + static_cast<std::ptrdiff_t>(n));
}

Octets to_001(const Octets &wire048) {
    const AstRecord048 src = disassemble_048(wire048);
    const AstRecord001 rec = ast_datarecord_convert_048_001(&src);
    EXPECT_EQ(rec.valid, 1u);
    return assembled(rec, [](AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord001 *in) {
        ast_datarecord_001_assemble(out, buffer, size, in, nullptr);
    });
}

Octets to_002(const Octets &wire034) {
    const AstRecord034 src = disassemble_034(wire034);
    const AstRecord002 rec = ast_datarecord_convert_034_002(&src);
    EXPECT_EQ(rec.valid, 1u);
    return assembled(rec, [](AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord002 *in) {
        ast_datarecord_002_assemble(out, buffer, size, in, &AST_UAP_STANDARD);
    });
}

std::string hex(const Octets &o) {
    std::string s;
    char two[4];
    for (size_t i = 0; i < o.size(); ++i) {
        std::snprintf(two, sizeof two, i ? " %02X" : "%02X", o[i]);
        s += two;
    }
    return s;
}

struct Case {
    const char *what;
    Octets source;
    const char *expected;  // hexadecimal octets of the converted record
};

// A track: 010, 140 (12:00:01.289), 020 (roll-call, chain 2, SPI, ME), 040,
// 070 (L set), 090, 130, 220, 240, 250, 161, 042, 200, 170 and 230.
const Octets kTrack048 = {
    0xFF, 0xFF, 0x02,                         // FSPEC
    0x19, 0x0D,                               // 010 SAC 25 SIC 13
    0x54, 0x60, 0xA5,                         // 140
    0xAD, 0x10,                               // 020 TYP 5, RDP 2, SPI; ME
    0x12, 0x34, 0x40, 0x00,                   // 040 RHO 18.2 NM, THETA 90
    0x22, 0x9C,                               // 070 L, 1234
    0x05, 0x78,                               // 090 FL 350
    0x80, 0x14,                               // 130 SRL
    0x4C, 0xA1, 0x23,                         // 220
    0x04, 0xD3, 0x22, 0x0C, 0x38, 0x20,       // 240
    0x01, 0xC0, 0x78, 0x00, 0x31, 0xBC, 0x00, 0x00, 0x40,  // 250, BDS 4,0
    0x0A, 0xBC,                               // 161
    0xFF, 0xFD, 0x01, 0x01,                   // 042 X -3, Y 257 (1/128 NM)
    0x02, 0x00, 0x80, 0x00,                   // 200
    0x52,                                     // 170 RAD SSR, DOU, CDM climbing
    0x20, 0x40,                               // 230
};

TEST(Convert048To001, RecordsComeOutAsTheirCat001Octets) {
    const Case cases[] = {
        // Track UAP: 010 020 161 040 042 200 070 | 090 141 170. 040 goes out
        // as zeros (values only), X/Y halved, the time of day modulo 512 s.
        {"full track", kTrack048,
         "FF C4 19 0D AD 10 0A BC 00 00 00 00 FF FF 00 80 02 00 80 00 22 9C 05 78 60 A5 78"},
        // Plot UAP: 010 020 040 070 090 130 141.
        {"plot: no I048/161", {0xA0, 0x19, 0x0D, 0x80}, "C0 19 0D 20"},
        {"TYP 0 no detection", {0xA0, 0x19, 0x0D, 0x00}, "C0 19 0D 00"},
        {"TYP 1 PSR", {0xA0, 0x19, 0x0D, 0x20}, "C0 19 0D 10"},
        {"TYP 2 SSR", {0xA0, 0x19, 0x0D, 0x40}, "C0 19 0D 20"},
        {"TYP 3 PSR+SSR", {0xA0, 0x19, 0x0D, 0x60}, "C0 19 0D 30"},
        {"TYP 5 roll-call", {0xA0, 0x19, 0x0D, 0xA0}, "C0 19 0D 20"},
        {"TYP 6 PSR+all-call", {0xA0, 0x19, 0x0D, 0xC0}, "C0 19 0D 30"},
        {"TYP 7 PSR+roll-call", {0xA0, 0x19, 0x0D, 0xE0}, "C0 19 0D 30"},
        // SIM, RDP 2, SPI, RAB and octet 2 (TST, MI; ERR and XPP dropped).
        {"descriptor flags", {0xA0, 0x19, 0x0D, 0x5F, 0xE8}, "C0 19 0D 6F 88"},
        // Octet 2 holding only what CAT001 lacks: no second octet.
        {"ERR and XPP only", {0xA0, 0x19, 0x0D, 0x41, 0x60}, "C0 19 0D 20"},
        {"time of day 1 s", {0xC0, 0x19, 0x0D, 0x00, 0x00, 0x80}, "82 19 0D 00 80"},
        {"time of day 23:59:59.99", {0xC0, 0x19, 0x0D, 0xA8, 0xBF, 0xFF}, "82 19 0D BF FF"},
        {"time of day 512 s", {0xC0, 0x19, 0x0D, 0x01, 0x00, 0x00}, "82 19 0D 00 00"},
        {"measured position", {0x90, 0x19, 0x0D, 0xFF, 0xFF, 0xFF, 0xFF}, "A0 19 0D 00 00 00 00"},
        // 070 V G L and code; 090 V G and a negative flight level.
        {"mode 3/A and C", {0x8C, 0x19, 0x0D, 0xE2, 0x9C, 0xFF, 0xFC}, "98 19 0D E2 9C FF FC"},
        {"mode C plain", {0x84, 0x19, 0x0D, 0x05, 0x78}, "88 19 0D 05 78"},
        // 010 161 042: X and Y halved toward zero.
        {"X -3 Y 3", {0x81, 0x18, 0x19, 0x0D, 0x00, 0x07, 0xFF, 0xFD, 0x00, 0x03}, "A8 19 0D 00 07 FF FF 00 01"},
        {"X -1 Y -2", {0x81, 0x18, 0x19, 0x0D, 0x00, 0x07, 0xFF, 0xFF, 0xFF, 0xFE}, "A8 19 0D 00 07 00 00 FF FF"},
        {"X extremes", {0x81, 0x18, 0x19, 0x0D, 0x00, 0x07, 0x80, 0x00, 0x7F, 0xFF}, "A8 19 0D 00 07 C0 00 3F FF"},
        // 010 161 170 without 020: chain 1. FSPEC of the track 010 161 | 170.
        {"170 RAD SSR, CDM", {0x81, 0x12, 0x19, 0x0D, 0x00, 0x07, 0x52}, "A1 04 19 0D 00 07 70"},
        {"170 RAD combined", {0x81, 0x12, 0x19, 0x0D, 0x00, 0x07, 0x00}, "A1 04 19 0D 00 07 40"},
        {"170 RAD PSR", {0x81, 0x12, 0x19, 0x0D, 0x00, 0x07, 0x20}, "A1 04 19 0D 00 07 00"},
        {"170 RAD invalid", {0x81, 0x12, 0x19, 0x0D, 0x00, 0x07, 0x60}, "A1 04 19 0D 00 07 00"},
        {"170 CDM unknown", {0x81, 0x12, 0x19, 0x0D, 0x00, 0x07, 0x26}, "A1 04 19 0D 00 07 00"},
        {"170 CDM descending", {0x81, 0x12, 0x19, 0x0D, 0x00, 0x07, 0x24}, "A1 04 19 0D 00 07 20"},
        {"170 MAH", {0x81, 0x12, 0x19, 0x0D, 0x00, 0x07, 0x28}, "A1 04 19 0D 00 07 20"},
        {"170 CNF", {0x81, 0x12, 0x19, 0x0D, 0x00, 0x07, 0xA0}, "A1 04 19 0D 00 07 80"},
        // Octet 2 (TRE, GHO) is dropped.
        {"170 extension", {0x81, 0x12, 0x19, 0x0D, 0x00, 0x07, 0x53, 0xC0}, "A1 04 19 0D 00 07 70"},
        // With 020 (RDP 1, then 2) the chain comes from it.
        {"170 chain 1 from 020", {0xA1, 0x12, 0x19, 0x0D, 0x20, 0x00, 0x07, 0x10},
         "E1 04 19 0D 90 00 07 50"},
        {"170 chain 2 from 020", {0xA1, 0x12, 0x19, 0x0D, 0x28, 0x00, 0x07, 0x10},
         "E1 04 19 0D 98 00 07 58"},
        // Dropped items: 030, 080, 100, 110, 220, 240.
        {"dropped items", {0x81, 0xC1, 0x78, 0x19, 0x0D, 0x4C, 0xA1, 0x23, 0x04, 0xD3, 0x22, 0x0C, 0x38, 0x20,
                           0x02, 0x0F, 0xFF, 0x00, 0x00, 0x00, 0x00, 0x10, 0x00},
         "80 19 0D"},
    };
    for (const Case &c : cases) EXPECT_EQ(hex(to_001(c.source)), c.expected) << c.what;
}

TEST(Convert048To001, MembersTheWireCannotShow) {
    const AstRecord048 src = disassemble_048(kTrack048);
    const AstRecord001 r = ast_datarecord_convert_048_001(&src);
    ASSERT_EQ(r.valid, 1u);
    EXPECT_EQ(r.i020.typ, 1u);
    EXPECT_EQ(r.i020.ssr_psr, 2u);
    EXPECT_EQ(r.i020.ant, 2u);
    // Values only, raws and LSBs 0.
    EXPECT_EQ(r.i040.valid, 1u);
    EXPECT_DOUBLE_EQ(r.i040.rho.value, 0x1234 / 256.0);
    EXPECT_DOUBLE_EQ(r.i040.theta.value, 90.0);
    EXPECT_EQ(r.i040.rho.raw, 0u);
    EXPECT_EQ(r.i040.theta.raw, 0u);
    EXPECT_EQ(r.i040.rho.lsb, 0.0);
    EXPECT_EQ(r.i040.theta.lsb, 0.0);
    EXPECT_EQ(r.i042.x.raw, -1);
    EXPECT_EQ(r.i042.y.raw, 128);
    EXPECT_EQ(r.i042.x.value, 0.0);
    EXPECT_EQ(r.i042.x.lsb, 0.0);
    EXPECT_EQ(r.i042.y.value, 0.0);
    // The whole 24-bit time of day.
    EXPECT_EQ(r.i141.valid, 1u);
    EXPECT_EQ(r.i141.raw, 0x5460A5u);
    EXPECT_EQ(r.i141.seconds, 0u);
    EXPECT_EQ(r.i141.milliseconds, 0u);
    EXPECT_EQ(r.i161.number, 0xABCu);
    EXPECT_EQ(r.i170.rdpc, 2u);
    EXPECT_EQ(r.i170.gho, 0u);
    EXPECT_EQ(r.i170.tre, 0u);
    EXPECT_EQ(r.i200.speed_raw, 0x200);
    EXPECT_EQ(r.i200.heading_raw, 0x8000);
    // Nothing else is filled.
    EXPECT_EQ(r.i030.valid + r.i050.valid + r.i060.valid + r.i080.valid + r.i100.valid + r.i120.valid +
                  r.i130.valid + r.i131.valid + r.i150.valid + r.i210.valid,
              0u);

    // Without 020 and 170 present, a plot without items but I048/220:
    // valid and empty, which does not assemble.
    const AstRecord048 only220 = disassemble_048({0x01, 0x80, 0x4C, 0xA1, 0x23});
    const AstRecord001 empty = ast_datarecord_convert_048_001(&only220);
    EXPECT_EQ(empty.valid, 1u);
    EXPECT_EQ(empty.i010.valid + empty.i020.valid + empty.i141.valid, 0u);
    EXPECT_TRUE(assembled(empty, [](AstDataRecord *out, uint8_t *b, size_t n, const AstRecord001 *in) {
                    ast_datarecord_001_assemble(out, b, n, in, nullptr);
                }).empty());
}

TEST(Convert048To001, InvalidSourceGivesTheZeroRecord) {
    AstRecord048 src = disassemble_048(kTrack048);
    src.valid = 0;
    AstRecord001 r = ast_datarecord_convert_048_001(&src);
    const AstRecord001 zero{};
    EXPECT_EQ(std::memcmp(&r, &zero, sizeof r), 0);
    src.valid = 2;
    r = ast_datarecord_convert_048_001(&src);
    EXPECT_EQ(r.valid, 0u);
    EXPECT_EQ(r.i010.valid, 0u);
    r = ast_datarecord_convert_048_001(nullptr);
    EXPECT_EQ(r.valid, 0u);
    // A member not flagged valid is not carried, whatever it holds.
    src = disassemble_048(kTrack048);
    src.i140.valid = 0;
    src.i020.valid = 0;
    r = ast_datarecord_convert_048_001(&src);
    EXPECT_EQ(r.i141.valid, 0u);
    EXPECT_EQ(r.i020.valid, 0u);
    EXPECT_EQ(r.i170.rdpc, 1u);  // the chain of an I048/020 not there
}

TEST(Convert034To002, RecordsComeOutAsTheirCat002Octets) {
    LogCapture log;
    // CAT034: 010 000 030 020 041 | ...; CAT002: 010 000 020 030 041 ...
    const Case cases[] = {
        {"north marker", {0xF8, 0x19, 0x0D, 0x01, 0x54, 0x60, 0xA5, 0x40, 0x02, 0x00}, "F0 19 0D 01 40 54 60 A5"},
        {"sector crossing", {0xF0, 0x19, 0x0D, 0x02, 0x54, 0x60, 0xA5, 0xFF}, "F0 19 0D 02 FF 54 60 A5"},
        {"sector 0", {0xF0, 0x19, 0x0D, 0x02, 0x00, 0x00, 0x00, 0x00}, "F0 19 0D 02 00 00 00 00"},
        {"geographical filtering", {0xE0, 0x19, 0x0D, 0x03, 0x00, 0x01, 0x00}, "90 19 0D 00 01 00"},
        {"jamming strobe", {0xD0, 0x19, 0x0D, 0x04, 0x80}, "A0 19 0D 80"},
        // 060 (COM) and 050 (COM) are dropped.
        {"status items", {0xC6, 0x19, 0x0D, 0x01, 0x80, 0x40, 0x80, 0x44}, "C0 19 0D 01"},
    };
    for (const Case &c : cases) EXPECT_EQ(hex(to_002(c.source)), c.expected) << c.what;
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unsupported I034/000 message type 3 detected."));
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unsupported I034/000 message type 4 detected."));
    size_t warnings = 0;
    for (const auto &line : log.lines()) warnings += line.level == AST_LOG_WARNING;
    EXPECT_EQ(warnings, 2u);
}

TEST(Convert034To002, MembersAndInvalidSources) {
    LogCapture log;
    const AstRecord034 src = disassemble_034({0xF8, 0x19, 0x0D, 0x01, 0x54, 0x60, 0xA5, 0x40, 0x02, 0x00});
    ASSERT_EQ(src.i041.valid, 1u);
    AstRecord002 r = ast_datarecord_convert_034_002(&src);
    ASSERT_EQ(r.valid, 1u);
    EXPECT_EQ(r.i000.value, 1u);
    EXPECT_EQ(r.i010.sac, 25u);
    EXPECT_EQ(r.i020.raw, 0x40u);
    EXPECT_EQ(r.i020.azimuth, -1.0);
    EXPECT_EQ(r.i020.lsb, 0.0);
    EXPECT_EQ(r.i030.raw, 0x5460A5u);
    EXPECT_EQ(r.i041.valid, 0u);

    // An unknown type: logged once, the rest converted.
    AstRecord034 odd = src;
    odd.i000.value = 200;
    r = ast_datarecord_convert_034_002(&odd);
    EXPECT_EQ(r.valid, 1u);
    EXPECT_EQ(r.i000.valid, 0u);
    EXPECT_EQ(r.i010.valid, 1u);
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unsupported I034/000 message type 200 detected."));
    // An absent message type is not an unsupported one.
    log.clear();
    odd.i000.valid = 0;
    r = ast_datarecord_convert_034_002(&odd);
    EXPECT_EQ(r.i000.valid, 0u);
    EXPECT_EQ(log.size(), 0u);

    AstRecord034 bad = src;
    bad.valid = 0;
    r = ast_datarecord_convert_034_002(&bad);
    const AstRecord002 zero{};
    EXPECT_EQ(std::memcmp(&r, &zero, sizeof r), 0);
    r = ast_datarecord_convert_034_002(nullptr);
    EXPECT_EQ(r.valid, 0u);
    EXPECT_EQ(log.size(), 0u);
}

}  // namespace
