#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <thread>
#include <vector>

#include "kovrel/datablock.h"
#include "kovrel/datarecord.h"
#include "kovrel/items.h"
#include "support/log_capture.h"

using kovrel_test::LogCapture;

namespace {

// A CAT048 block of n records, each I048/010 alone (FSPEC 80, SAC, SIC).
std::vector<uint8_t> sacsic_block(size_t n) {
    std::vector<uint8_t> b = {48, 0, 0};
    for (size_t i = 0; i < n; ++i) {
        b.push_back(0x80);
        b.push_back(static_cast<uint8_t>(i));
        b.push_back(0x07);
    }
    b[1] = static_cast<uint8_t>(b.size() >> 8);
    b[2] = static_cast<uint8_t>(b.size());
    return b;
}

std::unique_ptr<AstDataBlock> decode(const std::vector<uint8_t> &o, const AstUap &uap = AST_UAP_STANDARD) {
    auto b = std::make_unique<AstDataBlock>();
    ast_datablock_decode_into(b.get(), o.data(), o.size(), &uap);
    return b;
}

}  // namespace

TEST(DataBlock, HeaderAndLength) {
    EXPECT_EQ(decode({0x30, 0x00, 0x03})->valid, 1);
    EXPECT_EQ(decode({0x30, 0x00, 0x03})->record_count, 0u);
    EXPECT_EQ(decode({0x30, 0x00, 0x02})->valid, 0);
    EXPECT_EQ(decode({0x30, 0x00})->valid, 0);
    auto b = decode({0x30, 0x00, 0x09, 0x80, 0x01});
    EXPECT_EQ(b->valid, 0);
    EXPECT_EQ(b->length, 0u);
    EXPECT_EQ(b->category, 48u);

    std::vector<uint8_t> o = sacsic_block(3);
    b = decode(o);
    ASSERT_EQ(b->valid, 1);
    EXPECT_EQ(b->length, 12u);
    EXPECT_EQ(b->records_length, 9u);
    EXPECT_EQ(b->records_data, o.data() + 3);
    ASSERT_EQ(b->record_count, 3u);
    EXPECT_EQ(b->records[2].data, o.data() + 9);
    EXPECT_EQ(b->records[2].items[0].data[0], 2);

    // Records that do not end at LEN: one octet too few, one too many.
    o[2] = 11;
    b = decode(o);
    EXPECT_EQ(b->valid, 0);
    EXPECT_EQ(b->record_count, 3u);  // the third record read past LEN
    o[2] = 13;
    o.push_back(0x00);
    b = decode(o);
    EXPECT_EQ(b->valid, 0);
    EXPECT_EQ(b->record_count, 3u);
    AstDataBlock *none = nullptr;
    ast_datablock_decode_into(none, o.data(), o.size(), &AST_UAP_STANDARD);  // no crash
}

TEST(DataBlock, AtMost64Records) {
    LogCapture log;
    EXPECT_EQ(decode(sacsic_block(64))->valid, 1);
    EXPECT_EQ(log.size(), 0u);
    auto b = decode(sacsic_block(65));
    EXPECT_EQ(b->valid, 0);
    EXPECT_EQ(b->record_count, 64u);
    EXPECT_TRUE(log.contains(AST_LOG_PANIC, "Number of datarecords 65 exceeds the limit 64."));
    EXPECT_TRUE(log.contains(AST_LOG_DEBUG, "Binary data size: 198"));
}

TEST(DataBlock, EncodeRefusals) {
    auto in = std::make_unique<AstDataBlockInput>();
    auto out = std::make_unique<AstDataBlock>();
    std::vector<uint8_t> buffer(64, 0xEE);
    in->category = 48;
    in->uap = AST_UAP_STANDARD;
    in->record_count = 0;
    ast_datablock_encode(out.get(), buffer.data(), buffer.size(), in.get());
    EXPECT_EQ(out->valid, 0);
    EXPECT_EQ(out->length, 3u);
    in->record_count = 65;
    ast_datablock_encode(out.get(), buffer.data(), buffer.size(), in.get());
    EXPECT_EQ(out->valid, 0);
    in->record_count = 1;
    in->records[0].category = 34;  // another category stops the block
    ast_datablock_encode(out.get(), buffer.data(), buffer.size(), in.get());
    EXPECT_EQ(out->valid, 0);
    EXPECT_EQ(buffer[0], 0xEE);  // header not written
}

