// Code tables shared by several categories: folding wire values into the
// enumerations and their display texts.
//
// Every table is a constant array indexed by the value; one bounds-checked
// look-up serves them all, so any 32-bit value (0xFFFFFFFF included) lands on
// the table's fallback instead of outside the array. The texts, odd spellings
// included, are the ones existing consumers match on: keep them byte for byte.
#include <array>
#include <cstddef>
#include <cstdint>

#include "kovrel/enums.h"

namespace kovrel {
namespace {

// The entry of `value` in a dense table, or `fallback` past its end.
template <typename T, size_t N>
constexpr T entry_or(const std::array<T, N> &table, uint32_t value, T fallback) {
    return value < N ? table[value] : fallback;
}

// Wire values up to `last` are kept; anything above folds to `fallback`.
constexpr uint32_t keep_up_to(uint32_t value, uint32_t last, uint32_t fallback) {
    return value <= last ? value : fallback;
}

// A value with a short identifier and a verbose text, chosen by the style
// selector: 1 verbose, 0 short, any other selector the short fallback.
struct StyledName {
    const char *id;
    const char *text;
};

template <size_t N>
constexpr const char *styled_name(const std::array<StyledName, N> &table, uint32_t value,
                                  uint32_t style, StyledName fallback) {
    if (style == 1) return entry_or(table, value, fallback).text;
    if (style == 0) return entry_or(table, value, fallback).id;
    return fallback.id;
}

// ---- ADS-B emitter category ----

constexpr uint32_t kEmitterUnknown = 25;
constexpr StyledName kEmitterReserved{"UNKNOWN_EMITTER", "Reserved / Unknown emitter category"};

// "ROTOCRAFT" and "Skydriver" are spelled as consumers have always seen them.
constexpr std::array<StyledName, 25> kEmitterCategories{{
    {"NO_INFO", "No ADS-B Emitter Category Information"},
    {"LIGHT_AIRCRAFT", "Light aircraft (0 - 15500 lbs)"},
    {"SMALL_AIRCRAFT", "Small aircraft (15500 - 75000 lbs)"},
    {"MEDIUM_AIRCRAFT", "Medium aircraft (75000 - 300000 lbs)"},
    kEmitterReserved,
    {"HEAVY_AIRCRAFT", "Heavy aircraft (300000+ lbs)"},
    {"HIGH_MANOEUVRABLE_AIRCRAFT", "Highly manoeuvrable and high speed"},
    kEmitterReserved,
    kEmitterReserved,
    kEmitterReserved,
    {"ROTOCRAFT", "Rotocraft"},
    {"GLIDER", "Glider / Sailplane"},
    {"LIGHTER_THAN_AIR", "Lighter-than-air"},
    {"UAV", "Unmanned Aerial Vehicle"},
    {"SPACE_VEHICLE", "Space / Transatmospheric Vehicle"},
    {"ULTRALIGHT", "Ultralight / Handglider / Paraglider"},
    {"PARACHUTIST", "Parachutist / Skydriver"},
    kEmitterReserved,
    kEmitterReserved,
    kEmitterReserved,
    {"SURF_EMG_VEHICLE", "Surface emergency vehicle"},
    {"SURF_SVC_VEHICLE", "Surface service vehicle"},
    {"FIXED_OBSTRUCTION", "Fixed ground or tethered obstruction"},
    {"CLUSTER_OBSTACLE", "Cluster obstacle"},
    {"LINE_OBSTACLE", "Line obstacle"},
}};

// The codes the ADS-B standard reserves (4, 7-9, 17-19) share one fallback entry.
constexpr bool emitter_reserved(uint32_t value) {
    return value >= kEmitterCategories.size() || kEmitterCategories[value].id == kEmitterReserved.id;
}

// ---- status tables with short identifiers only ----

constexpr const char *kUndefined = "UNDEFINED";

constexpr std::array<const char *, 5> kTransponderCommCaps{{
    "NO_COMM",
    "COMM-A COMM-B",
    "COMM-A COMM-B UPLINK_ELM",
    "COMM-A COMM-B UPLINK_ELM DOWNLINK_ELM",
    "LEVEL_5",
}};
constexpr uint32_t kTransponderCommCapUndefined = 7;

// ACAS, multiple navigational aids and differential correction share one
// two-bit status coding.
constexpr std::array<const char *, 4> kOperationalStatus{{
    "UNKNOWN", "NOT_OPERATIONAL", "OPERATIONAL", "INVALID"}};
constexpr uint32_t kStatusUndefined = 8;

constexpr std::array<const char *, 3> kThreatTypes{{"UNKNOWN", "MODE_S", "MODE_AC"}};

constexpr std::array<const char *, 2> kAltitudeTypes{{"BAROMETRIC_ALTITUDE", "GEOMETRIC_ALTITUDE"}};

constexpr std::array<const char *, 8> kGeometricAltitudeSources{{
    "NO_SOURCE", "GNSS", "3D_RADAR", "TRIANGULATION",
    "COVERAGE", "SPEED_LOOKUP_TABLE", "DEFAULT", "MULTILATERATION"}};

constexpr std::array<StyledName, 4> kSelectedAltitudeSources{{
    {"UNKNOWN", "Unknown"},
    {"AC_ALTITUDE", "Aircraft Altitude"},
    {"FCU_MCP_SELECTED", "FCU/MCP Selected Altitude"},
    {"FMS_SELECTED", "FMS Selected Altitude"},
}};
constexpr StyledName kSelectedAltitudeUndefined{"UNDEFINED", "Undefined"};

// Code 7 passes through the fold (the wire field is three bits wide) but has
// no name of its own.
constexpr std::array<const char *, 7> kEmergencyStatus{{
    "NO_EMG", "GENERAL", "MEDICAL", "MINI_FUEL", "NO_COMM", "UNLAWFUL", "DOWNED"}};

// An IFF value that is not a known reply reads as "not interrogated".
constexpr std::array<const char *, 4> kIffStatus{{"NO_INTERROGATION", "FRIEND", "UNKNOWN", "NO_REPLY"}};

constexpr std::array<const char *, 6> kRadarFlightStatus{{
    "AIR", "GND", "AIR_ALR", "GND_ALR", "ALR_SPI", "SPI"}};

// ---- message types ----

constexpr std::array<const char *, 14> kMessageTypes{{
    "Unknown", "North", "Sector", "Plot", "Track", "ADS-B", "Mlat", "Video", "Surface",
    "Measurement Plot", "Measurement Track", "Sensor Centric Plot", "Sensor Centric Track",
    "Track End"}};

// Safety-net message types are numbered with gaps (1-37, then 97-99 and 201),
// so they are kept as (value, identifier, name) rows in ascending order.
struct SnetMessageType {
    uint32_t value;
    const char *id;
    const char *name;
};

constexpr std::array<SnetMessageType, 41> kSnetMessageTypes{{
    {1, "ALIVE", "Alive Message"},
    {2, "RAMLD", "Route Adherence Monitor Longitudinal Deviation"},
    {3, "RAMHD", "Route Adherence Monitor Heading Deviation"},
    {4, "MSAW", "Minimum Safe Altitude Warning"},
    {5, "APW", "Area Proximity Warning"},
    {6, "CLAM", "Clearance Level Adherence Monitor"},
    {7, "STCA", "Short Term Conflict Alert"},
    {8, "APM", "Approach Path Monitor"},
    {9, "ALM", "RIMCAS Arrival / Landing Monitor"},
    {10, "WRA", "RIMCAS Arrival / Departure Wrong Runway Alert"},
    {11, "OTA", "RIMCAS Arrival / Departure Opposite Traffic Alert"},
    {12, "RDM", "RIMCAS Departure Monitor"},
    {13, "RCM", "RIMCAS Runway / Taxiway Crossing Monitor"},
    {14, "TSM", "RIMCAS Taxiway Separation Monitor"},
    {15, "UTMM", "RIMCAS Unauthorized Taxiway Movement Monitor"},
    {16, "SBOA", "RIMCAS Stop Bar Overrun Alert"},
    {17, "EOC", "End Of Conflict"},
    {18, "ACASRA", "ACAS Resolution Advisory"},
    {19, "NTCA", "Near Term Conflict Alert"},
    {20, "DBPSM", "Downlinked Barometric Pressure Setting Monitor"},
    {21, "SAM", "Speed Adherence Monitor"},
    {22, "OCAT", "Outside Controlled Airspace Tool"},
    {23, "VCD", "Vertical Conflict Detection"},
    {24, "VRAM", "Vertical Rate Adherence Monitor"},
    {25, "CHAM", "Cleared Heading Adherence Monitor"},
    {26, "DSAM", "Downlinked Selected Altitude Monitor"},
    {27, "HAM", "Holding Adherence Monitor"},
    {28, "VPM", "Vertical Path Monitor"},
    {29, "TTA", "RIMCAS Taxiway Traffic Alert"},
    {30, "CRA", "RIMCAS Arrival/Departure Close Runway Alert"},
    {31, "ASM", "RIMCAS Arrival/Departure Aircraft Separation Monitor"},
    {32, "IAVM", "RIMCAS ILS Area Violation Monitor"},
    {33, "FTD", "Final Target Distance Indicator"},
    {34, "ITD", "Initial Target Distance Indicator"},
    {35, "IIA", "Wake Vortex Indicator Infringement Alert"},
    {36, "SQW", "Sequence Warning"},
    {37, "CUW", "Catch Up Warning"},
    {97, "LTW", "Lost Track Warning"},
    {98, "HVI", "Holding Volume Infringement"},
    {99, "AIW", "Airspace Infringement Warning"},
    {201, "MRVA", "Minimum Radar Vectoring Altitude Infringement"},
}};

template <size_t N>
constexpr bool ascending(const std::array<SnetMessageType, N> &rows) {
    for (size_t i = 1; i < rows.size(); ++i)
        if (rows[i - 1].value >= rows[i].value) return false;
    return true;
}
static_assert(ascending(kSnetMessageTypes), "safety-net rows must be unique and ascending");

// The row of `value`, or nullptr when the value is not a known message type.
constexpr const SnetMessageType *find_snet(uint32_t value) {
    for (const SnetMessageType &row : kSnetMessageTypes) {
        if (row.value == value) return &row;
        if (row.value > value) break;
    }
    return nullptr;
}

constexpr std::array<const char *, 17> kVehicleFleet{{
    "UNKNOWN", "ATC_MAINTENANCE", "AIRPORT_MAINTENANCE", "FIRE", "BIRD_SCARER", "SNOW_PLOUGH",
    "RUNWAY_SWEEPER", "EMERGENCY", "POLICE", "BUS", "TUG", "GRASS_CUTTER", "FUEL", "BAGGAGE",
    "CATERING", "AIRCRAFT_MAINTENANCE", "FOLLOW_ME"}};

}  // namespace
}  // namespace kovrel

