// Span decode of block streams: blocks and records per second against the
// machine's memcpy speed on the same buffer.
#include <benchmark/benchmark.h>

#include <cstring>
#include <memory>
#include <vector>

#include "kovrel/kovrel.h"

namespace {

// A CAT048 target report of 36 octets: I048/010, 140, 020, 040, 070, 090,
// 130 (SRL, SRR, SAM), 220, 240, 161, 200, 170.
void append_plot(std::vector<uint8_t> &b, uint8_t n) {
    const uint8_t record[] = {0xFF, 0xD6,                          // FSPEC: FRNs 1-7, 8-9, 11, 13-14
                              0x19, 0x0D,                          // I048/010
                              0x35, 0x6B, n,                       // I048/140
                              0xA0,                                // I048/020
                              0x4E, 0x20, 0x55, 0x00,              // I048/040
                              0x0A, 0x3F,                          // I048/070
                              0x01, 0x40,                          // I048/090
                              0xE0, 0x1A, 0x08, 0xB5,              // I048/130
                              0x3C, 0x66, n,                       // I048/220
                              0x20, 0xC3, 0x1C, 0x76, 0x08, 0x20,  // I048/240
                              0x0F, n,                             // I048/161
                              0x07, 0xD0, 0x40, 0x00,              // I048/200
                              0x40};                               // I048/170
    b.insert(b.end(), record, record + sizeof record);
}

std::vector<uint8_t> make_stream(size_t blocks, size_t records_per_block) {
    std::vector<uint8_t> s;
    for (size_t k = 0; k < blocks; ++k) {
        const size_t start = s.size();
        s.insert(s.end(), {48, 0, 0});
        for (size_t r = 0; r < records_per_block; ++r) append_plot(s, static_cast<uint8_t>(r));
        const size_t len = s.size() - start;
        s[start + 1] = static_cast<uint8_t>(len >> 8);
        s[start + 2] = static_cast<uint8_t>(len);
    }
    return s;
}

template <typename Decode>
void run_stream(benchmark::State &state, Decode decode) {
    ast_log_handler_reg(nullptr);
    const std::vector<uint8_t> stream = make_stream(256, 20);
    auto block = std::make_unique<AstDataBlock>();
    size_t records = 0;
    for (auto _ : state) {
        size_t p = 0;
        while (p + 3 <= stream.size()) {
            decode(block.get(), stream.data() + p, stream.size() - p);
            if (block->valid != 1) state.SkipWithError("invalid block");
            records += block->record_count;
            p += block->length;
        }
        benchmark::DoNotOptimize(block->records[0].items[0].data);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * stream.size()));
    state.counters["records/s"] = benchmark::Counter(static_cast<double>(records), benchmark::Counter::kIsRate);
}

void BM_BlockDecodeStandard(benchmark::State &state) {
    run_stream(state, [](AstDataBlock *b, const uint8_t *o, size_t n) {
        ast_datablock_decode_into(b, o, n, &AST_UAP_STANDARD);
    });
}
BENCHMARK(BM_BlockDecodeStandard);

void BM_BlockSmartDecode(benchmark::State &state) {
    run_stream(state, [](AstDataBlock *b, const uint8_t *o, size_t n) { ast_datablock_smart_decode_into(b, o, n); });
}
BENCHMARK(BM_BlockSmartDecode);

void BM_MemcpyYardstick(benchmark::State &state) {
    const std::vector<uint8_t> stream = make_stream(256, 20);
    std::vector<uint8_t> copy(stream.size());
    for (auto _ : state) {
        std::memcpy(copy.data(), stream.data(), stream.size());
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * stream.size()));
}
BENCHMARK(BM_MemcpyYardstick);

void BM_FspecDecode(benchmark::State &state) {
    const uint8_t fspec[] = {0xFF, 0xD7, 0x81, 0x40};
    AstFspec f;
    for (auto _ : state) {
        ast_fspec_decode(&f, fspec, sizeof fspec);
        benchmark::DoNotOptimize(f);
    }
}
BENCHMARK(BM_FspecDecode);

void BM_RecordDecode(benchmark::State &state) {
    ast_log_handler_reg(nullptr);
    std::vector<uint8_t> r;
    append_plot(r, 1);
    AstDataRecord record;
    for (auto _ : state) {
        ast_datarecord_decode(&record, r.data(), r.size(), 48, &AST_UAP_STANDARD);
        benchmark::DoNotOptimize(record.item_count);
    }
}
BENCHMARK(BM_RecordDecode);

}  // namespace
