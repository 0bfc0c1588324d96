// CAT048 record level over the sample recording: disassemble of every
// CAT048 record, and assemble (with the record encoder) of what it gave.
#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

#include "kovrel/kovrel.h"
#include "sample_datagrams.h"

namespace {

// The sample's datagrams and every CAT048 record decoded from them (the
// records point into the datagrams).
struct Sample048 {
    std::vector<std::vector<uint8_t>> datagrams = kovrel_bench::sample_datagrams();
    std::vector<AstDataRecord> records;

    Sample048() {
        auto block = std::make_unique<AstDataBlock>();
        for (const auto &d : datagrams) {
            for (size_t p = 0; p + 3 <= d.size(); p += block->length) {
                ast_datablock_smart_decode_into(block.get(), d.data() + p, d.size() - p);
                if (block->valid != 1) break;
                if (block->category != 48) continue;
                records.insert(records.end(), block->records, block->records + block->record_count);
            }
        }
    }
};

const Sample048 &sample() {
    static const Sample048 s;
    return s;
}

void count_records(benchmark::State &state, size_t per_iteration) {
    state.counters["records/s"] = benchmark::Counter(static_cast<double>(per_iteration * state.iterations()),
                                                     benchmark::Counter::kIsRate);
}

void BM_Cat048Disassemble(benchmark::State &state) {
    ast_log_handler_reg(nullptr);
    const auto &records = sample().records;
    if (records.empty()) return state.SkipWithError("no CAT048 record in the sample");
    auto out = std::make_unique<AstRecord048>();
    for (auto _ : state) {
        for (const AstDataRecord &r : records) {
            ast_datarecord_048_disassemble(out.get(), &r);
            benchmark::DoNotOptimize(out->i010.sac);
        }
    }
    count_records(state, records.size());
}
BENCHMARK(BM_Cat048Disassemble);

void BM_Cat048AssembleEncode(benchmark::State &state) {
    ast_log_handler_reg(nullptr);
    const auto &records = sample().records;
    if (records.empty()) return state.SkipWithError("no CAT048 record in the sample");
    // The disassembled sample without the members that cannot be written
    // (their items have no encoder), so that every record assembles.
    std::vector<AstRecord048> in(records.size());
    for (size_t i = 0; i < records.size(); ++i) {
        AstRecord048 &d = in[i];
        ast_datarecord_048_disassemble(&d, &records[i]);
        d.i030.valid = d.i042.valid = d.i080.valid = d.i100.valid = d.i110.valid = d.i130.valid = 0;
        d.i170.valid = 0;
        d.i210.valid = d.i230.valid = d.i250.valid = d.i260.valid = 0;
    }
    auto out = std::make_unique<AstDataRecord>();
    uint8_t buffer[1024];
    for (auto _ : state) {
        for (const AstRecord048 &d : in) {
            ast_datarecord_048_assemble(out.get(), buffer, sizeof buffer, &d, &AST_UAP_STANDARD);
            if (out->valid != 1) return state.SkipWithError("a sample record did not assemble");
            benchmark::DoNotOptimize(buffer[0]);
        }
    }
    count_records(state, in.size());
}
BENCHMARK(BM_Cat048AssembleEncode);

}  // namespace
