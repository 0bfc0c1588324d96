// What `kovrel decode --format json` writes per second, category by
// category: the sample's blocks of one category, decoded by the tool's own
// session into JSON Lines that go to /dev/null. The same blocks decoded by
// the library alone are the yardstick (what the JSON costs on top).
#include <benchmark/benchmark.h>

#include <cstdio>
#include <memory>
#include <vector>

#include "kovrel/kovrel.h"
#include "sample_datagrams.h"
#include "session.h"

namespace {

// The sample's blocks of one category, back to back, as a raw recording.
std::vector<uint8_t> blocks_of(uint32_t category) {
    std::vector<uint8_t> out;
    auto block = std::make_unique<AstDataBlock>();
    for (const auto &d : kovrel_bench::sample_datagrams()) {
        for (size_t p = 0; p + 3 <= d.size(); p += block->length) {
            ast_datablock_smart_decode_into(block.get(), d.data() + p, d.size() - p);
            if (block->valid != 1) break;
            if (block->category == category) out.insert(out.end(), d.begin() + p, d.begin() + p + block->length);
        }
    }
    return out;
}

void json_of(benchmark::State &state, uint32_t category) {
    ast_log_handler_reg(nullptr);
    const std::vector<uint8_t> recording = blocks_of(category);
    if (recording.empty()) return state.SkipWithError("no block of the category in the sample");
    std::FILE *sink = std::fopen("/dev/null", "w");
    if (!sink) return state.SkipWithError("cannot open /dev/null");
    kovrel_tool::SessionSettings settings;
    settings.format = kovrel_tool::RecordFormat::Json;
    uint64_t records = 0;
    {
        kovrel_tool::DecodeSession session(settings, sink, sink);
        for (auto _ : state) {
            session.decode_memory("bench", recording.data(), recording.size());
            session.flush();
        }
        records = session.stats().records;
    }
    std::fclose(sink);
    state.SetBytesProcessed(static_cast<int64_t>(recording.size() * state.iterations()));
    state.counters["records/s"] = benchmark::Counter(static_cast<double>(records), benchmark::Counter::kIsRate);
}

// Yardstick: the same blocks decoded by the library.
void decode_of(benchmark::State &state, uint32_t category) {
    const std::vector<uint8_t> recording = blocks_of(category);
    if (recording.empty()) return state.SkipWithError("no block of the category in the sample");
    auto block = std::make_unique<AstDataBlock>();
    uint64_t records = 0;
    for (auto _ : state) {
        for (size_t p = 0; p + 3 <= recording.size(); p += block->length) {
            ast_datablock_smart_decode_into(block.get(), recording.data() + p, recording.size() - p);
            if (block->valid != 1) break;
            records += block->record_count;
        }
    }
    state.SetBytesProcessed(static_cast<int64_t>(recording.size() * state.iterations()));
    state.counters["records/s"] = benchmark::Counter(static_cast<double>(records), benchmark::Counter::kIsRate);
}

void BM_JsonCat062(benchmark::State &state) { json_of(state, 62); }
void BM_JsonCat048(benchmark::State &state) { json_of(state, 48); }
void BM_JsonCat021(benchmark::State &state) { json_of(state, 21); }
void BM_DecodeOnlyCat062(benchmark::State &state) { decode_of(state, 62); }
void BM_DecodeOnlyCat048(benchmark::State &state) { decode_of(state, 48); }
void BM_DecodeOnlyCat021(benchmark::State &state) { decode_of(state, 21); }
BENCHMARK(BM_JsonCat062);
BENCHMARK(BM_DecodeOnlyCat062);
BENCHMARK(BM_JsonCat048);
BENCHMARK(BM_DecodeOnlyCat048);
BENCHMARK(BM_JsonCat021);
BENCHMARK(BM_DecodeOnlyCat021);

}  // namespace
