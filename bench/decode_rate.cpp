// The library's own speed on a recording of raw data blocks, as the
// yardstick for the tool: the file is read whole, then each block is
// decoded by the smart decoder into record and item spans, as `kovrel
// decode` does before it formats anything. One core, one pass.
//
//   kovrel_decode_rate FILE
// prints "library decode: N records in S s: R records/s, M MB/s".
#include <chrono>
#include <cstdio>
#include <cstring>
#include <memory>
#include <vector>

#include <kovrel/kovrel.h>

int main(int argc, char **argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: kovrel_decode_rate FILE\n");
        return 2;
    }
    std::FILE *in = std::fopen(argv[1], "rb");
    if (!in) {
        std::perror(argv[1]);
        return 1;
    }
    std::vector<uint8_t> data;
    uint8_t chunk[1 << 16];
    for (size_t n; (n = std::fread(chunk, 1, sizeof chunk, in)) > 0;) data.insert(data.end(), chunk, chunk + n);
    std::fclose(in);

    ast_log_handler_reg(nullptr);
    auto block = std::make_unique<AstDataBlock>();
    uint64_t records = 0, items = 0, bad = 0;
    const auto started = std::chrono::steady_clock::now();
    for (size_t at = 0; at + 3 <= data.size();) {
        const size_t len = static_cast<size_t>(data[at + 1]) << 8 | data[at + 2];
        if (len < 3 || len > data.size() - at) break;
        ast_datablock_smart_decode_into(block.get(), data.data() + at, len);
        if (block->valid == 1) {
            records += block->record_count;
            for (uint64_t i = 0; i < block->record_count; ++i) items += block->records[i].item_count;
        } else {
            ++bad;
        }
        at += len;
    }
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
    std::printf("library decode: %llu records (%llu items, %llu bad blocks) in %.3f s: %.0f records/s, %.1f MB/s\n",
                static_cast<unsigned long long>(records), static_cast<unsigned long long>(items),
                static_cast<unsigned long long>(bad), seconds, static_cast<double>(records) / seconds,
                static_cast<double>(data.size()) / 1e6 / seconds);
    return bad == 0 && records > 0 ? 0 : 1;
}
