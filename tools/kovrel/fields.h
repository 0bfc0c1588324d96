// What the library's record accessors say about a record, as the `fields`
// object of the JSON output and as the tags of the text line.
//
// Keys, each present only when the accessor answers for the record:
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
//   speed       ground speed in knots
//   heading     degrees
//   vx, vy      Cartesian velocity in m/s
//   vrate       vertical rate in ft/min
// Numbers are the accessors' values as they are (no rounding).
#pragma once

#include <string>

#include <kovrel/kovrel.h>
#include <nlohmann/json.hpp>

namespace kovrel_tool {

nlohmann::json record_fields(const AstDataRecord &record);

// The text line's tags, taken from the fields: "sac 25 sic 1  tod
// 12:34:56.789  Target Report  callsign DLH123" (mode3a 5077 when there is no
// callsign); groups without a value are left out, empty when none has one.
std::string field_tags(const nlohmann::json &fields);

}  // namespace kovrel_tool
