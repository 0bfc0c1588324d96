// The radar categories' record level over the sample recording, step by
// step: disassemble and assemble of every CAT001, CAT002 and CAT034 record,
// and the conversions alone (048 to 001, 034 to 002) on records already
// disassembled. Copying the same records' octets is the yardstick.
#include <benchmark/benchmark.h>

#include <cstring>
#include <memory>
#include <vector>

#include "kovrel/kovrel.h"
#include "sample_datagrams.h"

namespace {

using kovrel_bench::sample_records;

void count_records(benchmark::State &state, size_t per_iteration) {
    state.counters["records/s"] = benchmark::Counter(static_cast<double>(per_iteration * state.iterations()),
                                                     benchmark::Counter::kIsRate);
}

template <typename Record, void (*Disassemble)(Record *, const AstDataRecord *)>
void BM_Disassemble(benchmark::State &state, uint32_t category) {
    ast_log_handler_reg(nullptr);
    const auto &records = sample_records(category);
    if (records.empty()) return state.SkipWithError("no record of the category in the sample");
    auto out = std::make_unique<Record>();
    for (auto _ : state) {
        for (const AstDataRecord &r : records) {
            Disassemble(out.get(), &r);
            benchmark::DoNotOptimize(out->valid);
        }
    }
    count_records(state, records.size());
}

// Every record disassembled once, then assembled over and over.
template <typename Record, void (*Disassemble)(Record *, const AstDataRecord *), typename Assemble>
void assemble_all(benchmark::State &state, uint32_t category, Assemble assemble) {
    ast_log_handler_reg(nullptr);
    const auto &records = sample_records(category);
    if (records.empty()) return state.SkipWithError("no record of the category in the sample");
    std::vector<Record> disassembled(records.size());
    for (size_t i = 0; i < records.size(); ++i) Disassemble(&disassembled[i], &records[i]);
    std::vector<uint8_t> buffer(AST_DATABLOCK_MAX_LENGTH);
    AstDataRecord out;
    for (auto _ : state) {
        for (size_t i = 0; i < records.size(); ++i) {
            assemble(&out, buffer.data(), buffer.size(), &disassembled[i], &records[i].uap);
            benchmark::DoNotOptimize(out.length);
        }
    }
    count_records(state, records.size());
}

void BM_Cat001Disassemble(benchmark::State &state) {
    BM_Disassemble<AstRecord001, ast_datarecord_001_disassemble>(state, 1);
}
void BM_Cat002Disassemble(benchmark::State &state) {
    BM_Disassemble<AstRecord002, ast_datarecord_002_disassemble>(state, 2);
}
void BM_Cat034Disassemble(benchmark::State &state) {
    BM_Disassemble<AstRecord034, ast_datarecord_034_disassemble>(state, 34);
}
void BM_Cat001Assemble(benchmark::State &state) {
    assemble_all<AstRecord001, ast_datarecord_001_disassemble>(state, 1, ast_datarecord_001_assemble);
}
void BM_Cat002Assemble(benchmark::State &state) {
    assemble_all<AstRecord002, ast_datarecord_002_disassemble>(state, 2, ast_datarecord_002_assemble);
}
void BM_Cat034Assemble(benchmark::State &state) {
    assemble_all<AstRecord034, ast_datarecord_034_disassemble>(state, 34, ast_datarecord_034_assemble);
}
BENCHMARK(BM_Cat001Disassemble);
BENCHMARK(BM_Cat002Disassemble);
BENCHMARK(BM_Cat034Disassemble);
BENCHMARK(BM_Cat001Assemble);
BENCHMARK(BM_Cat002Assemble);
BENCHMARK(BM_Cat034Assemble);

// The conversion step alone, on records disassembled beforehand.
void BM_Convert048To001Only(benchmark::State &state) {
    const auto &records = sample_records(48);
    if (records.empty()) return state.SkipWithError("no CAT048 record in the sample");
    std::vector<AstRecord048> in(records.size());
    for (size_t i = 0; i < records.size(); ++i) ast_datarecord_048_disassemble(&in[i], &records[i]);
    for (auto _ : state) {
        for (const AstRecord048 &r : in) {
            const AstRecord001 out = ast_datarecord_convert_048_001(&r);
            benchmark::DoNotOptimize(out.valid);
        }
    }
    count_records(state, in.size());
}
void BM_Convert034To002Only(benchmark::State &state) {
    const auto &records = sample_records(34);
    if (records.empty()) return state.SkipWithError("no CAT034 record in the sample");
    std::vector<AstRecord034> in(records.size());
    for (size_t i = 0; i < records.size(); ++i) ast_datarecord_034_disassemble(&in[i], &records[i]);
    for (auto _ : state) {
        for (const AstRecord034 &r : in) {
            const AstRecord002 out = ast_datarecord_convert_034_002(&r);
            benchmark::DoNotOptimize(out.valid);
        }
    }
    count_records(state, in.size());
}
BENCHMARK(BM_Convert048To001Only);
BENCHMARK(BM_Convert034To002Only);

// Yardstick: the octets of the CAT001 records copied.
void BM_RadarYardstickMemcpy(benchmark::State &state) {
    const auto &records = sample_records(1);
    if (records.empty()) return state.SkipWithError("no CAT001 record in the sample");
    std::vector<uint8_t> to(AST_DATABLOCK_MAX_LENGTH);
    for (auto _ : state) {
        for (const AstDataRecord &r : records) {
            std::memcpy(to.data(), r.data, static_cast<size_t>(r.length));
            benchmark::DoNotOptimize(to.data());
            benchmark::ClobberMemory();
        }
    }
    count_records(state, records.size());
}
BENCHMARK(BM_RadarYardstickMemcpy);

}  // namespace
