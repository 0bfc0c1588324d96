// Records into typed column buffers, for DataFrames.
//
// The columns are those of `kovrel decode --format csv` (record columns,
// record fields, item field paths) and hold the same values, but typed
// rather than as text:
//   Int    64-bit integers, with a byte per row that is 1 where the row has
//          no value when the column may be empty (packet, length, sac,
//          track, item fields, ...);
//   Real   doubles, NaN where the record has no value;
//   Bool   valid, block_valid: a byte per row, 0 or 1;
//   Text   a code per row into a table of distinct texts (-1: no value),
//          the layout of a categorical column;
//   Time   capture time stamps, nanoseconds since 1970 (INT64_MIN: none);
//   Tod    time of day, nanoseconds since midnight (INT64_MIN: none).
// An item field takes the kind of its first value: integers (flags,
// numbers, enumeration codes), reals, or texts (texts, octets in
// hexadecimal, Mode 3/A codes in octal and addresses in hexadecimal, as the
// CSV writes them). A later value of another kind widens the column:
// integers to reals, numbers to texts.
//
// Rows are filled without a text per cell: the record fields that are
// texts (message type, Mode 3/A, callsign, address, profile) are looked up
// by their raw number, and their text is written once, when a value is
// first met.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <kovrel/kovrel.h>

#include "fields.h"
#include "output.h"
#include "output_csv.h"
#include "stream.h"

namespace kovrel_py {

struct TextHash {
    using is_transparent = void;
    size_t operator()(std::string_view s) const { return std::hash<std::string_view>{}(s); }
};

// Codes by 64-bit key: open addressing in a table of a power of two slots
// kept at most half full (a column has a few thousand distinct values at
// most; a lookup is a multiplication and, mostly, one probe).
class KeyCodes {
public:
    // The code of `key`: -1 in a new slot that the caller sets.
    int32_t &at(uint64_t key) {
        if (2 * (used_ + 1) > slots_.size()) grow();
        const size_t mask = slots_.size() - 1;
        for (size_t i = static_cast<size_t>((key * 0x9E3779B97F4A7C15ull) >> 32) & mask;; i = (i + 1) & mask) {
            Slot &s = slots_[i];
            if (s.used && s.key == key) return s.code;
            if (!s.used) {
                s = Slot{key, -1, true};
                ++used_;
                return s.code;
            }
        }
    }

private:
    void grow();
    struct Slot {
        uint64_t key;
        int32_t code;
        bool used;
    };
    std::vector<Slot> slots_ = std::vector<Slot>(64);
    size_t used_ = 0;
};

// The distinct texts of a column, coded from 0 in the order they are met.
class TextTable {
public:
    // The code of a text, added when it is new.
    int32_t code(std::string_view text);
    // The code of a value known by a number that tells it apart (a Mode 3/A
    // code, an address, eight callsign characters): `text()` gives its text
    // and is called only the first time the number is met.
    template <typename TextOf>
    int32_t code_of(uint64_t key, TextOf text) {
        if (last_code_ >= 0 && key == last_key_) return last_code_;
        int32_t &slot = by_key_.at(key);
        if (slot < 0) slot = code(text());
        last_key_ = key;
        last_code_ = slot;
        return slot;
    }
    const std::deque<std::string> &texts() const { return texts_; }

private:
    std::deque<std::string> texts_;  // a deque: the keys below point into its texts
    std::unordered_map<std::string_view, int32_t, TextHash, std::equal_to<>> by_text_;
    KeyCodes by_key_;
    uint64_t last_key_ = 0;
    int32_t last_code_ = -1;
    int32_t last_text_code_ = -1;  // the text last asked (a run of one input's name)
};

struct Column {
    enum Kind { Unknown, Int, Real, Bool, Text, Time, Tod };
    std::string name;
    Kind kind = Unknown;
    bool nullable = true;
    std::vector<int64_t> ints;     // Int; Time and Tod in nanoseconds
    std::vector<double> reals;     // Real
    std::vector<uint8_t> bytes;    // Int (nullable): 1 where the row has no value; Bool: the values
    std::vector<int32_t> codes;    // Text
    TextTable texts;
    size_t pending = 0;  // rows of an Unknown column (all without a value)

    size_t size() const;
    void put_missing();
    void put_int(int64_t v) {
        if (kind != Int) return put_int_other(v);
        ints.push_back(v);
        if (nullable) bytes.push_back(0);
    }
    void put_real(double v) {
        if (kind != Real) return put_real_other(v);
        reals.push_back(v);
    }
    void put_bool(bool v);
    void put_text(std::string_view v);
    void put_code(int32_t code) { codes.push_back(code); }  // Text only
    // Seconds as Time or Tod nanoseconds (NaN: none).
    void put_seconds(double seconds);
    // Room for `rows` rows in all, so that filling does not copy.
    void reserve(size_t rows);
    // put_int and put_real into a column of another kind.
    void put_int_other(int64_t v);
    void put_real_other(double v);
    // Turns the column into `kind`: an Unknown one with its rows missing,
    // or a number column widened (integers to reals, numbers to texts).
    void become(Kind kind);
};

class ColumnSink : public RecordSink {
public:
    explicit ColumnSink(std::vector<kovrel_tool::CsvColumn> columns);

    void record(const kovrel_tool::RecordView &view) override;

    std::vector<Column> &columns() { return columns_; }
    // Room for `rows` rows in all.
    void reserve(size_t rows) {
        for (Column &c : columns_) c.reserve(rows);
    }
    size_t rows() const { return rows_; }

    // Where a column's value comes from, worked out once.
    enum class Source : uint8_t {
        Input, Block, Offset, Packet, Time, Cat, Uap, Record, Length, ItemCount, Valid, BlockValid,
        Sac, Sic, Track, Tod, MsgType, Mode3a, Callsign, Icao, RealField, ItemPath,
    };

private:
    struct ItemGroup {
        std::string item;
        std::vector<size_t> columns;
    };
    struct Fill {
        Source source;
        uint32_t ask = 0;                          // record fields: the accessor's bit
        double kovrel_tool::RecordFields::*real = nullptr;  // RealField: the member
    };
    int group_of(AstItemId id);
    void walk_item(const AstDataItem &item, const ItemGroup &group);
    void put_field(Column &col, const Fill &fill);

    std::vector<kovrel_tool::CsvColumn> spec_;
    std::vector<Fill> fills_;
    std::vector<Column> columns_;
    std::vector<uint8_t> filled_;
    uint32_t ask_ = 0;
    std::vector<ItemGroup> groups_;
    std::unordered_map<AstItemId, int> group_of_id_;
    kovrel_tool::ProfileLabels label_;
    kovrel_tool::RecordFieldReader reader_;
    kovrel_tool::RecordFields fields_;
    size_t rows_ = 0;

    friend struct ColumnWalk;
};

}  // namespace kovrel_py
