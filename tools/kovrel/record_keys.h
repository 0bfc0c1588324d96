// The record accessors that the filter (--filter, --time) and the counts
// of --stats both read: data source, time of day and message type. Each is
// asked at most once per record, by whichever needs it first, so that
// filtering and counting the same record do not decode its items twice.
#pragma once

#include <cstdint>
#include <cstring>

#include <kovrel/kovrel.h>

#include "fields.h"

namespace kovrel_tool {

class RecordKeys {
public:
    // Starts on a record; nothing is asked yet. The record and `reader`
    // must outlive the calls below.
    void start(const AstDataRecord &record, RecordFieldReader &reader) {
        record_ = &record;
        reader_ = &reader;
        asked_ = 0;
    }

    // The accessors' answers, as ast_datarecord_get_sacsic, _get_timeofday
    // and _get_msgtype give them: zeroed (valid 0) for a record that was
    // not read whole or a category without the accessor.
    const AstDataSourceIdentifier &source() {
        if (!(asked_ & kSource)) ask(source_, &AstDataRecordFuncs::get_sacsic, kSource);
        return source_;
    }
    const AstTimeOfDay &time() {
        if (!(asked_ & kTime)) ask(time_, &AstDataRecordFuncs::get_timeofday, kTime);
        return time_;
    }
    const AstRecordMsgType &type() {
        if (!(asked_ & kType)) ask(type_, &AstDataRecordFuncs::get_msgtype, kType);
        return type_;
    }

private:
    enum : uint8_t { kSource = 1, kTime = 2, kType = 4 };

    template <typename T, typename Slot>
    void ask(T &out, Slot slot, uint8_t bit) {
        std::memset(&out, 0, sizeof out);
        asked_ |= bit;
        if (record_->valid != 1) return;
        if (const auto fn = reader_->accessors(record_->category).*slot) fn(&out, record_);
    }

    const AstDataRecord *record_ = nullptr;
    RecordFieldReader *reader_ = nullptr;
    uint8_t asked_ = 0;
    AstDataSourceIdentifier source_;
    AstTimeOfDay time_;
    AstRecordMsgType type_;
};

// The keys of the records of one block (records past the 64th are not
// filtered and have none), with the accessors of the block's category.
struct BlockKeys {
    RecordFieldReader reader;
    RecordKeys records[AST_DATABLOCK_MAX_RECORDS];

    // Starts on every record of the block.
    void start(const AstDataBlock &block) {
        for (uint64_t i = 0; i < block.record_count && i < AST_DATABLOCK_MAX_RECORDS; ++i)
            records[i].start(block.records[i], reader);
    }
};

}  // namespace kovrel_tool
