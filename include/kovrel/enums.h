/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * enums.h: small code tables shared by several categories. Each `_from_int`
 * folds a wire value into the enumeration (reserved codes go to a fixed
 * fallback); each `_to_str` returns a constant display text owned by the
 * library. Where `_to_str` takes a style, 1 gives the verbose text, 0 the
 * short identifier, any other value the short fallback text.
 */
#ifndef KOVREL_ENUMS_H
#define KOVREL_ENUMS_H

#include "kovrel/export.h"

KOVREL_BEGIN_DECLS

/* ADS-B emitter category: reserved codes and values above 24 become 25. */
KOVREL_API uint32_t ast_emitter_category_from_int(uint32_t value);
KOVREL_API const char *ast_emitter_category_to_str(uint32_t value, uint32_t style);

/* Transponder communications capability: 0-4, else 7 ("UNDEFINED"). */
KOVREL_API uint32_t ast_transponder_comm_cap_from_int(uint32_t value);
KOVREL_API const char *ast_transponder_comm_cap_to_str(uint32_t value);

/* ACAS status: 0-3, else 8 ("UNDEFINED"). */
KOVREL_API uint32_t ast_acas_status_from_int(uint32_t value);
KOVREL_API const char *ast_acas_status_to_str(uint32_t value);

/* Multiple navigational aids status: 0-3, else 8. */
KOVREL_API uint32_t ast_multi_navids_status_from_int(uint32_t value);
KOVREL_API const char *ast_multi_navids_status_to_str(uint32_t value);

/* Differential correction status: 0-3, else 8. */
KOVREL_API uint32_t ast_diff_correction_status_from_int(uint32_t value);
KOVREL_API const char *ast_diff_correction_status_to_str(uint32_t value);

/* Threat type: 0-2, else 8. */
KOVREL_API uint32_t ast_threat_type_from_int(uint32_t value);
KOVREL_API const char *ast_threat_type_to_str(uint32_t value);

/* Altitude type: 0 barometric, 1 geometric. */
KOVREL_API const char *ast_altitude_type_to_str(uint32_t value);

/* Geometric altitude source: 0-7, else 0. */
KOVREL_API uint32_t ast_geometric_altitude_source_from_int(uint32_t value);
KOVREL_API const char *ast_geometric_altitude_source_to_str(uint32_t value);

/* Selected altitude source: 0-3, else 0. */
KOVREL_API uint32_t ast_selected_altitude_source_from_int(uint32_t value);
KOVREL_API const char *ast_selected_altitude_source_to_str(uint32_t value, uint32_t style);

/* Emergency status: 0-7 kept, else 8; 7 and above have the text "UNDEFINED". */
KOVREL_API uint32_t ast_emergency_status_from_int(uint32_t value);
KOVREL_API const char *ast_emergency_status_to_str(uint32_t value);

/* IFF status: 0-3, else 0 ("NO_INTERROGATION"). */
KOVREL_API uint32_t ast_iff_status_from_int(uint32_t value);
KOVREL_API const char *ast_iff_status_to_str(uint32_t value);

/* Radar flight status: 0-5, else 8. */
KOVREL_API uint32_t ast_radar_flight_status_from_int(uint32_t value);
KOVREL_API const char *ast_radar_flight_status_to_str(uint32_t value);

/**
 * Message type name, 0 "Unknown" to 13 "Track End". Values above 13 give
 * NULL: test the result.
 */
KOVREL_API const char *ast_msgtype_to_str(uint32_t value);

/* Safety-net message types: short identifier ("STCA") and full name. */
KOVREL_API const char *ast_snet_message_type_get_id(uint32_t value);
KOVREL_API const char *ast_snet_message_type_get_name(uint32_t value);

/* Vehicle fleet identification, 0-16, "UNDEFINED" above. */
KOVREL_API const char *ast_vehicle_fleet_id_get_name(uint32_t value);

KOVREL_END_DECLS

#endif /* KOVREL_ENUMS_H */
