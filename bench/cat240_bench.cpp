// CAT240 video unpacking: ast_datarecord_240_get_vector on a radial of
// 4096 8-bit cells from the sample recording, beside copying the same cell
// octets as the yardstick.
#include <benchmark/benchmark.h>

#include <cstring>
#include <vector>

#include "kovrel/kovrel.h"
#include "sample_datagrams.h"

namespace {

constexpr uint64_t kCells = 4096;

// The first video record of the sample with 4096 8-bit cells.
struct Radial {
    AstRecord240 video{};
    const uint8_t *octets = nullptr;
    bool found = false;

    Radial() {
        ast_log_handler_reg(nullptr);
        for (const AstDataRecord &r : kovrel_bench::sample_records(240)) {
            ast_datarecord_240_disassemble(&video, &r);
            const AstVideoVector v = ast_datarecord_240_get_vector(&video, nullptr, 0);
            if (v.status == AST_VIDEO_NO_ROOM && v.res == 4 && v.cell_count == kCells) {
                octets = video.i052.valid ? video.i052.video : video.i051.valid ? video.i051.video : video.i050.video;
                found = true;
                return;
            }
        }
    }
};

const Radial &radial() {
    static const Radial r;
    return r;
}

void count(benchmark::State &state) {
    state.counters["cells/s"] =
        benchmark::Counter(static_cast<double>(kCells * state.iterations()), benchmark::Counter::kIsRate);
    state.SetBytesProcessed(static_cast<int64_t>(kCells * state.iterations()));
}

void BM_Cat240CopyYardstick(benchmark::State &state) {
    const Radial &r = radial();
    if (!r.found) return state.SkipWithError("no 4096-cell 8-bit radial in the sample");
    std::vector<uint8_t> to(kCells);
    for (auto _ : state) {
        std::memcpy(to.data(), r.octets, kCells);
        benchmark::DoNotOptimize(to.data());
        benchmark::ClobberMemory();
    }
    count(state);
}
BENCHMARK(BM_Cat240CopyYardstick);

void BM_Cat240GetVector(benchmark::State &state) {
    const Radial &r = radial();
    if (!r.found) return state.SkipWithError("no 4096-cell 8-bit radial in the sample");
    ast_log_handler_reg(nullptr);
    std::vector<uint32_t> cells(kCells);
    for (auto _ : state) {
        const AstVideoVector v = ast_datarecord_240_get_vector(&r.video, cells.data(), cells.size());
        benchmark::DoNotOptimize(v.cell_count);
        benchmark::ClobberMemory();
    }
    count(state);
}
BENCHMARK(BM_Cat240GetVector);

}  // namespace