TEST(DataBlock, ModifyRewritesTheHeader) {
    std::vector<uint8_t> o = sacsic_block(5);
    auto b = decode(o);
    std::vector<uint8_t> copy(o.size(), 0);
    auto m = std::make_unique<AstDataBlock>();
    ast_datablock_modify(m.get(), copy.data(), copy.size(), b.get(), nullptr);
    EXPECT_EQ(m->valid, 1);
    EXPECT_EQ(m->length, o.size());
    EXPECT_EQ(copy, o);
    ast_datablock_modify(m.get(), copy.data(), copy.size() - 1, b.get(), nullptr);
    EXPECT_EQ(m->valid, 0);
    b->valid = 0;
    ast_datablock_modify(m.get(), copy.data(), copy.size(), b.get(), nullptr);
    EXPECT_EQ(m->valid, 0);
}

TEST(DataBlock, SmartDecodeRemembersPerThread) {
    // A block that no profile reads whole leaves MANAGAIR remembered, and
    // the next good block is then read with it at the first attempt.
    std::thread([] {
        LogCapture log;
        const std::vector<uint8_t> bad = {48, 0, 6, 0x01, 0x01, 0x01};
        auto b = std::make_unique<AstDataBlock>();
        ast_datablock_smart_decode_into(b.get(), bad.data(), bad.size());
        EXPECT_EQ(b->valid, 0);
        EXPECT_EQ(b->uap.get_dataitem, AST_UAP_MANAGAIR.get_dataitem);
        const std::vector<uint8_t> good = sacsic_block(2);
        ast_datablock_smart_decode_into(b.get(), good.data(), good.size());
        EXPECT_EQ(b->valid, 1);
        EXPECT_EQ(b->uap.get_dataitem, AST_UAP_MANAGAIR.get_dataitem);
    }).join();
    // A fresh thread starts from the standard profile.
    std::thread([] {
        const std::vector<uint8_t> good = sacsic_block(2);
        auto b = std::make_unique<AstDataBlock>();
        ast_datablock_smart_decode_into(b.get(), good.data(), good.size());
        EXPECT_EQ(b->valid, 1);
        EXPECT_EQ(b->uap.get_dataitem, AST_UAP_STANDARD.get_dataitem);
        ast_datablock_smart_decode_into(b.get(), good.data(), 2);
        EXPECT_EQ(b->valid, 0);
    }).join();
}

TEST(DataBlock, SmartDecodeTriesProfilesInOrder) {
    // A CAT021 record with I021/010 and FRN 36, which only editions 2.1 and
    // 2.7 define (I021/008).
    const std::vector<uint8_t> block = {21, 0, 12, 0x81, 0x01, 0x01, 0x01, 0x01, 0x80, 0x01, 0x02, 0x03};
    std::thread([&] {
        LogCapture log;
        auto b = std::make_unique<AstDataBlock>();
        ast_datablock_smart_decode_into(b.get(), block.data(), block.size());
        ASSERT_EQ(b->valid, 1);
        EXPECT_EQ(b->uap.get_dataitem, AST_UAP_CAT021_VER21.get_dataitem);
        // standard (remembered), CAT001 plot (standard for CAT021), 0.23, 0.26.
        std::vector<std::string> texts;
        for (const auto &l : log.lines()) texts.push_back(l.text);
        EXPECT_EQ(texts, (std::vector<std::string>{
                             "UAP ADS-B v0.26: Undefined FRN 36", "UAP ADS-B v0.26: Undefined FRN 36",
                             "UAP ADS-B v0.23: Undefined FRN 36", "UAP ADS-B v0.26: Undefined FRN 36"}));
        log.clear();
        ast_datablock_smart_decode_into(b.get(), block.data(), block.size());
        EXPECT_EQ(b->valid, 1);
        EXPECT_EQ(log.size(), 0u);  // first attempt
    }).join();
}

