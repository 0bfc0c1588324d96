#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "kovrel/cat021.h"
#include "kovrel/datarecord.h"
#include "support/log_capture.h"
#include "support/record_walk.h"

using kovrel_test::LogCapture;
using kovrel_test::Octets;

namespace {

// Length that ast_dataitem_scan gives the item at octets, 0 when it refuses.
uint64_t scan(AstItemId id, const std::vector<uint8_t> &octets, size_t available) {
    AstDataItem item;
    ast_dataitem_scan(&item, octets.data(), available, id);
    EXPECT_EQ(item.valid, item.length != 0 ? 1 : 0);
    return item.length;
}
uint64_t scan(AstItemId id, const std::vector<uint8_t> &octets) { return scan(id, octets, octets.size()); }

}  // namespace

TEST(Cat021, FixedItemsNeedTheirWholeLength) {
    const std::vector<uint8_t> data(12, 0xFF);
    // High-resolution positions of both generations are 8 octets, the
    // low-resolution one 6.
    EXPECT_EQ(scan(21131, data), 8u);
    EXPECT_EQ(scan(21131, data, 7), 0u);
    EXPECT_EQ(scan(21902, data, 8), 8u);
    EXPECT_EQ(scan(21130, data), 6u);
    EXPECT_EQ(scan(21074, data), 4u);
    EXPECT_EQ(scan(21076, data, 3), 0u);
    EXPECT_EQ(scan(21260, data), 7u);
    EXPECT_EQ(scan(21260, data, 6), 0u);
    // Old-edition layouts differ in length from the items they stand for.
    EXPECT_EQ(scan(21903, data), 2u);
    EXPECT_EQ(scan(21905, data), 2u);
    EXPECT_EQ(scan(21911, data), 4u);
    // Items without a name are still delimited.
    EXPECT_EQ(scan(21148, data), 2u);
    EXPECT_EQ(scan(21165, data), 2u);
    // 300 is not an item number of this category.
    LogCapture log;
    EXPECT_EQ(scan(21300, data), 0u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Unsupported dataitem I021/300"));
}

TEST(Cat021, VariableItemsFollowTheirFxChains) {
    LogCapture log;
    // The target report descriptor walks over any number of extensions.
    EXPECT_EQ(scan(21040, {0x00, 0xFF}), 1u);
    EXPECT_EQ(scan(21040, {0x01, 0x01, 0x01, 0x01, 0x00, 0xFF}), 5u);
    EXPECT_EQ(scan(21040, {0x01, 0x01, 0x01}), 0u);  // cut off by the end of the data
    EXPECT_EQ(log.size(), 0u);

    // Quality indicators end after four octets at the latest.
    EXPECT_EQ(scan(21090, {0x01, 0x01, 0x01, 0x00, 0xFF}), 4u);
    EXPECT_EQ(scan(21090, {0x01, 0x01, 0x01, 0x01}), 0u);
    EXPECT_EQ(log.size(), 0u);
    EXPECT_EQ(scan(21090, {0x01, 0x01, 0x01, 0x01, 0x00}), 4u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Dataitem length exceed max: 4"));

    // Surface capabilities 2.2 and later: one or two octets.
    log.clear();
    EXPECT_EQ(scan(21271, {0x00, 0x01}), 1u);
    EXPECT_EQ(scan(21271, {0x01, 0x00}), 2u);
    EXPECT_EQ(scan(21271, {0x01, 0x01}), 0u);
    EXPECT_EQ(scan(21271, {0x01, 0x01, 0x00}), 2u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Dataitem length exceed max: 2"));
}

TEST(Cat021, SurfaceCapabilitiesOfEdition21IgnoreTheSecondFx) {
    LogCapture log;
    const uint8_t two[] = {0x01, 0x01, 0x00};
    EXPECT_EQ(ast_dataitem_021_A07_get_size(two, 3), 2u);
    EXPECT_EQ(ast_dataitem_021_A07_get_size(two, 2), 2u);  // 21271 refuses this one
    EXPECT_EQ(ast_dataitem_021_A07_get_size(two, 1), 0u);  // FX set, nothing follows
    EXPECT_EQ(ast_dataitem_021_A07_get_size(nullptr, 5), 0u);
    const uint8_t one[] = {0xFE};
    EXPECT_EQ(ast_dataitem_021_A07_get_size(one, 1), 1u);
    // The same rule behind the identifier.
    EXPECT_EQ(scan(21907, {0x01, 0x01}), 2u);
    EXPECT_EQ(scan(21907, {0x01}), 0u);
    EXPECT_EQ(log.size(), 0u);
}

TEST(Cat021, RepetitiveAndExplicitLengthItems) {
    std::vector<uint8_t> mb(17, 0x00);
    mb[0] = 2;
    EXPECT_EQ(scan(21250, mb), 17u);
    EXPECT_EQ(scan(21250, mb, 16), 0u);
    EXPECT_EQ(scan(21250, {0x00}), 1u);

    // RE and SP fields answer their length octet; the scan refuses one that
    // would end past the data.
    const std::vector<uint8_t> re = {0x05, 0xAA};
    EXPECT_EQ(ast_dataitem_get_size(re.data(), re.size(), 21998), 5u);
    EXPECT_EQ(scan(21998, re), 0u);
    EXPECT_EQ(scan(21999, {0x03, 0x01, 0x02, 0x99}), 3u);
    EXPECT_EQ(scan(21999, {0x00, 0x01}), 0u);
}

TEST(Cat021, TrajectoryIntentSubfields) {
    // TIS with one extension, TID with one 15-octet point.
    std::vector<uint8_t> item = {0xC0, 0x01, 0x00, 0x01};
    item.resize(item.size() + 15, 0x11);
    EXPECT_EQ(scan(21110, item), 19u);
    EXPECT_EQ(scan(21110, {0x81}), 0u);  // primary subfield cut off
    EXPECT_EQ(ast_subfield_get_size(item.data() + 1, 18, 21110001), 2u);
    EXPECT_EQ(ast_subfield_get_size(item.data() + 3, 16, 21110002), 16u);
    EXPECT_EQ(ast_subfield_get_size(item.data() + 3, 15, 21110002), 0u);
    EXPECT_EQ(ast_subfield_get_size(item.data() + 1, 1, 21110001), 0u);

    EXPECT_EQ(ast_dataitem_subfields_get_number(21110), 2u);
    EXPECT_STREQ(ast_subfield_get_id(21110001), "TIS");
    EXPECT_STREQ(ast_subfield_get_name(21110002), "Trajectory Intent Data");
    EXPECT_STREQ(ast_subfield_021_110_get_id(21110003), "---");
    EXPECT_STREQ(ast_subfield_021_110_get_name(21110003), "UNKNOWN_SUBFIELD_NAME");

    // A subfield the item does not have is reported, also when a primary
    // subfield announces one; it adds nothing to the item.
    LogCapture log;
    const uint8_t octets[] = {0x00, 0x00};
    EXPECT_EQ(ast_subfield_021_110_get_size(octets, 2, 21110003), 0u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Unsupported Subfield type 21110003"));
    log.clear();
    EXPECT_EQ(scan(21110, {0x20, 0x00}), 1u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Unsupported Subfield type 21110003"));
    log.clear();
    EXPECT_EQ(ast_subfield_021_110_get_size(octets, 2, 21110001), 1u);
    EXPECT_EQ(log.size(), 0u);
}

TEST(Cat021, MetInformationAndDataAges) {
    LogCapture log;
    EXPECT_EQ(scan(21220, {0xF0, 1, 2, 3, 4, 5, 6, 7}), 8u);
    EXPECT_EQ(scan(21220, {0x10, 0x07}), 2u);  // turbulence alone
    EXPECT_EQ(scan(21220, {0xF0, 1, 2, 3, 4, 5, 6}), 0u);  // one octet short
    EXPECT_EQ(scan(21220, {0x08, 0x00}), 1u);  // a fifth subfield adds nothing
    EXPECT_EQ(ast_dataitem_subfields_get_number(21220), 4u);
    EXPECT_STREQ(ast_subfield_get_id(21220003), "TMP");
    EXPECT_STREQ(ast_subfield_021_220_get_name(21220004), "Turbulence");
    EXPECT_EQ(log.size(), 0u);

    // 23 one-octet ages behind a four-octet primary subfield.
    EXPECT_EQ(scan(21295, {0x01, 0x01, 0x01, 0x40, 0x32}), 5u);
    std::vector<uint8_t> all = {0xFF, 0xFF, 0xFF, 0xC0};
    all.resize(4 + 23, 0x05);
    EXPECT_EQ(scan(21295, all), 27u);
    EXPECT_EQ(scan(21295, all, 26), 0u);
    EXPECT_EQ(scan(21295, all, 3), 0u);  // primary subfield cut off
    EXPECT_EQ(ast_dataitem_subfields_get_number(21295), 23u);
    EXPECT_STREQ(ast_subfield_get_id(21295001), "AOS");
    EXPECT_STREQ(ast_subfield_get_id(21295023), "SCC");
    EXPECT_STREQ(ast_subfield_get_name(21295009), "Selected Altitude Age");
    EXPECT_STREQ(ast_subfield_get_name(21295024), "UNKNOWN_SUBFIELD_NAME");

    AstDataItem item;
    ast_dataitem_scan(&item, all.data(), all.size(), 21295);
    AstSubfieldList list;
    ast_dataitem_subfields_decode(&list, &item);
    ASSERT_EQ(list.valid, 1);
    EXPECT_EQ(list.span_count, 23u);
    EXPECT_EQ(list.spans[22].data, all.data() + 26);
    char text[32];
    ast_dataitem_get_summary(text, sizeof text, &item);
    EXPECT_STREQ(text, "SUBFIELDS:23/23");
    // The item's subfield functions stand in both slots; each age reads in
    // seconds, a trajectory intent subfield has no summary of its own.
    EXPECT_EQ(ast_subfield_get_capabilities(21295001), 0x6u);
    ast_subfield_get_summary(text, sizeof text, &list.spans[0], 21295001);
    EXPECT_STREQ(text, "0.50 LSB=SEC");
    ast_subfield_get_summary(text, sizeof text, &list.spans[0], 21110001);
    EXPECT_STREQ(text, "NOT_IMPLEMENTED");
}

TEST(Cat021, NamesAndTheirFallback) {
    LogCapture log;
    EXPECT_STREQ(ast_dataitem_021_get_name(21008), "Aircraft Operational Status");
    EXPECT_STREQ(ast_dataitem_021_get_name(21074), "Time of Message Reception of Position - High Precision");
    EXPECT_STREQ(ast_dataitem_021_get_name(21271), "Surface Capabilities and Characteristics (Ver >= 2.2)");
    EXPECT_STREQ(ast_dataitem_021_get_name(21400), "Receiver ID");
    EXPECT_STREQ(ast_dataitem_021_get_name(21902), "Position in WGS84 Coordinates (0.23 < Ver <= 0.26)");
    EXPECT_STREQ(ast_dataitem_021_get_name(21904), "Signal Amplitude (Ver = 0.26)");
    EXPECT_STREQ(ast_dataitem_021_get_name(21907), "Surface Capabilities and Characteristics (1.0 <= Ver < 2.2)");
    EXPECT_STREQ(ast_dataitem_get_name(21161), "Track Number");
    EXPECT_EQ(log.size(), 0u);

    // Items without a name of their own, inside the reported range.
    for (AstItemId id : {21148u, 21165u, 21110u, 21220u, 21009u, 21399u}) {
        log.clear();
        EXPECT_STREQ(ast_dataitem_021_get_name(id), "Unknown CAT021 Dataitem") << id;
        char text[16];
        ast_dataitem_type_to_str(text, sizeof text, id);
        EXPECT_TRUE(log.contains(AST_LOG_WARNING, std::string("Unknown dataitem name: ") + text + ".")) << id;
    }
    // Through the dispatcher the row's name function answers.
    EXPECT_STREQ(ast_dataitem_get_name(21148), "Unknown CAT021 Dataitem");

    // Outside 21008..21399 the fallback is quiet.
    log.clear();
    for (AstItemId id : {21007u, 21401u, 21900u, 21997u, 48010u}) {
        EXPECT_STREQ(ast_dataitem_021_get_name(id), "Unknown CAT021 Dataitem") << id;
    }
    EXPECT_EQ(log.size(), 0u);
    EXPECT_EQ(ast_dataitem_subfields_get_number(21040), 0u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Undefined Subfield I021/040"));
}

TEST(Cat021, Edition21RecordScansBackToBack) {
    // 010, 040, 161, 071, 131, 080, 090, 210, 145, 148, 110, 220, 907, 295, 250, RE
    const std::vector<std::pair<AstItemId, std::vector<uint8_t>>> items = {
        {21010, {0x19, 0x0C}},
        {21040, {0x21, 0x01, 0x00}},
        {21161, {0x01, 0x23}},
        {21071, {0x12, 0x34, 0x56}},
        {21131, {0x10, 0x00, 0x00, 0x00, 0x02, 0x00, 0x00, 0x00}},
        {21080, {0x3C, 0x65, 0xAC}},
        {21090, {0x5D, 0x00}},
        {21210, {0x1A}},
        {21145, {0x01, 0x40}},
        {21148, {0x80, 0x00}},
        {21110, {0x80, 0x00}},
        {21220, {0x90, 0x00, 0x12, 0x03}},
        {21907, {0x01, 0x01}},
        {21295, {0x40, 0x0A}},
        {21250, {0x01, 1, 2, 3, 4, 5, 6, 7, 0x40}},
        {21998, {0x03, 0xAB, 0xCD}},
    };
    std::vector<uint8_t> record;
    for (const auto &it : items) record.insert(record.end(), it.second.begin(), it.second.end());

    size_t pos = 0;
    for (const auto &it : items) {
        AstDataItem item;
        ast_dataitem_scan(&item, record.data() + pos, record.size() - pos, it.first);
        ASSERT_EQ(item.valid, 1) << it.first;
        EXPECT_EQ(item.length, it.second.size()) << it.first;
        EXPECT_EQ(item.data, record.data() + pos) << it.first;
        pos += item.length;
    }
    EXPECT_EQ(pos, record.size());

    // Compound items have the generic subfield views and their own decoded
    // values; every item of the category decodes, describes and encodes,
    // but for the two that only the generic operations carry.
    constexpr uint32_t kAllCaps = AST_DATAITEM_CAP_DECODE | AST_DATAITEM_CAP_SUMMARY | AST_DATAITEM_CAP_DETAIL |
                                  AST_DATAITEM_CAP_ENCODE;
    EXPECT_EQ(ast_dataitem_get_capabilities(21295), kAllCaps);
    EXPECT_EQ(ast_dataitem_get_capabilities(21010), kAllCaps);
    EXPECT_EQ(ast_dataitem_get_capabilities(21040), kAllCaps);
    EXPECT_EQ(ast_dataitem_get_capabilities(21148), 0u);
    EXPECT_EQ(ast_dataitem_get_capabilities(21165), 0u);
}

namespace {

// Every item of one CAT021 record with its summary, in record order.
std::vector<std::pair<AstItemId, std::string>> summaries(const AstUap &uap, const Octets &record) {
    AstDataRecord r;
    ast_datarecord_decode(&r, record.data(), record.size(), 21, &uap);
    EXPECT_EQ(r.valid, 1);
    EXPECT_EQ(r.length, record.size());
    std::vector<std::pair<AstItemId, std::string>> out;
    for (uint64_t i = 0; i < r.item_count; ++i) {
        char text[64];
        ast_dataitem_get_summary(text, sizeof text, &r.items[i]);
        out.emplace_back(r.items[i].id, text);
    }
    return out;
}

const Octets kKlm1023 = {0x2C, 0xC3, 0x71, 0xC3, 0x2C, 0xE0};

}  // namespace

TEST(Cat021, CommonItemsSummariseRecordsOfBothGenerations) {
    // Edition 0.26: FRNs 1, 3, 4, 5, 14, 18, 27.
    Octets v026 = {0xB9, 0x03, 0x11, 0x04, 0x19, 0x32, 0x58, 0x78, 0x40,  // FSPEC, 010, 030
                   0x00, 0x80, 0x00, 0x00, 0x00, 0x20, 0x00, 0x00,        // 902: 45N 11.25E at 180/2^25
                   0x3C, 0x65, 0x86, 0xFF, 0x40};                         // 080, 909
    v026.insert(v026.end(), kKlm1023.begin(), kKlm1023.end());            // 170
    v026.insert(v026.end(), {0x02, 0x9C});                                // 070
    const std::vector<std::pair<AstItemId, std::string>> old_items = {
        {21010, "SAC:025 SIC:050"}, {21030, "TOD:12:34:56.500"}, {21902, "WGS84:450000N0111500E"},
        {21080, "ADDR:3C6586"},     {21909, "VR:-1200.00FT/M"},  {21170, "ACID:KLM1023 "},
        {21070, "MODE_3/A:1234"}};
    EXPECT_EQ(summaries(AST_UAP_CAT021_VER026, v026), old_items);

    // Edition 2.1: FRNs 1-5, 7, 11, 13, 24, 28, 39, 48. The rate carries
    // the range-exceeded bit, so 7F 40 is a descent.
    const Octets v21 = {0xFB, 0x15, 0x01, 0x23, 0x01, 0x11, 0x04,              // FSPEC
                        0x19, 0x32, 0x20, 0x01, 0x23, 0x07, 0x38, 0x40, 0x00,  // 010, 040, 161, 015, 071
                        0x10, 0x00, 0x00, 0x00, 0x02, 0x00, 0x00, 0x00,        // 131: 45N 5.625E at 180/2^30
                        0x3C, 0x65, 0x86, 0x20, 0x00, 0x00, 0x00,              // 080, 074
                        0x7F, 0x40, 0x38, 0x40, 0x20,                          // 155, 077
                        0x01, 0x80, 0, 0, 0, 0, 0, 0, 0x40,                    // 250
                        0x03, 0xAB, 0xCD};                                     // RE
    const std::vector<std::pair<AstItemId, std::string>> new_items = {
        {21010, "SAC:025 SIC:050"},       {21040, "TARGET:NORMAL"},       {21161, "TRACK_NUM:0291"},
        {21015, "SVC_ID:007"},            {21071, "TOD:08:00:00.000"},      {21131, "WGS84:450000N0053730E"},
        {21080, "ADDR:3C6586"},           {21074, "FSI:0 TOMR:0.500000"},   {21155, "VR:-1200.00FT/M"},
        {21077, "TOD:08:00:00.250"},      {21250, "BDS:4,0"},               {21998, "RESERVED_EXPANSION"}};
    EXPECT_EQ(summaries(AST_UAP_CAT021_VER21, v21), new_items);

    // Encoders where the common item writes; an empty detail slot where it
    // has no view.
    constexpr uint32_t kAll =
        AST_DATAITEM_CAP_DECODE | AST_DATAITEM_CAP_SUMMARY | AST_DATAITEM_CAP_DETAIL | AST_DATAITEM_CAP_ENCODE;
    for (AstItemId id : {21030u, 21070u, 21080u, 21130u, 21131u, 21157u, 21170u, 21902u, 21910u}) {
        EXPECT_EQ(ast_dataitem_get_capabilities(id), kAll) << id;
    }
    // High-precision times, registers and explicit fields are written back
    // by the disassembled record only.
    EXPECT_EQ(ast_dataitem_get_capabilities(21076), kAll & ~AST_DATAITEM_CAP_ENCODE);
    EXPECT_EQ(ast_dataitem_get_capabilities(21250), kAll & ~AST_DATAITEM_CAP_ENCODE);
    EXPECT_EQ(ast_dataitem_get_capabilities(21161), kAll & ~AST_DATAITEM_CAP_DETAIL);
    EXPECT_EQ(ast_dataitem_get_capabilities(21015), kAll & ~AST_DATAITEM_CAP_DETAIL);
    EXPECT_EQ(ast_dataitem_get_capabilities(21999), AST_DATAITEM_CAP_DECODE | AST_DATAITEM_CAP_SUMMARY);
    AstDataItemFuncs funcs;
    ast_dataitem_get_func(&funcs, 21161);
    EXPECT_EQ(funcs.get_detail_html, ast_dataitem_get_detail_html_dummy);
}

TEST(Cat021, CommonItemsDecodeAndEncodeThroughTheDispatcher) {
    alignas(std::max_align_t) uint8_t storage[sizeof(AstModesMb)];
    AstDataItemValue value;
    AstDataItem item;
    const Octets high = {0x10, 0x00, 0x00, 0x00, 0x02, 0x00, 0x00, 0x00};
    ast_dataitem_scan(&item, high.data(), high.size(), 21131);
    ast_dataitem_decode(&value, storage, sizeof(AstPositionWgs84) - 1, &item);
    EXPECT_EQ(value.valid, 0);
    EXPECT_EQ(value.id, 21131u);
    EXPECT_EQ(value.value, nullptr);
    ast_dataitem_decode(&value, storage, sizeof(AstPositionWgs84), &item);
    ASSERT_EQ(value.valid, 1);
    ASSERT_EQ(value.value, storage);
    const AstPositionWgs84 pos = *static_cast<const AstPositionWgs84 *>(value.value);
    EXPECT_EQ(pos.lat_lsb, 180.0 / 1073741824.0);
    EXPECT_EQ(pos.latitude, 45.0);
    EXPECT_EQ(pos.longitude, 5.625);
    // Written back at 180/2^25, as every 8-octet position.
    uint8_t out[16];
    AstDataItem written;
    ast_dataitem_encode(&written, out, sizeof out, &value);
    ASSERT_EQ(written.valid, 1);
    EXPECT_EQ(Octets(out, out + written.length), (Octets{0x00, 0x80, 0x00, 0x00, 0x00, 0x10, 0x00, 0x00}));
    // The same octets as the position of edition 0.26 keep the coarser LSB.
    ast_dataitem_scan(&item, high.data(), high.size(), 21902);
    ast_dataitem_decode(&value, storage, sizeof storage, &item);
    ASSERT_EQ(value.valid, 1);
    EXPECT_EQ(static_cast<const AstPositionWgs84 *>(value.value)->latitude, 1440.0);

    // The rate of edition 0.26 has no range-exceeded bit.
    const Octets rate = {0xFF, 0x40};
    for (AstItemId id : {21909u, 21155u}) {
        ast_dataitem_scan(&item, rate.data(), rate.size(), id);
        ast_dataitem_decode(&value, storage, sizeof storage, &item);
        ASSERT_EQ(value.valid, 1) << id;
        const auto *vr = static_cast<const AstVerticalRate *>(value.value);
        EXPECT_EQ(vr->re, id == 21155u ? 1 : 0) << id;
        EXPECT_EQ(vr->value, -1200.0) << id;
    }

    // Decoded and written again, each encodable item gives back its octets.
    const std::vector<std::pair<AstItemId, Octets>> items = {
        {21010, {0x19, 0x32}}, {21015, {0x07}},             {21077, {0x38, 0x40, 0x20}},
        {21070, {0x42, 0x9C}}, {21080, {0x3C, 0x65, 0x86}}, {21161, {0x01, 0x23}},
        {21170, kKlm1023},     {21157, {0x80, 0xC0}},       {21910, {0xFF, 0x40}},
        {21130, {0x20, 0x00, 0x00, 0x04, 0x00, 0x00}}};
    for (const auto &[id, octets] : items) {
        ast_dataitem_scan(&item, octets.data(), octets.size(), id);
        ast_dataitem_decode(&value, storage, sizeof storage, &item);
        ASSERT_EQ(value.valid, 1) << id;
        ast_dataitem_encode(&written, out, sizeof out, &value);
        ASSERT_EQ(written.valid, 1) << id;
        EXPECT_EQ(written.id, id);
        EXPECT_EQ(Octets(out, out + written.length), octets) << id;
    }

    // The special purpose field decodes as its own field, behind the length octet.
    const Octets sp = {0x03, 0xAB, 0xCD};
    ast_dataitem_scan(&item, sp.data(), sp.size(), 21999);
    ast_dataitem_decode(&value, storage, sizeof storage, &item);
    ASSERT_EQ(value.valid, 1);
    EXPECT_EQ(static_cast<const AstSpecialPurposeField *>(value.value)->length, 2u);
}
