// CAT021 records: the five disassemblers and assemblers over one record
// type, the record accessors, and every CAT021 record of the built-in
// sample written back through the disassembled record.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "kovrel/cat021.h"
#include "kovrel/datablock.h"
#include "kovrel/datarecord.h"
#include "kovrel/uap.h"
#include "support/log_capture.h"
#include "support/record_walk.h"
#ifdef KOVREL_HAVE_TOOL_CORE
#include "support/sample_packets.h"
#endif

using kovrel_test::LogCapture;
using kovrel_test::Octets;

namespace {

// A record decoded with a profile; must be valid.
std::unique_ptr<AstDataRecord> decoded(const Octets &octets, const AstUap &uap) {
    auto r = std::make_unique<AstDataRecord>();
    ast_datarecord_decode(r.get(), octets.data(), octets.size(), 21, &uap);
    EXPECT_EQ(r->valid, 1);
    EXPECT_EQ(r->length, octets.size());
    return r;
}

// Edition 0.26: FRNs 1 (010), 2 (903), 4 (902), 11 (150), 21 (908), 27 (070).
const Octets kV026 = {0xD1, 0x11, 0x03, 0x04,        // FSPEC
                      0x19, 0x32,                    // 010
                      0x72, 0x00,                    // 903: GBS SIM TST SPI, address type wire 0
                      0x00, 0x80, 0x00, 0x00, 0x00, 0x20, 0x00, 0x00,  // 902: 45N 11.25E
                      0x83, 0x20,                    // 150: Mach 0.8
                      0x01,                          // 908: general emergency
                      0x02, 0x9C};                   // 070: 1234

// Edition 2.7: FRNs 1 (010), 2 (040), 6 (130), 26 (160), 37 (271), 42 (295).
const Octets kV27 = {0xC5, 0x01, 0x01, 0x09, 0x01, 0x42,
                     0x19, 0x33,                          // 010
                     0x20,                                // 040: duplicate address, ARC 25 ft
                     0x20, 0x00, 0x00, 0x04, 0x00, 0x00,  // 130: 45N 5.625E
                     0x07, 0xD0, 0x80, 0x00,              // 160: 439.45 kt, 180 degrees
                     0x15, 0x70,                          // 271: LW 7
                     0x40, 0x32};                         // 295: TRD 5.0 s

}  // namespace

TEST(Cat021Record, DisassembleFillsTheMembersOfEveryEdition) {
    const auto v026 = decoded(kV026, AST_UAP_CAT021_VER026);
    AstRecord021 all;
    LogCapture log;
    ast_datarecord_021_disassemble(&all, v026.get());
    ASSERT_EQ(all.valid, 1);
    EXPECT_EQ(log.size(), 0u);
    EXPECT_EQ(all.i010.sac, 25u);
    EXPECT_EQ(all.iA03.gbs + all.iA03.sim + all.iA03.tst + all.iA03.spi, 4);
    EXPECT_EQ(all.iA03.atp, 1u);
    EXPECT_EQ(all.iA02.latitude, 45.0);
    EXPECT_EQ(all.i150.mach, 0.8);
    EXPECT_EQ(all.iA08.status, 1u);
    EXPECT_EQ(all.i070.valid, 1u);
    EXPECT_EQ(all.i040.valid, 0);  // absent members stay zero
    EXPECT_EQ(all.i131.valid, 0u);

    // The edition 0.26 function does not take I021/070: logged at DEBUG.
    AstRecord021 ed;
    ast_datarecord_021_v026_disassemble(&ed, v026.get());
    ASSERT_EQ(ed.valid, 1);
    EXPECT_TRUE(log.contains(AST_LOG_DEBUG, "Failed to disassemble dataitem I021/070."));
    EXPECT_EQ(ed.i070.valid, 0u);
    EXPECT_EQ(ed.iA02.valid, 1u);
    EXPECT_EQ(ed.iA08.valid, 1);
    // Nor does 0.23, which has the 6-octet position instead of 21902.
    log.clear();
    ast_datarecord_021_v023_disassemble(&ed, v026.get());
    EXPECT_EQ(ed.valid, 1);
    EXPECT_EQ(ed.iA02.valid, 0u);
    EXPECT_EQ(ed.iA03.valid, 1);
    EXPECT_EQ(log.size(), 2u);

    const auto v27 = decoded(kV27, AST_UAP_CAT021_VER27);
    log.clear();
    ast_datarecord_021_v27_disassemble(&ed, v27.get());
    ASSERT_EQ(ed.valid, 1);
    EXPECT_EQ(log.size(), 0u);
    EXPECT_EQ(ed.i040.atp, 1u);
    EXPECT_EQ(ed.i040.arc, 1u);
    EXPECT_EQ(ed.i130.longitude, 5.625);
    EXPECT_EQ(ed.i160.angle, 180.0);
    EXPECT_EQ(ed.i271.lw, 7u);
    EXPECT_EQ(ed.i295.ages[1].present, 1);
    EXPECT_EQ(ed.i295.ages[1].age, 5.0);
    // Edition 2.1 has neither I021/271 nor the data ages.
    ast_datarecord_021_v21_disassemble(&ed, v27.get());
    EXPECT_EQ(ed.valid, 1);
    EXPECT_EQ(ed.i271.valid, 0);
    EXPECT_EQ(ed.i295.valid, 0);
    EXPECT_TRUE(log.contains(AST_LOG_DEBUG, "Failed to disassemble dataitem I021/271."));
    EXPECT_TRUE(log.contains(AST_LOG_DEBUG, "Failed to disassemble dataitem I021/295."));
}

