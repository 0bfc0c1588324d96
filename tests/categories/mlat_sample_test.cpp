// The surface movement and multilateration records of the built-in sample
// written back: every CAT010 and CAT020 record is decoded, disassembled and
// assembled with its profile, and must give its own octets, less the items
// the disassembled record keeps no writable member for (SPF, REF, and the
// Mode S MB data, whose registers are spans into the decoded octets). The
// sample must also hold every item of the two categories.
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

bool written_back(AstItemId id) { return id % 1000 != 998 && id % 1000 != 999 && id % 1000 != 250; }

// Disassembles and assembles one record into out, the MB data left out.
bool write_back(const AstDataRecord &record, Octets &out) {
    out.assign(record.length + 64, 0);
    AstDataRecord written;
    if (record.category == 10) {
        auto d = std::make_unique<AstRecord010>();
        ast_datarecord_010_disassemble(d.get(), &record);
        d->i250.valid = 0;
        ast_datarecord_010_assemble(&written, out.data(), out.size(), d.get(), &record.uap);
    } else {
        auto d = std::make_unique<AstRecord020>();
        ast_datarecord_020_disassemble(d.get(), &record);
        d->i250.valid = 0;
        ast_datarecord_020_assemble(&written, out.data(), out.size(), d.get(), &record.uap);
    }
    if (written.valid != 1) return false;
    out.resize(written.length);
    return true;
}

}  // namespace

TEST(MlatSample, EveryRecordIsWrittenBackOctetForOctet) {
    ast_log_handler_reg(nullptr);
    auto block = std::make_unique<AstDataBlock>();
    std::map<uint32_t, size_t> records_of;
    std::set<AstItemId> seen;
    size_t whole_records = 0;
    for (const auto &packet : kovrel_test::sample_packets()) {
        if (packet.src_port != 50030 && packet.src_port != 50031) continue;
        const Octets &p = packet.payload;
        for (size_t at = 0; at + 3 <= p.size();) {
            ast_datablock_decode_into(block.get(), p.data() + at, p.size() - at, &AST_UAP_STANDARD);
            ASSERT_EQ(block->valid, 1) << "port " << packet.src_port << " @" << at;
            ASSERT_TRUE(block->category == 10 || block->category == 20);
            for (uint64_t r = 0; r < block->record_count; ++r) {
                const AstDataRecord &record = block->records[r];
                SCOPED_TRACE(testing::Message() << "CAT" << record.category << " @" << at << " record " << r);
                ++records_of[record.category];
                Octets written;
                ASSERT_TRUE(write_back(record, written));
                AstDataRecord again;
                ast_datarecord_decode(&again, written.data(), written.size(), record.category, &record.uap);
                ASSERT_EQ(again.valid, 1);
                uint64_t k = 0;
                bool whole = true;
                for (uint64_t i = 0; i < record.item_count; ++i) {
                    const AstDataItem &item = record.items[i];
                    seen.insert(item.id);
                    if (!written_back(item.id)) {
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
                if (whole) {
                    EXPECT_EQ(written, Octets(record.data, record.data + record.length));
                    ++whole_records;
                }
            }
            at += static_cast<size_t>(block->length);
        }
    }
    EXPECT_GT(records_of[10], 100u);
    EXPECT_GT(records_of[20], 50u);
    EXPECT_GT(whole_records, 100u);
    const AstItemId every[] = {10010, 10000, 10020, 10140, 10041, 10040, 10042, 10200, 10202, 10161, 10170,
                               10060, 10220, 10245, 10250, 10300, 10090, 10091, 10270, 10550, 10310, 10500,
                               10280, 10131, 10210, 10999, 10998, 20010, 20020, 20140, 20041, 20042, 20161,
                               20170, 20070, 20202, 20090, 20100, 20220, 20245, 20110, 20105, 20210, 20300,
                               20310, 20500, 20400, 20250, 20230, 20260, 20030, 20055, 20050, 20998, 20999};
    for (AstItemId id : every) EXPECT_EQ(seen.count(id), 1u) << id;
}

#endif  // KOVREL_HAVE_TOOL_CORE
