// What the library's record accessors say about a record, as the `fields`
// object of the JSON output, as CSV columns and as the tags of the text
// line.
//
// Keys, each present only when the accessor answers for the record, in
// this order:
//   sac, sic    integers
//   tod         "HH:MM:SS.mmm" (milliseconds truncated)
//   msgtype     the message type's name ("Target Report"); its number when
//               the name is unknown
//   track       track number
//   mode3a      four octal digits ("5077")
//   fl          flight level in feet
//   sel_alt     selected altitude in feet
//   callsign    up to eight characters, cut at the first blank
//   icao        six upper-case hexadecimal digits ("3C654A")
//   lat, lon    WGS-84 position in degrees
//   rho, theta  polar position: range in NM, azimuth in degrees
//   x, y        Cartesian position in metres
//   speed       ground speed in knots
//   heading     degrees
//   vx, vy      Cartesian velocity in m/s
//   vrate       vertical rate in ft/min
// Numbers are the accessors' values as they are (no rounding).
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include <kovrel/kovrel.h>

#include "json_writer.h"
#include "out_buffer.h"

namespace kovrel_tool {

enum class RecordField : uint8_t {
    Sac, Sic, Tod, MsgType, Track, Mode3a, Fl, SelAlt, Callsign, Icao,
    Lat, Lon, Rho, Theta, X, Y, Speed, Heading, Vx, Vy, Vrate,
};
constexpr size_t kRecordFieldCount = 21;

// The key of a field ("sel_alt"), and the field of a key.
const char *record_field_name(RecordField field);
bool find_record_field(std::string_view name, RecordField &field);

// The record accessors, one bit each; a field needs the bit of its accessor.
enum : uint32_t {
    kAskSource = 1u << 0, kAskTime = 1u << 1, kAskType = 1u << 2, kAskTrack = 1u << 3,
    kAskMode3a = 1u << 4, kAskLevel = 1u << 5, kAskSelected = 1u << 6, kAskCallsign = 1u << 7,
    kAskAddress = 1u << 8, kAskWgs84 = 1u << 9, kAskPolar = 1u << 10, kAskSpeed = 1u << 11,
    kAskHeading = 1u << 12, kAskVelocity = 1u << 13, kAskRate = 1u << 14, kAskCartesian = 1u << 15,
    kAskAll = (1u << 16) - 1,
    // With kAskMode3a: the code only when there is no callsign to show.
    kAskMode3aUnlessCallsign = 1u << 16,
    // What the text line shows.
    kAskTags = kAskSource | kAskTime | kAskType | kAskCallsign | kAskMode3a | kAskMode3aUnlessCallsign,
};
uint32_t record_field_accessor(RecordField field);

// The accessors' answers for one record.
struct RecordFields {
    uint32_t answered = 0;  // kAsk* bits of the accessors that answered
    uint32_t sac = 0, sic = 0;
    AstTimeOfDay tod{};
    uint32_t msgtype = 0;
    const char *msgtype_name = nullptr;  // nullptr when the number has no name
    uint32_t track = 0;
    uint32_t mode3a = 0;
    double fl = 0, sel_alt = 0;
    char callsign[9] = {};
    size_t callsign_length = 0;
    uint32_t icao = 0;
    double lat = 0, lon = 0, rho = 0, theta = 0, x = 0, y = 0, speed = 0, heading = 0, vx = 0, vy = 0, vrate = 0;

    bool has(RecordField field) const { return (answered & record_field_accessor(field)) != 0; }
};

// Asks the record accessors of `ask` (kAsk* bits), and no other. The
// accessors of the last category read are kept and called directly (as
// ast_datarecord_get_* call them), which saves looking them up for every
// record and every field.
class RecordFieldReader {
public:
    void read(RecordFields &out, const AstDataRecord &record, uint32_t ask = kAskAll);
    // The accessors of a category.
    const AstDataRecordFuncs &accessors(uint32_t category) {
        if (!known_ || category != category_) {
            ast_datarecord_get_func(&funcs_, category);
            category_ = category;
            known_ = true;
        }
        return funcs_;
    }

private:
    AstDataRecordFuncs funcs_{};
    uint32_t category_ = 0;
    bool known_ = false;
};

// One field's value: a number, a real or a text.
struct FieldValue {
    enum Kind { Unsigned, Real, Text } kind = Unsigned;
    uint64_t u = 0;
    double real = 0;
    const char *text = nullptr;
    size_t length = 0;
};
constexpr size_t kFieldScratch = 48;
// The value of a field the record has; texts that need formatting are
// written into scratch.
FieldValue record_field_value(const RecordFields &fields, RecordField field, char (&scratch)[kFieldScratch]);

// The `fields` object.
void write_fields_json(JsonWriter &json, const RecordFields &fields);

// The text line's tags: "sac 25 sic 1  tod 12:34:56.789  Target Report
// callsign DLH123" (mode3a 5077 when there is no callsign); groups without
// a value are left out, nothing when none has one. Each group written is
// preceded by two blanks.
void put_field_tags(OutBuffer &out, const RecordFields &fields);

}  // namespace kovrel_tool