TEST(Cat021Record, DisassembleRefusesOtherRecords) {
    const auto v27 = decoded(kV27, AST_UAP_CAT021_VER27);
    AstRecord021 out;
    std::memset(&out, 0xAB, sizeof out);
    AstDataRecord other = *v27;
    other.category = 48;
    ast_datarecord_021_disassemble(&out, &other);
    const AstRecord021 zero{};
    EXPECT_EQ(std::memcmp(&out, &zero, sizeof out), 0);
    other = *v27;
    other.valid = 0;
    std::memset(&out, 0xAB, sizeof out);
    ast_datarecord_021_v27_disassemble(&out, &other);
    EXPECT_EQ(std::memcmp(&out, &zero, sizeof out), 0);
    ast_datarecord_021_disassemble(&out, nullptr);
    EXPECT_EQ(out.valid, 0);
    ast_datarecord_021_disassemble(nullptr, v27.get());  // nothing to fill

    // A valid record without items gives a valid, empty structure.
    other = *v27;
    other.item_count = 0;
    ast_datarecord_021_v023_disassemble(&out, &other);
    EXPECT_EQ(out.valid, 1);
    EXPECT_EQ(out.i010.valid, 0u);

    // A later occurrence of an item overwrites the earlier one.
    const Octets first = {0x01, 0x02}, second = {0x03, 0x04};
    other.item_count = 2;
    other.items[0] = AstDataItem{first.data(), 2, 21010, 1};
    other.items[1] = AstDataItem{second.data(), 2, 21010, 1};
    ast_datarecord_021_disassemble(&out, &other);
    EXPECT_EQ(out.i010.sac, 3u);
    EXPECT_EQ(out.i010.sic, 4u);
}

