// How DecodeSession reads files: a mapped file decoded in windows, framed
// files, hex files read line by line: the same records and messages as the
// same octets held in memory.
#ifdef KOVREL_HAVE_TOOL_CORE

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <unistd.h>

#include "session.h"
#include "tools/capture_builder.h"
#include "tools/memory_stream.h"

using namespace kovrel_tool;
using namespace kovrel_tool_test;

namespace {

struct Outcome {
    std::string records, messages;
    uint64_t blocks = 0, invalid = 0, records_counted = 0;
};

Outcome decode(const Octets &octets, bool from_file) {
    Capture out, messages;
    Outcome o;
    {
        DecodeSession session(SessionSettings{}, out.file(), messages.file());
        if (from_file) {
            char path[] = "/tmp/kovrel-read-XXXXXX";
            const int fd = mkstemp(path);
            EXPECT_GE(fd, 0);
            EXPECT_EQ(write(fd, octets.data(), octets.size()), static_cast<ssize_t>(octets.size()));
            close(fd);
            session.decode_file(path);
            unlink(path);
        } else {
            session.decode_memory("in", octets.data(), octets.size());
        }
        session.flush();
        o.blocks = session.stats().blocks;
        o.invalid = session.stats().invalid;
        o.records_counted = session.stats().records;
    }
    o.records = out.text();
    o.messages = messages.text();
    // The input's name differs: file path or "in".
    for (auto *text : {&o.messages}) {
        size_t at;
        while ((at = text->find("kovrel: /tmp/kovrel-read-")) != std::string::npos)
            text->replace(at, 31, "kovrel: in");
    }
    return o;
}

}  // namespace

TEST(ToolSessionRead, FilesReadLikeMemory) {
    // More than one 16 MiB window of blocks: large blocks that no profile
    // reads (each reported, with its number and offset) between good ones,
    // and a LEN below 3 at the end.
    Octets big;
    const Octets block = sacsic_block(9, 60);  // 183 octets
    Octets filler(65535, 0x00);
    filler[0] = 0xFF;
    filler[1] = 0xFF;
    filler[2] = 0xFF;
    uint64_t pairs = 0;
    while (big.size() < (17u << 20)) {
        big.insert(big.end(), block.begin(), block.end());
        big.insert(big.end(), filler.begin(), filler.end());
        ++pairs;
    }
    big.insert(big.end(), {48, 0, 2, 0x80});
    const Octets framed = concat({oradis(sacsic_block(1), 5), oradis(block, 6), oradis(sacsic_block(2), 7),
                                  oradis({48, 0, 7, 0x80, 25}, 8), oradis(block, 9)});
    const std::string hex = "00000000: 3000 0680 1901  0.....\n00000006: 3000 0980 1901 8019  0.......\n";
    struct Case {
        const char *what;
        Octets octets;
        uint64_t blocks, invalid;
    };
    const Case cases[] = {
        {"raw blocks over two windows", big, pairs, pairs + 1},
        {"oradis", framed, 4, 1},
        {"xxd text", Octets(hex.begin(), hex.end()), 1, 1},
    };
    for (const Case &c : cases) {
        const Outcome file = decode(c.octets, true), memory = decode(c.octets, false);
        EXPECT_EQ(file.blocks, c.blocks) << c.what;
        EXPECT_EQ(file.invalid, c.invalid) << c.what;
        EXPECT_EQ(file.blocks, memory.blocks) << c.what;
        EXPECT_EQ(file.records_counted, memory.records_counted) << c.what;
        EXPECT_EQ(file.messages, memory.messages) << c.what;
        EXPECT_EQ(file.records, memory.records) << c.what;
        EXPECT_FALSE(file.messages.empty()) << c.what;
    }
}

#endif  // KOVREL_HAVE_TOOL_CORE
