// The records `kovrel encode` builds from JSON objects shaped like those of
// `kovrel decode --format json`.
//
// An object names its category in "cat" and may name the profile in "uap"
// (a profile name as `kovrel uap --profile` takes it; when absent
// "cat021_ver21" for CAT021, edition 2.1, and "standard" otherwise). Its items come from two places:
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
// "fields": the record's values as the decoder shows them, each becoming
//   an item, for the categories with a reader in encode_fields_NNN.cpp
//   (see there for the keys of each; CAT048's are sac, sic, tod, typ, rho,
//   theta, mode3a, fl, icao, callsign, track, speed with heading). Values
//   are rounded to the nearest step of their item; keys the decoder shows
//   that no item carries are accepted and left out, so that decoded records
//   can be encoded again; any other key is an error.
//
// An item in "items" wins over the same item built from "fields". With
// items (a list that is not empty) the record fields give only what they
// name: I048/020 only from typ, and sac and sic are not required.
// Categories without a reader take items only; their record "fields" (what
// the decoder shows) are then ignored. Keys of the object besides cat, uap, fields and
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
