// `kovrel decode --format csv`: one header row, then one row per record.
//
// A column is one of
//   - a record column: input, block, offset, packet, time, cat, uap,
//     record, length, item_count, valid, block_valid, src, dst (as in the
//     JSON output), or a key of the record fields (sac, sic, tod, ..., vrate;
//     see fields.h);
//   - an item field: the item's identifier as the library writes it
//     ("I048/040"), a dot, and the path of the field in the item's field
//     description, names joined by dots, array elements by their position
//     from 0: "I048/040.rho", "I048/250.bds60.ias", "I048/130.srl.srl",
//     "I048/030.codes.1".
// A cell is empty when the record has no such value (no such item, the
// item has no such field, the accessor does not answer). Values are written
// as the JSON output writes them, strings without their quotes: record
// columns as the tool does (35025.0, true), item fields as the library's
// field JSON does (reals in their shortest digits, Mode 3/A codes in octal,
// addresses and octets in hexadecimal, enumerations as their code); NaN and
// infinities leave the cell empty, and so does a path that names a group or
// an array rather than a value.
//
// Record column names are checked when the columns are read; item fields
// cannot be (an item describes its fields only when one is decoded), so a
// misspelt path gives an empty column. Cells are quoted as RFC 4180 says
// (when they hold a comma, a quote or a line end; quotes doubled); rows end
// with "\n".
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <kovrel/kovrel.h>

#include "fields.h"
#include "output.h"
#include "out_buffer.h"

namespace kovrel_tool {

// The columns without --columns: block, offset, cat, uap, record, valid and
// every record field.
std::string default_csv_columns();

struct CsvColumn {
    enum Kind { Record, Field, ItemPath } kind = Record;
    std::string name;  // as given
    int record = 0;    // Record: which view value (see output_csv.cpp)
    RecordField field = RecordField::Sac;
    std::string item;  // ItemPath: "I048/040"
    std::string path;  // ItemPath: "rho"
};

// Reads a comma-separated list of columns. On a bad one returns false with
// error set ("unknown column 'foo' ...").
bool parse_csv_columns(std::string_view list, std::vector<CsvColumn> &columns, std::string &error);

class CsvWriter {
public:
    CsvWriter(OutBuffer &out, std::vector<CsvColumn> columns);

    void header();
    void row(const RecordView &view);

private:
    // The item fields asked of one item identifier text.
    struct ItemGroup {
        std::string item;
        std::vector<size_t> columns;  // indices into columns_
    };
    // The group of an identifier (-1: none asked), worked out once per identifier.
    int group_of(AstItemId id);
    void walk_item(const AstDataItem &item, const ItemGroup &group);
    void cell(std::string_view text);

    OutBuffer &out_;
    std::vector<CsvColumn> columns_;
    uint32_t ask_ = 0;  // the accessors the record fields need
    std::vector<ItemGroup> groups_;
    std::unordered_map<AstItemId, int> group_of_id_;
    std::vector<std::string> cells_;  // item field cells of the current row
    std::vector<bool> filled_;
    ProfileLabels label_;
    RecordFieldReader reader_;
    RecordFields fields_;  // of the record being written

    friend struct CsvWalk;
};

}  // namespace kovrel_tool
