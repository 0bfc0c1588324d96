// Record facts several categories read from items of the same layout: the
// data source, the callsign of a target identification, the WGS-84
// position, the Mode C or geometric height, and the registers of Mode S MB
// data (selected altitude from BDS 4,0, vertical rate from BDS 6,0). Each
// takes the item identifier of the category at hand and leaves the result
// all zeros (SAC/SIC: all ones) when the record has no such item or it does
// not decode.
#pragma once

#include "kovrel/datarecord.h"
#include "record/record_access.h"

namespace kovrel::access {

// A scaled value, or all zeros when !ok.
void set_value(AstRecordValue *out, bool ok, double value);

// A Cartesian position in metres.
void set_cartesian(AstRecordCartesian *out, double x, double y);

// The position of the first item id, decoded into T whose x and y are
// metres (through decode when given, else the item's structured decode).
template <typename T, typename... Decode>
void cartesian_of(AstRecordCartesian *out, const AstDataRecord *record, AstItemId id, Decode... decode) {
    clear(out);
    T position;
    if (decode_first(&position, record, id, decode...)) set_cartesian(out, position.x, position.y);
}

void sacsic_of(AstDataSourceIdentifier *out, const AstDataRecord *record, AstItemId id);

// The eight characters of a target identification item (AstTargetId).
void callsign_of_target_id(AstRecordCallsign *out, const AstDataRecord *record, AstItemId id);

// Latitude and longitude of a common WGS-84 position item (AstPositionWgs84).
void wgs84_of(AstRecordWgs84 *out, const AstDataRecord *record, AstItemId id);

// Feet from a Mode C code item (1/4 FL); false, *out untouched, when the
// record has none.
bool flightlevel_of_mode_c(AstRecordValue *out, const AstDataRecord *record, AstItemId id);

// Feet from a common height item (AstHeight); false when the record has none.
bool height_of(AstRecordValue *out, const AstDataRecord *record, AstItemId id);

// The MCP/FCU selected altitude of the first BDS 4,0 register of a Mode S
// MB data item that announces it.
void selaltitude_of_mb(AstRecordValue *out, const AstDataRecord *record, AstItemId id);

// The barometric altitude rate of the first BDS 6,0 register of a Mode S
// MB data item that announces it, else its inertial vertical velocity
// (ft/min, LSB 32 ft/min).
void vrate_of_mb(AstVerticalRate *out, const AstDataRecord *record, AstItemId id);

}  // namespace kovrel::access
