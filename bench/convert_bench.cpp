// The conversions over the sample recording: every CAT048 record
// disassembled, converted to CAT001 and assembled, every CAT034 record to
// CAT002 the same way; copying the same records' octets is the yardstick.
#include <benchmark/benchmark.h>

#include <cstring>
#include <memory>
#include <vector>

#include "kovrel/kovrel.h"
#include "sample_datagrams.h"

namespace {

struct SampleRecords {
    std::vector<std::vector<uint8_t>> datagrams = kovrel_bench::sample_datagrams();
    std::vector<AstDataRecord> r048, r034;

    SampleRecords() {
        auto block = std::make_unique<AstDataBlock>();
        for (const auto &d : datagrams) {
            for (size_t p = 0; p + 3 <= d.size(); p += block->length) {
                ast_datablock_smart_decode_into(block.get(), d.data() + p, d.size() - p);
                if (block->valid != 1) break;
                auto &to = block->category == 48 ? r048 : r034;
                if (block->category == 48 || block->category == 34)
                    to.insert(to.end(), block->records, block->records + block->record_count);
            }
        }
    }
};

const SampleRecords &sample() {
    static const SampleRecords s;
    return s;
}

void count_records(benchmark::State &state, size_t per_iteration) {
    state.counters["records/s"] = benchmark::Counter(static_cast<double>(per_iteration * state.iterations()),
                                                     benchmark::Counter::kIsRate);
}

void BM_Convert048To001(benchmark::State &state) {
    ast_log_handler_reg(nullptr);
    const auto &records = sample().r048;
    if (records.empty()) return state.SkipWithError("no CAT048 record in the sample");
    auto src = std::make_unique<AstRecord048>();
    auto out = std::make_unique<AstDataRecord>();
    uint8_t buffer[1024];
    for (auto _ : state) {
        for (const AstDataRecord &r : records) {
            ast_datarecord_048_disassemble(src.get(), &r);
            const AstRecord001 converted = ast_datarecord_convert_048_001(src.get());
            ast_datarecord_001_assemble(out.get(), buffer, sizeof buffer, &converted, nullptr);
            if (out->valid != 1) return state.SkipWithError("a sample record did not convert");
            benchmark::DoNotOptimize(buffer[0]);
        }
    }
    count_records(state, records.size());
}
BENCHMARK(BM_Convert048To001);

void BM_Convert034To002(benchmark::State &state) {
    ast_log_handler_reg(nullptr);
    const auto &records = sample().r034;
    if (records.empty()) return state.SkipWithError("no CAT034 record in the sample");
    auto src = std::make_unique<AstRecord034>();
    auto out = std::make_unique<AstDataRecord>();
    uint8_t buffer[1024];
    for (auto _ : state) {
        for (const AstDataRecord &r : records) {
            ast_datarecord_034_disassemble(src.get(), &r);
            const AstRecord002 converted = ast_datarecord_convert_034_002(src.get());
            ast_datarecord_002_assemble(out.get(), buffer, sizeof buffer, &converted, &AST_UAP_STANDARD);
            benchmark::DoNotOptimize(out->length);
            benchmark::DoNotOptimize(buffer[0]);
        }
    }
    count_records(state, records.size());
}
BENCHMARK(BM_Convert034To002);

// Copying each record's octets: what any conversion costs at the least.
void BM_ConvertYardstickMemcpy(benchmark::State &state) {
    const auto &a = sample().r048;
    const auto &b = sample().r034;
    uint8_t buffer[1024];
    for (auto _ : state) {
        for (const auto *records : {&a, &b})
            for (const AstDataRecord &r : *records) {
                std::memcpy(buffer, r.data, r.length < sizeof buffer ? r.length : sizeof buffer);
                benchmark::DoNotOptimize(buffer[0]);
                benchmark::ClobberMemory();
            }
    }
    count_records(state, a.size() + b.size());
}
BENCHMARK(BM_ConvertYardstickMemcpy);

}  // namespace
