// CAT010 and CAT020 record level over the sample recording: every surface
// movement and multilateration record decoded and disassembled, beside the
// plain record decode of the same octets as the yardstick.
#include <benchmark/benchmark.h>

#include <memory>

#include "kovrel/kovrel.h"
#include "sample_datagrams.h"

namespace {

void count(benchmark::State &state, const std::vector<AstDataRecord> &records) {
    size_t octets = 0;
    for (const auto &r : records) octets += r.length;
    state.counters["records/s"] = benchmark::Counter(static_cast<double>(records.size() * state.iterations()),
                                                     benchmark::Counter::kIsRate);
    state.SetBytesProcessed(static_cast<int64_t>(octets * state.iterations()));
}

template <uint32_t Category>
void BM_DecodeYardstick(benchmark::State &state) {
    ast_log_handler_reg(nullptr);
    const auto &records = kovrel_bench::sample_records(Category);
    if (records.empty()) return state.SkipWithError("no record of the category in the sample");
    auto record = std::make_unique<AstDataRecord>();
    for (auto _ : state) {
        for (const auto &r : records) {
            ast_datarecord_decode(record.get(), r.data, r.length, Category, &AST_UAP_STANDARD);
            benchmark::DoNotOptimize(record->item_count);
        }
    }
    count(state, records);
}

template <uint32_t Category, typename Flat, void (*Disassemble)(Flat *, const AstDataRecord *)>
void BM_DecodeDisassemble(benchmark::State &state) {
    ast_log_handler_reg(nullptr);
    const auto &records = kovrel_bench::sample_records(Category);
    if (records.empty()) return state.SkipWithError("no record of the category in the sample");
    auto record = std::make_unique<AstDataRecord>();
    auto flat = std::make_unique<Flat>();
    for (auto _ : state) {
        for (const auto &r : records) {
            ast_datarecord_decode(record.get(), r.data, r.length, Category, &AST_UAP_STANDARD);
            Disassemble(flat.get(), record.get());
            benchmark::DoNotOptimize(flat->valid);
        }
    }
    count(state, records);
}

BENCHMARK(BM_DecodeYardstick<10>)->Name("BM_Cat010DecodeYardstick");
BENCHMARK(BM_DecodeDisassemble<10, AstRecord010, ast_datarecord_010_disassemble>)->Name("BM_Cat010DecodeDisassemble");
BENCHMARK(BM_DecodeYardstick<20>)->Name("BM_Cat020DecodeYardstick");
BENCHMARK(BM_DecodeDisassemble<20, AstRecord020, ast_datarecord_020_disassemble>)->Name("BM_Cat020DecodeDisassemble");

}  // namespace
