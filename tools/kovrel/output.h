// What the tool prints for a record: one text line (and item lines), or
// one JSON object.
//
// Text line:
//   blk 12    pkt 40+22      CAT048 standard      rec 3  len 34   items 14 valid
// block number (from 1, per input), block location (see input.h), category,
// profile, record number in the block (from 1), record length, item count,
// and "valid" or "INVALID" (the record a bad block stopped at; its length
// is "-", null in JSON, and its items are those read before the failure),
// then the record's tags when it has any (see field_tags in fields.h):
//   ... items 14 valid  sac 25 sic 1  tod 12:34:56.789  Target Report  callsign DLH123
// Item line (with --items):
//     I048/010  Data Source Identifier                  len 2   19 01  | SAC:025 SIC:001
// identifier, name, length, octets in hexadecimal, summary.
//
// JSON object (one per line): input, block, offset, packet and time (for
// captures), cat, uap, record, length, item_count, valid, block_valid,
// fields (see fields.h) and items: [{id, name, len, hex, summary}, ...].
// offset is the block's octet offset: in the input for raw and hex inputs,
// in the UDP payload of the packet for captures.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include <kovrel/kovrel.h>
#include <nlohmann/json.hpp>

#include "input.h"

namespace kovrel_tool {

struct RecordView {
    std::string_view input;  // name of the input
    uint64_t block = 0;      // block number, from 1
    Location where;          // of the block
    double time = 0;         // capture time stamp, 0 when none
    const AstDataRecord *record = nullptr;
    size_t number = 0;       // record number in the block, from 1
    bool block_valid = true;
};

std::string record_line(const RecordView &view);
std::string item_line(const AstDataItem &item);

nlohmann::json item_json(const AstDataItem &item);
nlohmann::json record_json(const RecordView &view);

// One line of JSON; text that is not UTF-8 (octets of hostile input in a
// summary) is replaced, never thrown on.
std::string json_line(const nlohmann::json &value);

// The octets of an item in hexadecimal, and its summary.
std::string item_hex(const AstDataItem &item);
std::string item_summary(const AstDataItem &item);

}  // namespace kovrel_tool
