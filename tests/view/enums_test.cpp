// Enumeration folds and display names: boundaries, fallbacks and the texts
// consumers match on.
#include <gtest/gtest.h>

#include <cstdint>

#include "kovrel/enums.h"

namespace {

constexpr uint32_t kHuge = 0xFFFFFFFFu;

TEST(Enums, EmitterCategoryFoldsReservedCodes) {
    for (uint32_t reserved : {4u, 7u, 8u, 9u, 17u, 18u, 19u, 25u, 26u, kHuge})
        EXPECT_EQ(ast_emitter_category_from_int(reserved), 25u) << reserved;
    for (uint32_t kept : {0u, 3u, 5u, 6u, 10u, 16u, 20u, 24u})
        EXPECT_EQ(ast_emitter_category_from_int(kept), kept) << kept;
}

TEST(Enums, EmitterCategoryTextsByStyle) {
    EXPECT_STREQ(ast_emitter_category_to_str(0, 1), "No ADS-B Emitter Category Information");
    EXPECT_STREQ(ast_emitter_category_to_str(10, 0), "ROTOCRAFT");
    EXPECT_STREQ(ast_emitter_category_to_str(10, 1), "Rotocraft");
    EXPECT_STREQ(ast_emitter_category_to_str(16, 1), "Parachutist / Skydriver");
    EXPECT_STREQ(ast_emitter_category_to_str(24, 1), "Line obstacle");
    // Reserved codes inside the table and values past it.
    EXPECT_STREQ(ast_emitter_category_to_str(4, 0), "UNKNOWN_EMITTER");
    EXPECT_STREQ(ast_emitter_category_to_str(19, 1), "Reserved / Unknown emitter category");
    EXPECT_STREQ(ast_emitter_category_to_str(25, 1), "Reserved / Unknown emitter category");
    EXPECT_STREQ(ast_emitter_category_to_str(25, 0), "UNKNOWN_EMITTER");
    EXPECT_STREQ(ast_emitter_category_to_str(kHuge, 1), "Reserved / Unknown emitter category");
    EXPECT_STREQ(ast_emitter_category_to_str(kHuge, 0), "UNKNOWN_EMITTER");
    // Any other style gives the short fallback, even for a known category.
    EXPECT_STREQ(ast_emitter_category_to_str(3, 2), "UNKNOWN_EMITTER");
    EXPECT_STREQ(ast_emitter_category_to_str(3, kHuge), "UNKNOWN_EMITTER");
}

TEST(Enums, StatusFoldsKeepTheirRangeAndFallBack) {
    EXPECT_EQ(ast_transponder_comm_cap_from_int(4), 4u);
    EXPECT_EQ(ast_transponder_comm_cap_from_int(5), 7u);
    for (auto fold : {ast_acas_status_from_int, ast_multi_navids_status_from_int,
                      ast_diff_correction_status_from_int}) {
        EXPECT_EQ(fold(3), 3u);
        EXPECT_EQ(fold(4), 8u);
        EXPECT_EQ(fold(kHuge), 8u);
    }
    EXPECT_EQ(ast_threat_type_from_int(2), 2u);
    EXPECT_EQ(ast_threat_type_from_int(3), 8u);
    EXPECT_EQ(ast_geometric_altitude_source_from_int(7), 7u);
    EXPECT_EQ(ast_geometric_altitude_source_from_int(8), 0u);
    EXPECT_EQ(ast_selected_altitude_source_from_int(3), 3u);
    EXPECT_EQ(ast_selected_altitude_source_from_int(4), 0u);
    EXPECT_EQ(ast_emergency_status_from_int(7), 7u);
    EXPECT_EQ(ast_emergency_status_from_int(8), 8u);
    EXPECT_EQ(ast_emergency_status_from_int(kHuge), 8u);
    EXPECT_EQ(ast_iff_status_from_int(3), 3u);
    EXPECT_EQ(ast_iff_status_from_int(9), 0u);
    EXPECT_EQ(ast_radar_flight_status_from_int(5), 5u);
    EXPECT_EQ(ast_radar_flight_status_from_int(6), 8u);
}

TEST(Enums, StatusTextsAtTheirBoundaries) {
    EXPECT_STREQ(ast_transponder_comm_cap_to_str(4), "LEVEL_5");
    EXPECT_STREQ(ast_transponder_comm_cap_to_str(5), "UNDEFINED");
    for (auto text : {ast_acas_status_to_str, ast_multi_navids_status_to_str,
                      ast_diff_correction_status_to_str}) {
        EXPECT_STREQ(text(1), "NOT_OPERATIONAL");
        EXPECT_STREQ(text(3), "INVALID");
        EXPECT_STREQ(text(4), "UNDEFINED");
        EXPECT_STREQ(text(kHuge), "UNDEFINED");
    }
    EXPECT_STREQ(ast_threat_type_to_str(2), "MODE_AC");
    EXPECT_STREQ(ast_threat_type_to_str(3), "UNDEFINED");
    EXPECT_STREQ(ast_altitude_type_to_str(1), "GEOMETRIC_ALTITUDE");
    EXPECT_STREQ(ast_altitude_type_to_str(2), "UNDEFINED");
    EXPECT_STREQ(ast_geometric_altitude_source_to_str(2), "3D_RADAR");
    EXPECT_STREQ(ast_geometric_altitude_source_to_str(7), "MULTILATERATION");
    EXPECT_STREQ(ast_geometric_altitude_source_to_str(8), "UNDEFINED");
    EXPECT_STREQ(ast_emergency_status_to_str(6), "DOWNED");
    EXPECT_STREQ(ast_emergency_status_to_str(ast_emergency_status_from_int(7)), "UNDEFINED");
    EXPECT_STREQ(ast_radar_flight_status_to_str(5), "SPI");
    EXPECT_STREQ(ast_radar_flight_status_to_str(6), "UNDEFINED");
    // IFF has no "UNDEFINED": anything but a known reply reads as not interrogated.
    EXPECT_STREQ(ast_iff_status_to_str(0), "NO_INTERROGATION");
    EXPECT_STREQ(ast_iff_status_to_str(3), "NO_REPLY");
    EXPECT_STREQ(ast_iff_status_to_str(4), "NO_INTERROGATION");
    EXPECT_STREQ(ast_iff_status_to_str(kHuge), "NO_INTERROGATION");
}

TEST(Enums, SelectedAltitudeSourceStyles) {
    EXPECT_STREQ(ast_selected_altitude_source_to_str(2, 0), "FCU_MCP_SELECTED");
    EXPECT_STREQ(ast_selected_altitude_source_to_str(2, 1), "FCU/MCP Selected Altitude");
    EXPECT_STREQ(ast_selected_altitude_source_to_str(4, 1), "Undefined");
    EXPECT_STREQ(ast_selected_altitude_source_to_str(4, 0), "UNDEFINED");
    EXPECT_STREQ(ast_selected_altitude_source_to_str(kHuge, 1), "Undefined");
    EXPECT_STREQ(ast_selected_altitude_source_to_str(1, 2), "UNDEFINED");
}

TEST(Enums, MessageTypeEndsWithNull) {
    EXPECT_STREQ(ast_msgtype_to_str(0), "Unknown");
    EXPECT_STREQ(ast_msgtype_to_str(5), "ADS-B");
    EXPECT_STREQ(ast_msgtype_to_str(13), "Track End");
    EXPECT_EQ(ast_msgtype_to_str(14), nullptr);
    EXPECT_EQ(ast_msgtype_to_str(kHuge), nullptr);
}

TEST(Enums, SafetyNetTypesAcrossTheGaps) {
    EXPECT_STREQ(ast_snet_message_type_get_id(7), "STCA");
    EXPECT_STREQ(ast_snet_message_type_get_name(7), "Short Term Conflict Alert");
    EXPECT_STREQ(ast_snet_message_type_get_id(37), "CUW");
    EXPECT_STREQ(ast_snet_message_type_get_name(30), "RIMCAS Arrival/Departure Close Runway Alert");
    EXPECT_STREQ(ast_snet_message_type_get_id(97), "LTW");
    EXPECT_STREQ(ast_snet_message_type_get_id(99), "AIW");
    EXPECT_STREQ(ast_snet_message_type_get_name(201),
                 "Minimum Radar Vectoring Altitude Infringement");
    for (uint32_t unknown : {0u, 38u, 96u, 100u, 200u, 202u, kHuge}) {
        EXPECT_STREQ(ast_snet_message_type_get_id(unknown), "UNDEFINED") << unknown;
        EXPECT_STREQ(ast_snet_message_type_get_name(unknown), "UNDEFINED") << unknown;
    }
}

TEST(Enums, VehicleFleetNames) {
    EXPECT_STREQ(ast_vehicle_fleet_id_get_name(0), "UNKNOWN");
    EXPECT_STREQ(ast_vehicle_fleet_id_get_name(16), "FOLLOW_ME");
    EXPECT_STREQ(ast_vehicle_fleet_id_get_name(17), "UNDEFINED");
    EXPECT_STREQ(ast_vehicle_fleet_id_get_name(kHuge), "UNDEFINED");
}

}  // namespace
