// CAT062 record level over the sample recording: record decode and
// disassemble of every system track, beside two yardsticks over the same
// octets in the same run: copying them, and decoding the records alone.
#include <benchmark/benchmark.h>

#include <cstring>
#include <memory>
#include <vector>

#include "kovrel/kovrel.h"
#include "sample_datagrams.h"

namespace {

// The octets of every CAT062 record of the sample, each on its own.
struct Sample062 {
    std::vector<std::vector<uint8_t>> records;
    size_t octets = 0;

    Sample062() {
        ast_log_handler_reg(nullptr);  // the sample's other categories log as they are read
        const auto datagrams = kovrel_bench::sample_datagrams();
        auto block = std::make_unique<AstDataBlock>();
        for (const auto &d : datagrams) {
            for (size_t p = 0; p + 3 <= d.size(); p += block->length) {
                ast_datablock_smart_decode_into(block.get(), d.data() + p, d.size() - p);
                if (block->valid != 1) break;
                if (block->category != 62) continue;
                for (uint64_t i = 0; i < block->record_count; ++i) {
                    const AstDataRecord &r = block->records[i];
                    records.emplace_back(r.data, r.data + r.length);
                    octets += r.length;
                }
            }
        }
    }
};

const Sample062 &sample() {
    static const Sample062 s;
    return s;
}

void count(benchmark::State &state, const Sample062 &s) {
    state.counters["records/s"] = benchmark::Counter(static_cast<double>(s.records.size() * state.iterations()),
                                                     benchmark::Counter::kIsRate);
    state.SetBytesProcessed(static_cast<int64_t>(s.octets * state.iterations()));
}

void BM_Cat062CopyYardstick(benchmark::State &state) {
    const auto &s = sample();
    if (s.records.empty()) return state.SkipWithError("no CAT062 record in the sample");
    std::vector<uint8_t> to(4096);
    for (auto _ : state) {
        for (const auto &r : s.records) {
            std::memcpy(to.data(), r.data(), r.size());
            benchmark::DoNotOptimize(to.data());
            benchmark::ClobberMemory();
        }
    }
    count(state, s);
}
BENCHMARK(BM_Cat062CopyYardstick);

void BM_Cat062DecodeYardstick(benchmark::State &state) {
    ast_log_handler_reg(nullptr);
    const auto &s = sample();
    if (s.records.empty()) return state.SkipWithError("no CAT062 record in the sample");
    auto record = std::make_unique<AstDataRecord>();
    for (auto _ : state) {
        for (const auto &r : s.records) {
            ast_datarecord_decode(record.get(), r.data(), r.size(), 62, &AST_UAP_STANDARD);
            benchmark::DoNotOptimize(record->item_count);
        }
    }
    count(state, s);
}
BENCHMARK(BM_Cat062DecodeYardstick);

void BM_Cat062DecodeDisassemble(benchmark::State &state) {
    ast_log_handler_reg(nullptr);
    const auto &s = sample();
    if (s.records.empty()) return state.SkipWithError("no CAT062 record in the sample");
    auto record = std::make_unique<AstDataRecord>();
    auto out = std::make_unique<AstRecord062>();
    for (auto _ : state) {
        for (const auto &r : s.records) {
            ast_datarecord_decode(record.get(), r.data(), r.size(), 62, &AST_UAP_STANDARD);
            ast_datarecord_062_disassemble(out.get(), record.get());
            if (out->valid != 1) return state.SkipWithError("a sample record did not disassemble");
            benchmark::DoNotOptimize(out->i380.adr);
        }
    }
    count(state, s);
}
BENCHMARK(BM_Cat062DecodeDisassemble);

}  // namespace
