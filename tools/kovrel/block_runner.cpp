#include "block_runner.h"

#include <cstdio>

#include "counted.h"
#include "session.h"

namespace kovrel_tool {
namespace {

std::string cat_text(const uint8_t *data, size_t size) {
    if (size == 0) return "";
    char buf[8];
    std::snprintf(buf, sizeof buf, "CAT%03u", data[0]);
    return buf;
}

// Octets of a record that its FSPEC and the items read cover.
uint64_t decoded_length(const AstDataRecord &r) {
    if (!r.fspec.valid) return 0;
    uint64_t n = r.fspec.length;
    for (uint64_t i = 0; i < r.item_count && i < AST_DATARECORD_MAX_ITEMS; ++i) n += r.items[i].length;
    return n;
}

}  // namespace

unsigned video_items_decoded(const SessionSettings &settings) {
    switch (settings.format) {
    case RecordFormat::Json: return kVideoAll;
    case RecordFormat::Text: return settings.items ? unsigned{kVideoAll} : 0u;
    case RecordFormat::None: return 0;
    case RecordFormat::Csv: {
        unsigned items = 0;
        for (const CsvColumn &c : settings.columns) {
            if (c.kind != CsvColumn::ItemPath) continue;
            if (c.item == "I240/040") items |= kVideoHeaderNano;
            if (c.item == "I240/041") items |= kVideoHeaderFemto;
            if (c.item == "I240/048") items |= kVideoResolution;
        }
        return items;
    }
    }
    return kVideoAll;
}

BlockRunner::BlockRunner(const SessionSettings &settings, OutBuffer &out)
    : settings_(settings), out_(out), formatter_(out), decoder_(settings.uap),
      video_items_(video_items_decoded(settings)) {
    if (settings_.format == RecordFormat::Csv) csv_ = std::make_unique<CsvWriter>(out_, settings_.columns);
}

BlockRunner::~BlockRunner() = default;

void BlockRunner::run(std::string_view name, const BlockTask &task, Stats &stats) {
    const BlockSlice &slice = task.slice;
    auto tell = [&](const std::string &text) {
        if (on_message) on_message(text);
    };
    const std::string at = "block " + std::to_string(task.number) + " at " + format_location(slice.where);
    switch (slice.problem) {
    case SliceProblem::ShortHeader: {
        const std::string why = counted(slice.size, "octet") + " left, too few for a block header";
        tell(at + ": " + why);
        stats.count_unusable(-1, slice.size);
        stats.count_reason(why);
        break;
    }
    case SliceProblem::LengthTooSmall:
        tell(at + " (" + cat_text(slice.data, slice.size) + "): LEN " + std::to_string(slice.len) + " is below 3");
        stats.count_unusable(slice.data[0], slice.size);
        stats.count_reason("LEN " + std::to_string(slice.len) + " is below 3");
        break;
    case SliceProblem::None:
    case SliceProblem::LengthTooLarge: {
        const BlockOutcome outcome = decoder_.decode(slice.data, slice.size);
        // What the filter reads of each record, the counts use again.
        keys_.start(*outcome.block);
        const uint64_t kept = kept_records ? kept_records(*outcome.block, keys_) : ~uint64_t{0};
        stats.count_block(*outcome.block, slice.data[0], slice.size, outcome.valid, kept, &keys_);
        if (!outcome.valid) {
            tell(at + " (" + cat_text(slice.data, slice.size) + ", LEN " + std::to_string(slice.len) +
                 "): " + outcome.reason);
            stats.count_reason(outcome.reason);
        }
        emit(name, task, outcome, kept, stats);
        break;
    }
    }
    if (slice.problem == SliceProblem::LengthTooSmall || slice.problem == SliceProblem::LengthTooLarge)
        tell("the next block cannot be found; " + counted(task.rest, "octet") + " from " +
             format_location(slice.where) + " on are skipped");
}

void BlockRunner::emit(std::string_view name, const BlockTask &task, const BlockOutcome &outcome, uint64_t kept,
                       Stats &stats) {
    if (settings_.format == RecordFormat::None && !on_record) return;
    const AstDataBlock &b = *outcome.block;
    RecordView view;
    view.input = name;
    view.block = task.number;
    view.where = task.slice.where;
    view.time = task.time;
    view.src = task.src;
    view.dst = task.dst;
    view.received = task.received;
    view.block_valid = outcome.valid;
    bool writing = true;
    auto one = [&](const AstDataRecord &record, size_t number) {
        if (!writing) return;
        view.record = &record;
        view.number = number;
        ++stats.printed;
        if (on_record) {
            writing = on_record(view);
            return;
        }
        switch (settings_.format) {
        case RecordFormat::None: return;
        case RecordFormat::Json: formatter_.json_line(view); break;
        case RecordFormat::Csv: csv_->row(view); break;
        case RecordFormat::Text:
            formatter_.text_line(view);
            if (settings_.items) formatter_.item_lines(record);
            break;
        }
        video.note(record, video_items_);
        if (after_record) writing = after_record();
    };
    for (uint64_t i = 0; i < b.record_count && i < AST_DATABLOCK_MAX_RECORDS; ++i)
        if (i >= 64 || (kept >> i & 1)) one(b.records[i], static_cast<size_t>(i) + 1);
    if (outcome.failed && (!settings_.filter || settings_.filter->matches(outcome.failed->record))) {
        const FailedRecord &f = *outcome.failed;
        view.error = outcome.reason;
        const uint64_t from = f.offset + decoded_length(f.record);
        if (from < task.slice.size) {
            view.undecoded = task.slice.data + from;
            view.undecoded_size = task.slice.size - static_cast<size_t>(from);
        }
        one(f.record, f.index + 1);
    }
}

}  // namespace kovrel_tool