TEST(DataBlock, Cat001MixedPlotsAndTracks) {
    // Plot: I001/010, I001/020 with TYP 0, I001/040 (FRN 3 of the plot profile).
    // Track: I001/010, I001/020 with TYP 1, I001/161 (FRN 3 of the standard profile).
    const std::vector<uint8_t> block = {1,    0,    20,   0xE0, 0x01, 0x02, 0x00, 0x10, 0x20, 0x30,
                                        0x40, 0xE0, 0x01, 0x02, 0x80, 0x01, 0x23, 0x00, 0x00, 0x00};
    std::vector<uint8_t> exact(block.begin(), block.begin() + 17);
    exact[2] = 17;
    auto b = std::make_unique<AstDataBlock>();
    ast_datablock_001_mixuap_decode_into(b.get(), exact.data(), exact.size());
    ASSERT_EQ(b->valid, 1);
    ASSERT_EQ(b->record_count, 2u);
    EXPECT_EQ(b->records[0].uap.get_dataitem, AST_UAP_CAT001_PLOT.get_dataitem);
    EXPECT_EQ(b->records[0].items[2].id, 1040u);
    EXPECT_EQ(b->records[1].uap.get_dataitem, AST_UAP_STANDARD.get_dataitem);
    EXPECT_EQ(b->records[1].items[2].id, 1161u);
    // Not CAT001, or a record without I001/020: invalid.
    std::vector<uint8_t> other = exact;
    other[0] = 2;
    ast_datablock_001_mixuap_decode_into(b.get(), other.data(), other.size());
    EXPECT_EQ(b->valid, 0);
    std::vector<uint8_t> no020 = {1, 0, 6, 0x80, 0x01, 0x02};
    ast_datablock_001_mixuap_decode_into(b.get(), no020.data(), no020.size());
    EXPECT_EQ(b->valid, 0);
    // Smart decode takes the mixed reading first for CAT001.
    ast_datablock_smart_decode_into(b.get(), exact.data(), exact.size());
    EXPECT_EQ(b->valid, 1);
    EXPECT_EQ(b->records[0].uap.get_dataitem, AST_UAP_CAT001_PLOT.get_dataitem);
}

TEST(DataBlock, ThreadsDecodeIndependently) {
    const std::vector<uint8_t> cat048 = sacsic_block(40);
    const std::vector<uint8_t> cat021 = {21, 0, 12, 0x81, 0x01, 0x01, 0x01, 0x01, 0x80, 0x01, 0x02, 0x03};
    auto worker = [&](int kind, int *failures) {
        auto b = std::make_unique<AstDataBlock>();
        for (int i = 0; i < 2000; ++i) {
            bool ok = false;
            switch (kind) {
                case 0:
                    ast_datablock_decode_into(b.get(), cat048.data(), cat048.size(), &AST_UAP_STANDARD);
                    ok = b->valid == 1 && b->record_count == 40 && b->records[39].items[0].data[0] == 39;
                    break;
                case 1:
                    ast_datablock_decode_into(b.get(), cat021.data(), cat021.size(), &AST_UAP_CAT021_VER27);
                    ok = b->valid == 1 && b->records[0].item_count == 2;
                    break;
                case 2:
                    ast_datablock_smart_decode_into(b.get(), cat021.data(), cat021.size());
                    ok = b->valid == 1 && b->uap.get_dataitem == AST_UAP_CAT021_VER21.get_dataitem;
                    break;
                default:
                    ast_datablock_smart_decode_into(b.get(), cat048.data(), cat048.size());
                    ok = b->valid == 1 && b->uap.get_dataitem == AST_UAP_STANDARD.get_dataitem;
                    break;
            }
            if (!ok) ++*failures;
        }
    };
    ast_log_handler_reg(nullptr);
    int failures[4] = {0, 0, 0, 0};
    std::vector<std::thread> threads;
    for (int k = 0; k < 4; ++k) threads.emplace_back(worker, k, &failures[k]);
    for (auto &t : threads) t.join();
    for (int k = 0; k < 4; ++k) EXPECT_EQ(failures[k], 0) << "thread " << k;
}

