// What the tool prints for a record: one text line (and item lines), or
// one JSON object.
//
// Text line:
//   blk 12    pkt 40+22      CAT048 standard      rec 3  len 34   items 14 valid
// block number (from 1, per input), block location (see input.h), category,
// profile, record number in the block (from 1), record length, item count,
// and "valid" or "INVALID" (the record a bad block stopped at; its length
// is "-", null in JSON, and its items are those read before the failure),
// then the record's tags when it has any (see put_field_tags in fields.h):
//   ... items 14 valid  sac 25 sic 1  tod 12:34:56.789  Target Report  callsign DLH123
// and, for datagrams (captures, live input), their sender: "  src 192.0.2.1:8600".
// Item line (with --items):
//     I048/010  Data Source Identifier                  len 2   19 01  | SAC:025 SIC:001
// identifier, name, length, octets in hexadecimal, summary.
//
// JSON object (one per line), keys in this order: input, block, offset,
// packet and time (for captures; rx_time instead for live input: when the
// datagram was received), src and dst (the datagram's addresses,
// "192.0.2.1:8600", when known), cat, uap, record, length, item_count,
// valid, block_valid, for the record a bad block stopped at error (why the
// block is bad) and hex (its octets from where decoding stopped to the end
// of the block, as items' hex), fields (see fields.h) and items: [{id,
// name, len, hex, summary, fields}, ...]. offset is the block's octet offset: in the
// input for raw and hex inputs, in the UDP payload of the packet for
// captures. An item's fields are the library's description of its values
// (ast_dataitem_get_fields_json); the key is left out for items that have
// none.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include <kovrel/kovrel.h>

#include "fields.h"
#include "input.h"
#include "json_writer.h"
#include "out_buffer.h"

namespace kovrel_tool {

struct RecordView {
    std::string_view input;  // name of the input
    uint64_t block = 0;      // block number, from 1
    Location where;          // of the block
    double time = 0;         // capture time stamp or receive time, 0 when none
    NetAddress src, dst;     // the datagram's sender and destination (captures, live input)
    bool received = false;   // live input: time is the receive time (rx_time)
    const AstDataRecord *record = nullptr;
    size_t number = 0;       // record number in the block, from 1
    bool block_valid = true;
    // The record a bad block stopped at: why, and its octets from where
    // decoding stopped to the end of the block (none when nothing is left).
    std::string_view error;
    const uint8_t *undecoded = nullptr;
    size_t undecoded_size = 0;
};

// The octets of an item as lower-case hexadecimal pairs separated by
// blanks, as ast_dataitem_get_hex_str writes them (nothing for an item that
// is not valid).
void put_item_hex(OutBuffer &out, const AstDataItem &item);
// Any octets the same way (nothing for none).
void put_hex(OutBuffer &out, const uint8_t *data, size_t size);

// Most characters of a summary; longer ones are cut.
constexpr size_t kSummarySize = 4096;

// The profile label of a record (profile_label), kept for the last profile
// and category asked.
class ProfileLabels {
public:
    const char *operator()(const AstDataRecord &record);

private:
    decltype(AstUap::get_dataitem) uap_ = nullptr;
    uint32_t category_ = 0;
    const char *label_ = nullptr;
};

// Writes records into an OutBuffer as text lines, item lines or JSON
// lines, each ended by '\n'. What does not change from one record to the
// next (an item's identifier and name, a profile's label) is worked out
// once and kept.
class RecordFormatter {
public:
    explicit RecordFormatter(OutBuffer &out);
    ~RecordFormatter();
    RecordFormatter(const RecordFormatter &) = delete;
    RecordFormatter &operator=(const RecordFormatter &) = delete;

    void text_line(const RecordView &view);
    void item_lines(const AstDataRecord &record);
    void json_line(const RecordView &view);

private:
    struct ItemText {
        std::string id;         // "I048/010"
        std::string json_head;  // {"id":"I048/010","name":"...","len":
        std::string text_head;  // "    I048/010  Data Source Identifier ...  len "
    };
    const ItemText &item_text(AstItemId id);
    static ItemText make_item_text(AstItemId id);
    void item_json(const AstDataItem &item);

    OutBuffer &out_;
    std::unordered_map<AstItemId, ItemText> items_;
    // The texts of identifiers met lately, by a hash of the identifier.
    struct Recent {
        AstItemId id = 0;
        const ItemText *text = nullptr;
    };
    Recent recent_[256];
    ProfileLabels label_;
    RecordFieldReader reader_;
    RecordFields fields_;  // of the record being written
    std::string input_;       // the input name last escaped, and the line's
    std::string input_json_;  // opening up to the block number: {"input":"...","block":
    const char *uap_ = nullptr;  // the profile label last written, and its JSON text
    std::string uap_json_;
    std::unique_ptr<char[]> summary_;
};

}  // namespace kovrel_tool
