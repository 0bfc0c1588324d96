// Item-level work over the tool's sample recording (CAT001, 002, 021 in two
// editions, 034, 048 with Mode S registers, 062): decode every block, then
// summarise, render or structurally decode every item of every record.
#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

#include "kovrel/kovrel.h"
#include "sample_datagrams.h"

namespace {

// Runs `per_item` over every item of the decoded sample, counting records
// and items.
template <typename PerItem>
void run_sample(benchmark::State &state, PerItem per_item) {
    ast_log_handler_reg(nullptr);
    const auto datagrams = kovrel_bench::sample_datagrams();
    auto block = std::make_unique<AstDataBlock>();
    size_t records = 0, items = 0, bytes = 0;
    for (auto _ : state) {
        for (const auto &d : datagrams) {
            size_t p = 0;
            while (p + 3 <= d.size()) {
                ast_datablock_smart_decode_into(block.get(), d.data() + p, d.size() - p);
                if (block->valid != 1) {
                    state.SkipWithError("invalid block in the sample");
                    return;
                }
                for (uint64_t r = 0; r < block->record_count; ++r) {
                    const AstDataRecord &record = block->records[r];
                    for (uint64_t i = 0; i < record.item_count; ++i) per_item(record.items[i]);
                    items += record.item_count;
                }
                records += block->record_count;
                p += block->length;
            }
            bytes += d.size();
        }
    }
    state.SetBytesProcessed(static_cast<int64_t>(bytes));
    state.counters["records/s"] = benchmark::Counter(static_cast<double>(records), benchmark::Counter::kIsRate);
    state.counters["items/s"] = benchmark::Counter(static_cast<double>(items), benchmark::Counter::kIsRate);
    // Seconds per item, printed with its unit prefix ("113n" is 113 ns).
    state.counters["per_item"] = benchmark::Counter(static_cast<double>(items),
                                                    benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void BM_SampleDecodeOnly(benchmark::State &state) {
    run_sample(state, [](const AstDataItem &item) { benchmark::DoNotOptimize(item.data); });
}
BENCHMARK(BM_SampleDecodeOnly);

void BM_SampleDecodeSummary(benchmark::State &state) {
    char text[512];
    run_sample(state, [&](const AstDataItem &item) {
        ast_dataitem_get_summary(text, sizeof text, &item);
        benchmark::DoNotOptimize(text[0]);
    });
}
BENCHMARK(BM_SampleDecodeSummary);

void BM_SampleDecodeStructured(benchmark::State &state) {
    alignas(16) static uint8_t storage[1 << 14];
    run_sample(state, [&](const AstDataItem &item) {
        AstDataItemValue value;
        AstDataItemFuncs f;
        ast_dataitem_get_func(&f, item.id);
        if (f.decode_ex) f.decode_ex(&value, storage, sizeof storage, &item);
        benchmark::DoNotOptimize(storage[0]);
    });
}
BENCHMARK(BM_SampleDecodeStructured);

// Every item's named fields as JSON, and the same walk through a visitor
// that only counts: what the JSON writing adds on top of the walk.
void BM_SampleFieldsJson(benchmark::State &state) {
    char text[4096];
    run_sample(state, [&](const AstDataItem &item) {
        ast_dataitem_get_fields_json(text, sizeof text, &item);
        benchmark::DoNotOptimize(text[0]);
    });
}
BENCHMARK(BM_SampleFieldsJson);

void BM_SampleFieldsWalk(benchmark::State &state) {
    size_t fields = 0;
    run_sample(state, [&](const AstDataItem &item) {
        ast_dataitem_walk_fields(
            &item, [](void *count, const AstField *) { return static_cast<int>(++*static_cast<size_t *>(count) != 0); },
            &fields);
    });
    benchmark::DoNotOptimize(fields);
}
BENCHMARK(BM_SampleFieldsWalk);

void BM_SampleDetailHtml(benchmark::State &state) {
    static char html[1 << 16];
    run_sample(state, [&](const AstDataItem &item) {
        ast_dataitem_get_detail_html(html, sizeof html, &item);
        benchmark::DoNotOptimize(html[0]);
    });
}
BENCHMARK(BM_SampleDetailHtml);

}  // namespace
