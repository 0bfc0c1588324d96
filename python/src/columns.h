// Records into typed column buffers, for DataFrames.
//
// The columns are those of `kovrel decode --format csv` (record columns,
// record fields, item field paths) and hold the same values, but typed
// rather than as text:
//   Int    64-bit integers, with a validity byte per row when the column
//          may be empty (packet, length, sac, track, item fields, ...);
//   Real   doubles, NaN where the record has no value;
//   Bool   valid, block_valid;
//   Text   a code per row into a table of distinct texts (-1: no value),
//          the layout of a categorical column;
//   Time   capture time stamps, seconds since 1970 (NaN: none);
//   Tod    time of day, seconds since midnight (NaN: none).
// An item field takes the kind of its first value: integers (flags,
// numbers, enumeration codes), reals, or texts (texts, octets in
// hexadecimal, Mode 3/A codes in octal and addresses in hexadecimal, as the
// CSV writes them). A later value of another kind widens the column:
// integers to reals, numbers to texts.
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

struct Column {
    enum Kind { Unknown, Int, Real, Bool, Text, Time, Tod };
    std::string name;
    Kind kind = Unknown;
    bool nullable = true;
    std::vector<int64_t> ints;
    std::vector<double> reals;
    std::vector<uint8_t> valid;  // Int and Bool: 1 where the row has a value
    std::vector<int32_t> codes;  // Text
    std::deque<std::string> texts;
    std::unordered_map<std::string_view, int32_t, TextHash, std::equal_to<>> text_index;
    size_t pending = 0;  // rows of an Unknown column (all without a value)

    size_t size() const;
    void put_missing();
    void put_int(int64_t v);
    void put_real(double v);
    void put_bool(bool v);
    void put_text(std::string_view v);
    // Turns the column into `kind`: an Unknown one with its rows missing,
    // or a number column widened (integers to reals, numbers to texts).
    void become(Kind kind);
};

class ColumnSink : public RecordSink {
public:
    explicit ColumnSink(std::vector<kovrel_tool::CsvColumn> columns);

    void record(const kovrel_tool::RecordView &view) override;

    std::vector<Column> &columns() { return columns_; }
    size_t rows() const { return rows_; }

private:
    struct ItemGroup {
        std::string item;
        std::vector<size_t> columns;
    };
    int group_of(AstItemId id);
    void walk_item(const AstDataItem &item, const ItemGroup &group);

    std::vector<kovrel_tool::CsvColumn> spec_;
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