TEST(Cat021Record, AssemblersWriteTheirEditionsProfile) {
    const struct {
        void (*assemble)(AstDataRecord *, uint8_t *, size_t, const AstRecord021 *);
        Octets expected;
    } cases[] = {
        // FRNs 1, 6 and 37 (I021/271 in 2.7).
        {ast_datarecord_021_v27_assemble,
         {0x85, 0x01, 0x01, 0x01, 0x01, 0x40, 0x19, 0x33, 0x20, 0x00, 0x00, 0x04, 0x00, 0x00, 0x15, 0x70}},
        // 2.1 writes 21907 at FRN 37 and has no member for I021/271.
        {ast_datarecord_021_v21_assemble,
         {0x85, 0x01, 0x01, 0x01, 0x01, 0x40, 0x19, 0x33, 0x20, 0x00, 0x00, 0x04, 0x00, 0x00, 0x01, 0x05}},
        // 0.26: 010 at FRN 1, 21902 at FRN 4.
        {ast_datarecord_021_v026_assemble,
         {0x90, 0x19, 0x33, 0x00, 0x80, 0x00, 0x00, 0x00, 0x20, 0x00, 0x00}},
        // 0.23: the 6-octet position at FRN 4.
        {ast_datarecord_021_v023_assemble, {0x90, 0x19, 0x33, 0x20, 0x00, 0x00, 0x04, 0x00, 0x00}},
    };
    AstRecord021 in{};
    in.i010 = AstDataSourceIdentifier{1, 25, 51};
    ast_dataitem_021_271_init(&in.i271);
    in.i271 = AstItem021_271{1, 0, 1, 0, 1, 0, 1, 7};
    in.iA07 = AstItem021_A07{1, 0, 0, 0, 0, 0, 1, 5};
    ast_dataitem_position_wgs84_init(&in.iA02);
    in.iA02.valid = 1;
    in.iA02.latitude = 45.0;
    in.iA02.longitude = 11.25;
    ast_dataitem_position_wgs84_low_init(&in.i130);
    in.i130.valid = 1;
    in.i130.latitude = 45.0;
    in.i130.longitude = 5.625;
    for (const auto &c : cases) {
        uint8_t buffer[64];
        AstDataRecord out;
        c.assemble(&out, buffer, sizeof buffer, &in);
        ASSERT_EQ(out.valid, 1);
        EXPECT_EQ(Octets(buffer, buffer + out.length), c.expected);
        // One octet short: invalid, nothing written past the end.
        uint8_t cut[64];
        std::memset(cut, 0xEE, sizeof cut);
        c.assemble(&out, cut, c.expected.size() - 1, &in);
        EXPECT_EQ(out.valid, 0);
        for (size_t i = c.expected.size() - 1; i < sizeof cut; ++i) EXPECT_EQ(cut[i], 0xEE);
    }
    // Edition 0.23 ends at FRN 26, inside the FSPEC's fourth octet: the
    // bits for FRNs 27 and 28 must not keep what the buffer held.
    {
        AstRecord021 early{};
        early.i010 = AstDataSourceIdentifier{1, 25, 51};
        early.i020 = AstItem021_020{1, 5};
        uint8_t dirty[16];
        std::memset(dirty, 0xFF, sizeof dirty);
        AstDataRecord written;
        ast_datarecord_021_v023_assemble(&written, dirty, sizeof dirty, &early);
        ASSERT_EQ(written.valid, 1);
        EXPECT_EQ(Octets(dirty, dirty + written.length), (Octets{0x81, 0x01, 0x01, 0x80, 0x19, 0x33, 0x05}));
        std::memset(dirty, 0xFF, sizeof dirty);
        ast_datarecord_021_assemble(&written, dirty, sizeof dirty, &early, &AST_UAP_CAT021_VER023);
        EXPECT_EQ(Octets(dirty, dirty + written.length), (Octets{0x81, 0x01, 0x01, 0x80, 0x19, 0x33, 0x05}));
    }

    // The all-editions assembler takes the profile it is given; a member
    // the profile has no FRN for is not silently lost: no record.
    uint8_t buffer[64];
    AstDataRecord out;
    LogCapture log;
    ast_datarecord_021_assemble(&out, buffer, sizeof buffer, &in, &AST_UAP_CAT021_VER27);
    EXPECT_EQ(out.valid, 0);
    EXPECT_TRUE(log.contains(AST_LOG_DEBUG, "Failed to encode dataitem I021/130."));  // 21902
    in.iA02.valid = 0;
    in.iA07.valid = 0;
    ast_datarecord_021_assemble(&out, buffer, sizeof buffer, &in, &AST_UAP_CAT021_VER27);
    ASSERT_EQ(out.valid, 1);
    EXPECT_EQ(Octets(buffer, buffer + out.length),
              (Octets{0x85, 0x01, 0x01, 0x01, 0x01, 0x40, 0x19, 0x33, 0x20, 0x00, 0x00, 0x04, 0x00, 0x00, 0x15, 0x70}));
    // A value an encoder refuses spoils the record.
    in.i271.lw = 16;
    ast_datarecord_021_v27_assemble(&out, buffer, sizeof buffer, &in);
    EXPECT_EQ(out.valid, 0);
}

