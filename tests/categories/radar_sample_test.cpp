// The radar categories of the built-in sample written back: every CAT001,
// CAT002 and CAT034 record is decoded, disassembled, assembled with its
// profile and put into a block again, and must give its own octets, less
// the items its category's record has no member for. The sample must also
// hold every item those records are made of.
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

// Items a category's disassembled record keeps; the others are dropped.
bool has_member(AstItemId id) {
    switch (id / 1000) {
    case 1: return id != 1951 && id != 1997 && id != 1999;
    case 2: return id == 2000 || id == 2010 || id == 2020 || id == 2030 || id == 2041;
    case 34: return id != 34090 && id != 34110 && id != 34998 && id != 34999;
    default: return false;
    }
}

// Disassembles and assembles one record into out; false when assembly fails.
bool write_back(const AstDataRecord &record, std::vector<uint8_t> &out) {
    out.assign(record.length + 64, 0);
    AstDataRecord written;
    switch (record.category) {
    case 1: {
        auto d = std::make_unique<AstRecord001>();
        ast_datarecord_001_disassemble(d.get(), &record);
        ast_datarecord_001_assemble(&written, out.data(), out.size(), d.get(), &record.uap);
        break;
    }
    case 2: {
        auto d = std::make_unique<AstRecord002>();
        ast_datarecord_002_disassemble(d.get(), &record);
        ast_datarecord_002_assemble(&written, out.data(), out.size(), d.get(), &record.uap);
        break;
    }
    case 34: {
        auto d = std::make_unique<AstRecord034>();
        ast_datarecord_034_disassemble(d.get(), &record);
        ast_datarecord_034_assemble(&written, out.data(), out.size(), d.get(), &record.uap);
        break;
    }
    default: return false;
    }
    if (written.valid != 1) return false;
    out.resize(written.length);
    return true;
}

// The sensors of the sample that send the ASR-10SS layouts, by source port;
// their layouts have the size rules of the standard ones, so a decoder is
// told the profile.
const AstUap *profile_of(uint16_t src_port) {
    if (src_port == 50006) return &AST_UAP_ASR10SS;
    if (src_port == 50007) return &AST_UAP_ASR10SS_MK2;
    return nullptr;
}

TEST(RadarSample, EveryRecordIsWrittenBackOctetForOctet) {
    ast_log_handler_reg(nullptr);
    auto block = std::make_unique<AstDataBlock>();
    std::map<uint32_t, size_t> records_of;
    std::set<AstItemId> seen;
    size_t whole_blocks = 0;
    for (const auto &packet : kovrel_test::sample_packets()) {
        const Octets &p = packet.payload;
        for (size_t at = 0; at + 3 <= p.size();) {
            const AstUap *uap = profile_of(packet.src_port);
            if (uap)
                ast_datablock_decode_into(block.get(), p.data() + at, p.size() - at, uap);
            else
                ast_datablock_smart_decode_into(block.get(), p.data() + at, p.size() - at);
            ASSERT_EQ(block->valid, 1) << "port " << packet.src_port << " @" << at;
            const size_t length = static_cast<size_t>(block->length);
            const uint32_t category = block->category;
            if (category == 1 || category == 2 || category == 34) {
                // The block again from the records written back.
                Octets rebuilt = {static_cast<uint8_t>(category), 0, 0};
                bool whole = true;
                for (uint64_t r = 0; r < block->record_count; ++r) {
                    const AstDataRecord &record = block->records[r];
                    SCOPED_TRACE(testing::Message() << "CAT" << category << " port " << packet.src_port
                                                    << " block @" << at << " record " << r);
                    ++records_of[category];
                    Octets written;
                    ASSERT_TRUE(write_back(record, written));
                    // Item by item: those with a member, in order, octet for octet.
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
            }
            at += length;
        }
    }
    EXPECT_GT(records_of[1], 100u);
    EXPECT_GT(records_of[2], 20u);
    EXPECT_GT(records_of[34], 20u);
    EXPECT_GT(whole_blocks, 50u);
    // Every item of the three categories' records is in the sample.
    const AstItemId own[] = {1010, 1020, 1030, 1040, 1042, 1050, 1060, 1070, 1080, 1090, 1120,
                             1130, 1131, 1141, 1150, 1161, 1170, 1200, 1210, 1901, 1902, 1903,
                             1904, 2000, 2010, 2020, 2030, 2041, 2050, 2901, 2902, 34000, 34010,
                             34020, 34030, 34041, 34050, 34060, 34070, 34120};
    for (AstItemId id : own) EXPECT_TRUE(seen.count(id)) << id << " is not in the sample";
}

}  // namespace

#endif  // KOVREL_HAVE_TOOL_CORE