TEST(DataBlock, ReusedBlockIsReadByItsCounts) {
    // A structure that held 64 records of five items each (I048/240 "STALE1")
    // is reused for a block of one record with I048/010 alone: every block
    // and record operation reads the new counts, never what the slots kept.
    const uint8_t stale_record[] = {0xF1, 0x40, 0x19, 0x0D, 0x00, 0x00, 0x80, 0xA0, 0x00, 0x10,
                                    0x00, 0x20, 0x4D, 0x40, 0x4C, 0x17, 0x18, 0x20};  // 240: "STALE1  "
    std::vector<uint8_t> full = {48, 0, 0};
    for (int i = 0; i < 64; ++i) full.insert(full.end(), stale_record, stale_record + sizeof stale_record);
    full[1] = static_cast<uint8_t>(full.size() >> 8);
    full[2] = static_cast<uint8_t>(full.size());
    auto block = std::make_unique<AstDataBlock>();
    ast_datablock_decode_into(block.get(), full.data(), full.size(), &AST_UAP_STANDARD);
    ASSERT_EQ(block->valid, 1);
    ASSERT_EQ(block->record_count, 64u);
    AstRecordCallsign callsign;
    ast_datarecord_get_callsign(&callsign, &block->records[0]);
    ASSERT_EQ(callsign.valid, 1);
    ASSERT_STREQ(callsign.callsign, "STALE1");

    const std::vector<uint8_t> one = sacsic_block(1);
    ast_datablock_decode_into(block.get(), one.data(), one.size(), &AST_UAP_STANDARD);
    ASSERT_EQ(block->valid, 1);
    ASSERT_EQ(block->record_count, 1u);
    const AstDataRecord &r = block->records[0];
    ASSERT_EQ(r.item_count, 1u);
    ast_datarecord_get_callsign(&callsign, &r);
    EXPECT_EQ(callsign.valid, 0);
    AstDataSourceIdentifier source;
    ast_datarecord_get_sacsic(&source, &r);
    EXPECT_EQ(source.sac, 0u);
    EXPECT_EQ(source.sic, 7u);
    AstTimeOfDay tod;
    ast_datarecord_get_timeofday(&tod, &r);
    EXPECT_EQ(tod.valid, 0);
    AstRecordPolar polar;
    ast_datarecord_get_polarcoord(&polar, &r);
    EXPECT_EQ(polar.valid, 0);

    static char html[1 << 16];
    ast_datarecord_get_detail_html(html, sizeof html, &r);
    EXPECT_EQ(std::strstr(html, "Aircraft Identification"), nullptr);
    EXPECT_NE(std::strstr(html, "Data Source Identifier"), nullptr);
    ast_datarecord_get_hex_html(html, sizeof html, &r);
    EXPECT_EQ(std::strstr(html, "4D"), nullptr);

    uint8_t copy[64];
    AstDataRecord copied;
    ast_datarecord_copy(&copied, copy, sizeof copy, &r);
    EXPECT_EQ(copied.length, 3u);
    auto rewritten = std::make_unique<AstDataBlock>();
    std::vector<uint8_t> buffer(full.size());
    ast_datablock_modify(rewritten.get(), buffer.data(), buffer.size(), block.get(), nullptr);
    ASSERT_EQ(rewritten->valid, 1);
    EXPECT_EQ(std::vector<uint8_t>(buffer.begin(), buffer.begin() + static_cast<ptrdiff_t>(rewritten->length)), one);
}
