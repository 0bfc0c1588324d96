// The records `kovrel encode` builds from JSON objects shaped like those of
// `kovrel decode --format json`.
//
// An object names its category in "cat" and may name the profile in "uap"
// (a profile name as `kovrel uap --profile` takes it; "standard" when
// absent). Its items come from two places:
//
// "items": a list of objects shaped like the decoded items,
//   {"id": "I048/040", "fields": {"rho": 12.5, "theta": 45.0}, "hex": "..."}.
//   The id is the item's text as the decoder prints it; it must be an item
//   of the category in the profile. An item the library encodes from a
//   structure and whose fields it describes is built from "fields": each
//   value is set by its dotted path (a nested object is a group: "srl.srl"),
//   numbers and booleans as they are, strings as texts, except where the
//   field is a Mode 3/A code or an address, whose strings are read as octal
//   ("7700") or hexadecimal ("3C654A") digits; a null leaves the field at
//   its default. Any other item is copied from "hex" (octets as the decoder
//   prints them, "30 00 0c"; blanks are optional), which must hold exactly
//   one item of that id. Other keys of an item (name, len, summary) are
//   ignored. An item that has usable fields is built from them even when
//   "hex" is also given.
//
// "fields" (category 48 only): the record's values as the decoder shows
//   them, each becoming an item:
//   sac, sic (both)            I048/010; required without items
//   tod                        I048/140: "HH:MM:SS[.fff]" or seconds since midnight
//   typ (0..7)                 I048/020, written without items even when typ
//                              is absent: TYP as given, else 5 (SSR + Mode S
//                              roll-call) with icao, 2 (SSR) without
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
// an error.
//
// An item in "items" wins over the same item built from "fields". With
// items (a list that is not empty) the record fields give only what they
// name: I048/020 only from typ, and sac and sic are not required. Other
// categories take items only; their record "fields" (what the decoder
// shows) are then ignored. Keys of the object besides cat, uap, fields and
// items (input, block, ...) are ignored.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <kovrel/kovrel.h>
#include <nlohmann/json.hpp>

namespace kovrel_tool {

// One item as written on the wire.
struct ItemOctets {
    AstItemId id = 0;
    std::vector<uint8_t> octets;
};

// One record to assemble: its items in any order, each item once and each
// one of the category in the profile.
struct RecordRequest {
    uint32_t category = 0;
    AstUap uap{};
    std::vector<ItemOctets> items;
};

// Fills `out` from one JSON object. False, with the reason in `error`
// ("fl: not a number", "I048/040.rho: value out of range"), when the object
// cannot be a record.
bool record_from_json(const nlohmann::json &object, RecordRequest &out, std::string &error);

}  // namespace kovrel_tool
