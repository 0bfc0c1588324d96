// Process-wide library state: options word, log handler and lookup callbacks.
#pragma once

#include "kovrel/core.h"

namespace kovrel {

extern uint32_t g_options;
extern AstLogHandler g_log_handler;
extern AstSacGetInfoFn g_sac_get_info;
extern AstSacSicGetSensorFn g_sacsic_get_sensor;
extern AstIcaoAddrGetCountryFn g_icao_addr_get_country;
extern AstGetNationalFlagFn g_get_national_flag;

inline bool option_set(uint32_t mask) { return (g_options & mask) != 0; }
inline bool logging_enabled() { return g_log_handler != nullptr; }

}  // namespace kovrel