TEST(Cat021Record, Accessors) {
    AstDataRecordFuncs funcs;
    ast_datarecord_get_func(&funcs, 21);
    EXPECT_NE(funcs.get_vrate, nullptr);
    EXPECT_EQ(funcs.get_polarcoord, nullptr);
    EXPECT_EQ(funcs.get_cartesianvel, nullptr);

    const auto v026 = decoded(kV026, AST_UAP_CAT021_VER026);
    const auto v27 = decoded(kV27, AST_UAP_CAT021_VER27);

    AstDataSourceIdentifier sacsic;
    ast_datarecord_get_sacsic(&sacsic, v27.get());
    EXPECT_EQ(sacsic.valid, 1u);
    EXPECT_EQ(sacsic.sic, 51u);
    AstRecordMsgType type;
    ast_datarecord_get_msgtype(&type, v27.get());
    EXPECT_EQ(type.valid, 1u);
    EXPECT_EQ(type.value, 5u);
    AstMode3aCode squawk;
    ast_datarecord_get_squawk(&squawk, v026.get());
    EXPECT_EQ(squawk.valid, 1u);
    ast_datarecord_get_squawk(&squawk, v27.get());
    EXPECT_EQ(squawk.valid, 0u);

    AstRecordWgs84 pos;
    ast_datarecord_get_wgs84coord(&pos, v026.get());
    EXPECT_EQ(pos.valid, 1u);
    EXPECT_EQ(pos.longitude, 11.25);
    ast_datarecord_get_wgs84coord(&pos, v27.get());
    EXPECT_EQ(pos.longitude, 5.625);

    AstRecordValue v;
    ast_datarecord_get_speed(&v, v27.get());
    EXPECT_EQ(v.valid, 1u);
    EXPECT_EQ(v.value, 2000 * 0.2197265625);
    ast_datarecord_get_heading(&v, v27.get());
    EXPECT_EQ(v.value, 180.0);
    ast_datarecord_get_flightlevel(&v, v27.get());
    EXPECT_EQ(v.valid, 0u);
    EXPECT_EQ(v.value, 0.0);

    // Hand-made records: which of two items comes first decides, and an
    // item of the wrong length gives nothing.
    const Octets tod030 = {0x00, 0x00, 0x80}, tod077 = {0x00, 0x01, 0x00};
    const Octets low = {0x20, 0x00, 0x00, 0x04, 0x00, 0x00};
    const Octets high = {0x10, 0x00, 0x00, 0x00, 0x02, 0x00, 0x00, 0x00};
    const Octets fl = {0xFF, 0xFE}, fl3 = {0x00, 0x01, 0x00}, sel = {0x9F, 0xFF};
    const Octets gv_old = {0xFF, 0xFF, 0x40, 0x00}, gv_new = {0x80, 0x01, 0x20, 0x00};
    const Octets rate_old = {0xFF, 0xFF}, rate_new = {0xC0, 0x01};
    const Octets callsign = {0x2C, 0xC3, 0x71, 0xC3, 0x2C, 0xE0};
    const Octets tn = {0x01, 0x23}, addr = {0x3C, 0x65, 0x86};
    AstDataRecord r = *v27;
    auto set = [&r](std::vector<std::pair<AstItemId, const Octets *>> items) {
        r.item_count = items.size();
        for (size_t i = 0; i < items.size(); ++i)
            r.items[i] = AstDataItem{items[i].second->data(), items[i].second->size(), items[i].first, 1};
    };
    set({{21030, &tod030}, {21077, &tod077}, {21131, &high}, {21130, &low}, {21145, &fl}, {21146, &sel},
         {21160, &gv_new}, {21911, &gv_old}, {21155, &rate_new}, {21909, &rate_old}, {21170, &callsign},
         {21161, &tn}, {21080, &addr}});
    AstTimeOfDay tod;
    ast_datarecord_get_timeofday(&tod, &r);
    EXPECT_EQ(tod.valid, 1u);
    EXPECT_EQ(tod.raw, 0x80u);
    ast_datarecord_get_wgs84coord(&pos, &r);
    EXPECT_EQ(pos.latitude, 45.0);
    EXPECT_EQ(pos.longitude, 5.625);
    ast_datarecord_get_flightlevel(&v, &r);
    EXPECT_EQ(v.value, -50.0);
    ast_datarecord_get_selaltitude(&v, &r);
    EXPECT_EQ(v.value, -25.0);
    ast_datarecord_get_speed(&v, &r);
    EXPECT_EQ(v.value, 0.2197265625);  // the 15-bit speed of I021/160
    ast_datarecord_get_heading(&v, &r);
    EXPECT_EQ(v.value, 45.0);
    AstVerticalRate rate;
    ast_datarecord_get_vrate(&rate, &r);
    EXPECT_EQ(rate.valid, 1u);
    EXPECT_EQ(rate.re, 1);
    EXPECT_EQ(rate.value, -0x3FFF * 6.25);
    AstRecordCallsign cs;
    ast_datarecord_get_callsign(&cs, &r);
    EXPECT_STREQ(cs.callsign, "KLM1023");
    AstTrackNumber track;
    ast_datarecord_get_tracknum(&track, &r);
    EXPECT_EQ(track.number, 0x123u);
    AstTargetAddress icao;
    ast_datarecord_get_icaoaddr(&icao, &r);
    EXPECT_EQ(icao.address, 0x3C6586u);

    // The other order, and a flight level of the wrong length.
    set({{21077, &tod077}, {21030, &tod030}, {21130, &low}, {21145, &fl3}, {21911, &gv_old}, {21160, &gv_new},
         {21909, &rate_old}, {21155, &rate_new}});
    ast_datarecord_get_timeofday(&tod, &r);
    EXPECT_EQ(tod.raw, 0x100u);
    ast_datarecord_get_wgs84coord(&pos, &r);
    EXPECT_EQ(pos.latitude, 45.0);
    ast_datarecord_get_flightlevel(&v, &r);
    EXPECT_EQ(v.valid, 0u);
    ast_datarecord_get_speed(&v, &r);
    EXPECT_EQ(v.value, -0.2197265625);  // 21911's signed speed
    ast_datarecord_get_heading(&v, &r);
    EXPECT_EQ(v.value, 90.0);
    ast_datarecord_get_vrate(&rate, &r);
    EXPECT_EQ(rate.re, 0);
    EXPECT_EQ(rate.value, -6.25);
    ast_datarecord_get_callsign(&cs, &r);
    EXPECT_EQ(cs.valid, 0);

    // An invalid record gives nothing, SAC/SIC all ones.
    r.valid = 0;
    ast_datarecord_021_get_sacsic(&sacsic, &r);
    EXPECT_EQ(sacsic.valid, 0u);
    EXPECT_EQ(sacsic.sac, 0xFFFFFFFFu);
    ast_datarecord_021_get_msgtype(&type, &r);
    EXPECT_EQ(type.valid, 0u);
}