using namespace kovrel;

extern "C" {

KOVREL_API uint32_t ast_emitter_category_from_int(uint32_t value) {
    return emitter_reserved(value) ? kEmitterUnknown : value;
}

KOVREL_API const char *ast_emitter_category_to_str(uint32_t value, uint32_t style) {
    return styled_name(kEmitterCategories, value, style, kEmitterReserved);
}

KOVREL_API uint32_t ast_transponder_comm_cap_from_int(uint32_t value) {
    return keep_up_to(value, 4, kTransponderCommCapUndefined);
}

KOVREL_API const char *ast_transponder_comm_cap_to_str(uint32_t value) {
    return entry_or(kTransponderCommCaps, value, kUndefined);
}

KOVREL_API uint32_t ast_acas_status_from_int(uint32_t value) {
    return keep_up_to(value, 3, kStatusUndefined);
}

KOVREL_API const char *ast_acas_status_to_str(uint32_t value) {
    return entry_or(kOperationalStatus, value, kUndefined);
}

KOVREL_API uint32_t ast_multi_navids_status_from_int(uint32_t value) {
    return keep_up_to(value, 3, kStatusUndefined);
}

KOVREL_API const char *ast_multi_navids_status_to_str(uint32_t value) {
    return entry_or(kOperationalStatus, value, kUndefined);
}

KOVREL_API uint32_t ast_diff_correction_status_from_int(uint32_t value) {
    return keep_up_to(value, 3, kStatusUndefined);
}

KOVREL_API const char *ast_diff_correction_status_to_str(uint32_t value) {
    return entry_or(kOperationalStatus, value, kUndefined);
}

KOVREL_API uint32_t ast_threat_type_from_int(uint32_t value) {
    return keep_up_to(value, 2, kStatusUndefined);
}

KOVREL_API const char *ast_threat_type_to_str(uint32_t value) {
    return entry_or(kThreatTypes, value, kUndefined);
}

KOVREL_API const char *ast_altitude_type_to_str(uint32_t value) {
    return entry_or(kAltitudeTypes, value, kUndefined);
}

KOVREL_API uint32_t ast_geometric_altitude_source_from_int(uint32_t value) {
    return keep_up_to(value, 7, 0);
}

KOVREL_API const char *ast_geometric_altitude_source_to_str(uint32_t value) {
    return entry_or(kGeometricAltitudeSources, value, kUndefined);
}

KOVREL_API uint32_t ast_selected_altitude_source_from_int(uint32_t value) {
    return keep_up_to(value, 3, 0);
}

KOVREL_API const char *ast_selected_altitude_source_to_str(uint32_t value, uint32_t style) {
    return styled_name(kSelectedAltitudeSources, value, style, kSelectedAltitudeUndefined);
}

KOVREL_API uint32_t ast_emergency_status_from_int(uint32_t value) {
    return keep_up_to(value, 7, kStatusUndefined);
}

KOVREL_API const char *ast_emergency_status_to_str(uint32_t value) {
    return entry_or(kEmergencyStatus, value, kUndefined);
}

KOVREL_API uint32_t ast_iff_status_from_int(uint32_t value) {
    return keep_up_to(value, 3, 0);
}

KOVREL_API const char *ast_iff_status_to_str(uint32_t value) {
    return entry_or(kIffStatus, value, kIffStatus[0]);
}

KOVREL_API uint32_t ast_radar_flight_status_from_int(uint32_t value) {
    return keep_up_to(value, 5, kStatusUndefined);
}

KOVREL_API const char *ast_radar_flight_status_to_str(uint32_t value) {
    return entry_or(kRadarFlightStatus, value, kUndefined);
}

// Unlike the other tables there is no fallback text: callers test for NULL.
KOVREL_API const char *ast_msgtype_to_str(uint32_t value) {
    return entry_or(kMessageTypes, value, static_cast<const char *>(nullptr));
}

KOVREL_API const char *ast_snet_message_type_get_id(uint32_t value) {
    const SnetMessageType *row = find_snet(value);
    return row ? row->id : kUndefined;
}

KOVREL_API const char *ast_snet_message_type_get_name(uint32_t value) {
    const SnetMessageType *row = find_snet(value);
    return row ? row->name : ast_snet_message_type_get_id(value);
}

KOVREL_API const char *ast_vehicle_fleet_id_get_name(uint32_t value) {
    return entry_or(kVehicleFleet, value, kUndefined);
}

}  // extern "C"
