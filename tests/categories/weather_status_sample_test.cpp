// The weather and status categories of the built-in sample written back:
// every CAT008, CAT015, CAT016 and CAT019 record of their sensors (source
// ports 50040-50043) is decoded, disassembled and assembled with its
// profile, and must give its own octets, less the items its category's
// record has no member for (SPF, REF). The sample must also hold every
// item of those records.
#ifdef KOVREL_HAVE_TOOL_CORE

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <set>
#include <vector>

#include "kovrel/kovrel.h"
#include "support/sample_packets.h"

namespace {

using Octets = std::vector<uint8_t>;

bool has_member(AstItemId id) { return id % 1000 < 997; }

template <typename R, void (*Disassemble)(R *, const AstDataRecord *),
          void (*Assemble)(AstDataRecord *, uint8_t *, size_t, const R *, const AstUap *)>
bool write_back_as(const AstDataRecord &record, AstDataRecord &written, Octets &out) {
    auto d = std::make_unique<R>();
    Disassemble(d.get(), &record);
    Assemble(&written, out.data(), out.size(), d.get(), &record.uap);
    return written.valid == 1;
}

bool write_back(const AstDataRecord &record, Octets &out) {
    out.assign(record.length + 64, 0);
    AstDataRecord written;
    bool ok = false;
    switch (record.category) {
    case 8: ok = write_back_as<AstRecord008, ast_datarecord_008_disassemble, ast_datarecord_008_assemble>(record, written, out); break;
    case 15: ok = write_back_as<AstRecord015, ast_datarecord_015_disassemble, ast_datarecord_015_assemble>(record, written, out); break;
    case 16: ok = write_back_as<AstRecord016, ast_datarecord_016_disassemble, ast_datarecord_016_assemble>(record, written, out); break;
    case 19: ok = write_back_as<AstRecord019, ast_datarecord_019_disassemble, ast_datarecord_019_assemble>(record, written, out); break;
    default: return false;
    }
    if (ok) out.resize(written.length);
    return ok;
}

TEST(WeatherStatusSample, EveryRecordIsWrittenBackOctetForOctet) {
    ast_log_handler_reg(nullptr);
    auto block = std::make_unique<AstDataBlock>();
    std::map<uint32_t, size_t> records_of;
    std::set<AstItemId> seen;
    size_t whole_blocks = 0;
    for (const auto &packet : kovrel_test::sample_packets()) {
        if (packet.src_port < 50040 || packet.src_port > 50043) continue;
        const Octets &p = packet.payload;
        for (size_t at = 0; at + 3 <= p.size();) {
            ast_datablock_decode_into(block.get(), p.data() + at, p.size() - at, &AST_UAP_STANDARD);
            ASSERT_EQ(block->valid, 1) << "port " << packet.src_port << " @" << at;
            const size_t length = static_cast<size_t>(block->length);
            const uint32_t category = block->category;
            Octets rebuilt = {static_cast<uint8_t>(category), 0, 0};
            bool whole = true;
            for (uint64_t r = 0; r < block->record_count; ++r) {
                const AstDataRecord &record = block->records[r];
                SCOPED_TRACE(testing::Message() << "CAT" << category << " port " << packet.src_port << " record " << r);
                ++records_of[category];
                Octets written;
                ASSERT_TRUE(write_back(record, written));
                AstDataRecord again;
                ast_datarecord_decode(&again, written.data(), written.size(), category, &record.uap);
                ASSERT_EQ(again.valid, 1);
                ASSERT_EQ(again.length, written.size());
                uint64_t k = 0;
                for (uint64_t i = 0; i < record.item_count; ++i) {
                    const AstDataItem &item = record.items[i];
                    seen.insert(item.id);
                    if (!has_member(item.id)) {
                        whole = false;
                        continue;
                    }
                    ASSERT_LT(k, again.item_count);
                    EXPECT_EQ(again.items[k].id, item.id);
                    EXPECT_EQ(Octets(again.items[k].data, again.items[k].data + again.items[k].length),
                              Octets(item.data, item.data + item.length))
                        << "item " << item.id;
                    ++k;
                }
                EXPECT_EQ(k, again.item_count);
                rebuilt.insert(rebuilt.end(), written.begin(), written.end());
            }
            rebuilt[1] = static_cast<uint8_t>(rebuilt.size() >> 8);
            rebuilt[2] = static_cast<uint8_t>(rebuilt.size());
            if (whole) {
                EXPECT_EQ(rebuilt, Octets(p.begin() + at, p.begin() + at + length));
                ++whole_blocks;
            }
            at += length;
        }
    }
    EXPECT_GT(records_of[8], 50u);
    EXPECT_GT(records_of[15], 20u);
    EXPECT_GT(records_of[16], 4u);
    EXPECT_GT(records_of[19], 10u);
    EXPECT_GT(whole_blocks, 30u);
    // Every item of the four categories' standard profiles is in the sample.
    const AstItemId own[] = {8000,  8010,  8020,  8034,  8036,  8038,  8040,  8050,  8090,  8100,  8110,
                             8120,  8999,  15000, 15010, 15015, 15020, 15030, 15050, 15145, 15161, 15170,
                             15270, 15300, 15400, 15480, 15600, 15601, 15602, 15603, 15604, 15605, 15625,
                             15626, 15627, 15628, 15630, 15631, 16000, 16010, 16015, 16140, 16200, 16300,
                             16400, 16405, 16410, 16420, 19000, 19010, 19140, 19550, 19551, 19552, 19553,
                             19600, 19610, 19620, 19998, 19999};
    for (AstItemId id : own) EXPECT_TRUE(seen.count(id)) << "item " << id << " is not in the sample";
}

}  // namespace

#endif  // KOVREL_HAVE_TOOL_CORE
