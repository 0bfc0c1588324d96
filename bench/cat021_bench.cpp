// CAT021 record level over the sample recording: the block decode of every
// CAT021 datagram alone (the yardstick), the same decode followed by the
// disassemble of every record, and the assemble of what was disassembled.
#include <benchmark/benchmark.h>

#include <cstring>
#include <memory>
#include <vector>

#include "kovrel/kovrel.h"
#include "sample_datagrams.h"

namespace {

// The sample's CAT021 blocks, each with the profile that reads it, and the
// number of records they hold.
struct Sample021 {
    std::vector<std::vector<uint8_t>> blocks;
    std::vector<AstUap> profiles;
    size_t records = 0;
    size_t octets = 0;

    Sample021() {
        ast_log_handler_reg(nullptr);  // the smart decoder's failed attempts log
        auto block = std::make_unique<AstDataBlock>();
        for (const auto &d : kovrel_bench::sample_datagrams()) {
            for (size_t p = 0; p + 3 <= d.size(); p += block->length) {
                ast_datablock_smart_decode_into(block.get(), d.data() + p, d.size() - p);
                if (block->valid != 1) break;
                if (block->category != 21) continue;
                blocks.emplace_back(d.begin() + p, d.begin() + p + block->length);
                profiles.push_back(block->uap);
                records += block->record_count;
                octets += block->length;
            }
        }
    }
};

const Sample021 &sample() {
    static const Sample021 s;
    return s;
}

void count(benchmark::State &state, const Sample021 &s) {
    state.counters["records/s"] =
        benchmark::Counter(static_cast<double>(s.records * state.iterations()), benchmark::Counter::kIsRate);
    state.SetBytesProcessed(static_cast<int64_t>(s.octets * state.iterations()));
}

// The copy of the blocks' octets: what memory speed allows.
void BM_Cat021Memcpy(benchmark::State &state) {
    const Sample021 &s = sample();
    if (s.blocks.empty()) return state.SkipWithError("no CAT021 block in the sample");
    std::vector<uint8_t> to(65536);
    for (auto _ : state) {
        for (const auto &b : s.blocks) {
            std::memcpy(to.data(), b.data(), b.size());
            benchmark::DoNotOptimize(to.data());
            benchmark::ClobberMemory();
        }
    }
    count(state, s);
}
BENCHMARK(BM_Cat021Memcpy);

void BM_Cat021Decode(benchmark::State &state) {
    ast_log_handler_reg(nullptr);
    const Sample021 &s = sample();
    if (s.blocks.empty()) return state.SkipWithError("no CAT021 block in the sample");
    auto block = std::make_unique<AstDataBlock>();
    for (auto _ : state) {
        for (size_t i = 0; i < s.blocks.size(); ++i) {
            ast_datablock_decode_into(block.get(), s.blocks[i].data(), s.blocks[i].size(), &s.profiles[i]);
            benchmark::DoNotOptimize(block->record_count);
        }
    }
    count(state, s);
}
BENCHMARK(BM_Cat021Decode);

void BM_Cat021DecodeDisassemble(benchmark::State &state) {
    ast_log_handler_reg(nullptr);
    const Sample021 &s = sample();
    if (s.blocks.empty()) return state.SkipWithError("no CAT021 block in the sample");
    auto block = std::make_unique<AstDataBlock>();
    auto out = std::make_unique<AstRecord021>();
    for (auto _ : state) {
        for (size_t i = 0; i < s.blocks.size(); ++i) {
            ast_datablock_decode_into(block.get(), s.blocks[i].data(), s.blocks[i].size(), &s.profiles[i]);
            for (uint64_t r = 0; r < block->record_count; ++r) {
                ast_datarecord_021_disassemble(out.get(), &block->records[r]);
                benchmark::DoNotOptimize(out->i010.sac);
            }
        }
    }
    count(state, s);
}
BENCHMARK(BM_Cat021DecodeDisassemble);

void BM_Cat021Assemble(benchmark::State &state) {
    ast_log_handler_reg(nullptr);
    const Sample021 &s = sample();
    if (s.blocks.empty()) return state.SkipWithError("no CAT021 block in the sample");
    // Disassembled once; each record written back with its block's profile.
    std::vector<AstRecord021> in;
    std::vector<const AstUap *> uaps;
    auto block = std::make_unique<AstDataBlock>();
    for (size_t i = 0; i < s.blocks.size(); ++i) {
        ast_datablock_decode_into(block.get(), s.blocks[i].data(), s.blocks[i].size(), &s.profiles[i]);
        for (uint64_t r = 0; r < block->record_count; ++r) {
            in.emplace_back();
            ast_datarecord_021_disassemble(&in.back(), &block->records[r]);
            uaps.push_back(&s.profiles[i]);
        }
    }
    auto out = std::make_unique<AstDataRecord>();
    uint8_t buffer[1024];
    for (auto _ : state) {
        for (size_t i = 0; i < in.size(); ++i) {
            ast_datarecord_021_assemble(out.get(), buffer, sizeof buffer, &in[i], uaps[i]);
            if (out->valid != 1) return state.SkipWithError("a sample record did not assemble");
            benchmark::DoNotOptimize(buffer[0]);
        }
    }
    count(state, s);
}
BENCHMARK(BM_Cat021Assemble);

}  // namespace
