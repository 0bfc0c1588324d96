// The records `kovrel encode` builds from JSON objects shaped like those of
// `kovrel decode --format json`: "cat" and a "fields" object (see fields.h).
//
// Category 48 only. The fields become items:
//   sac, sic (both, required)  I048/010
//   tod                        I048/140: "HH:MM:SS[.fff]" or seconds since midnight
//   typ (0..7)                 I048/020, always written: TYP as given, else 5
//                              (SSR + Mode S roll-call) with icao, 2 (SSR) without
//   rho, theta (both)          I048/040: NM, degrees
//   mode3a                     I048/070: one to four octal digits, as a string
//   fl                         I048/090: feet
//   icao                       I048/220: one to six hexadecimal digits, not 0
//   callsign                   I048/240: up to 8 characters A-Z, 0-9, blank
//   track (0..4095)            I048/161
//   speed with heading         I048/200: knots, degrees (a heading alone
//                              is left out, see below)
// Values are rounded to the nearest step of their item (tod 1/128 s, fl 25
// ft, rho 1/256 NM, theta and heading 360/65536 degree, speed 2^-14 NM/s);
// azimuths are taken modulo 360. The keys the decoder shows that these
// items do not carry (msgtype, sel_alt, lat, lon, vx, vy, vrate, and a
// heading without speed: the decoder reads CAT048 headings from the Mode S
// registers of I048/250 and has no CAT048 speed) are accepted and left out,
// so that decoded records can be encoded again; any other key in fields is
// an error. Keys of the object besides cat and
// fields (input, block, items, ...) are ignored.
#pragma once

#include <string>

#include <kovrel/kovrel.h>
#include <nlohmann/json.hpp>

namespace kovrel_tool {

// One record for the library's encoder: input's items point into values,
// so a request stays where it was made.
struct RecordRequest {
    AstDataRecordInput input{};
    AstRecord048 values{};

    RecordRequest() = default;
    RecordRequest(const RecordRequest &) = delete;
    RecordRequest &operator=(const RecordRequest &) = delete;
};

// Fills `out` from one JSON object. False, with the reason in `error`
// ("fl: not a number"), when the object cannot be a record.
bool record_from_json(const nlohmann::json &object, RecordRequest &out, std::string &error);

}  // namespace kovrel_tool