#ifdef KOVREL_HAVE_TOOL_CORE

namespace {

// The profile each ground station of the sample reports with.
const AstUap *profile_of_port(uint16_t port) {
    switch (port) {
    case 50004: return &AST_UAP_CAT021_VER026;
    case 50005: return &AST_UAP_CAT021_VER21;
    case 50023: return &AST_UAP_CAT021_VER023;
    case 50027: return &AST_UAP_CAT021_VER27;
    default: return nullptr;
    }
}

bool writable(const AstUap &uap, AstItemId id) {
    const uint32_t max = ast_uap_max_frn(&uap, 21);
    for (uint32_t frn = 1; frn <= max; ++frn)
        if (uap.get_dataitem(21, frn) == id) return true;
    return false;
}

// The octets an item comes back as: its own, but for I021/131, which is
// written at 180/2^25 (the 8-octet position's one LSB).
Octets expected_item(const AstDataItem &item) {
    Octets o(item.data, item.data + item.length);
    if (item.id != 21131) return o;
    for (size_t k = 0; k < 8; k += 4) {
        const int32_t raw = static_cast<int32_t>(uint32_t{o[k]} << 24 | uint32_t{o[k + 1]} << 16 |
                                                 uint32_t{o[k + 2]} << 8 | o[k + 3]);
        const uint32_t coarse = static_cast<uint32_t>(raw / 32);
        for (int i = 0; i < 4; ++i) o[k + i] = static_cast<uint8_t>(coarse >> (24 - 8 * i));
    }
    return o;
}

}  // namespace

TEST(Cat021Record, EverySampleRecordComesBackThroughTheDisassembledRecord) {
    auto block = std::make_unique<AstDataBlock>();
    auto again = std::make_unique<AstDataRecord>();
    auto flat = std::make_unique<AstRecord021>();
    std::set<AstItemId> seen;
    size_t records = 0, identical = 0;
    std::set<const AstUap *> editions;
    for (const auto &packet : kovrel_test::sample_packets()) {
        if (packet.payload.empty() || packet.payload[0] != 21) continue;
        const AstUap *uap = profile_of_port(packet.src_port);
        ASSERT_NE(uap, nullptr) << packet.src_port;
        editions.insert(uap);
        ast_datablock_decode_into(block.get(), packet.payload.data(), packet.payload.size(), uap);
        ASSERT_EQ(block->valid, 1);
        for (uint64_t r = 0; r < block->record_count; ++r) {
            const AstDataRecord &record = block->records[r];
            ++records;
            ast_datarecord_021_disassemble(flat.get(), &record);
            ASSERT_EQ(flat->valid, 1);
            // Edition 0.23 is written up to FRN 26: its RE and SP fields
            // have no FRN to go to, and the assembler would refuse them.
            if (!writable(*uap, 21998)) flat->ref.valid = 0;
            if (!writable(*uap, 21999)) flat->spf.valid = 0;
            std::vector<uint8_t> buffer(record.length + 16);
            AstDataRecord out;
            ast_datarecord_021_assemble(&out, buffer.data(), buffer.size(), flat.get(), uap);
            ASSERT_EQ(out.valid, 1) << records;
            ast_datarecord_decode(again.get(), buffer.data(), out.length, 21, uap);
            ASSERT_EQ(again->valid, 1);
            // Item by item: each comes back unless it has no member (148,
            // 165) or no FRN to be written at (the RE and SP fields of
            // edition 0.23); nothing else appears.
            std::vector<std::pair<AstItemId, Octets>> want, got;
            for (uint64_t i = 0; i < record.item_count; ++i) {
                const AstDataItem &item = record.items[i];
                seen.insert(item.id);
                if (item.id == 21148 || item.id == 21165 || !writable(*uap, item.id)) continue;
                want.emplace_back(item.id, expected_item(item));
            }
            for (uint64_t i = 0; i < again->item_count; ++i) {
                const AstDataItem &item = again->items[i];
                got.emplace_back(item.id, Octets(item.data, item.data + item.length));
            }
            EXPECT_EQ(got, want) << "record " << records;
            if (want.size() == record.item_count && out.length == record.length &&
                std::equal(buffer.begin(), buffer.begin() + out.length, record.data))
                ++identical;
        }
    }
    EXPECT_EQ(editions.size(), 4u);
    // The regular 0.26 reports come back octet for octet.
    EXPECT_GE(identical, 100u);
    EXPECT_LT(identical, records);
    // Every item of every edition is in the sample.
    for (AstItemId id : {21008u, 21010u, 21015u, 21016u, 21020u, 21030u, 21032u, 21040u, 21070u, 21071u, 21072u,
                         21073u, 21074u, 21075u, 21076u, 21077u, 21080u, 21090u, 21095u, 21110u, 21130u, 21131u,
                         21132u, 21140u, 21145u, 21146u, 21148u, 21150u, 21151u, 21152u, 21155u, 21157u, 21160u,
                         21161u, 21165u, 21170u, 21200u, 21210u, 21220u, 21230u, 21250u, 21260u, 21271u, 21295u,
                         21400u, 21902u, 21903u, 21904u, 21905u, 21906u, 21907u, 21908u, 21909u, 21910u, 21911u,
                         21998u, 21999u}) {
        EXPECT_TRUE(seen.count(id)) << id;
    }
}

#endif  // KOVREL_HAVE_TOOL_CORE
