// Lookup callbacks lent by the application to the detail views.
#include "core/state.h"

namespace kovrel {
AstSacGetInfoFn g_sac_get_info = nullptr;
AstSacSicGetSensorFn g_sacsic_get_sensor = nullptr;
AstIcaoAddrGetCountryFn g_icao_addr_get_country = nullptr;
AstGetNationalFlagFn g_get_national_flag = nullptr;
}  // namespace kovrel

extern "C" {

KOVREL_API void ast_reg_callback_sac_get_info(AstSacGetInfoFn fn) { kovrel::g_sac_get_info = fn; }
KOVREL_API void ast_reg_callback_sacsic_get_sensor(AstSacSicGetSensorFn fn) {
    kovrel::g_sacsic_get_sensor = fn;
}
KOVREL_API void ast_reg_callback_icao_addr_get_country(AstIcaoAddrGetCountryFn fn) {
    kovrel::g_icao_addr_get_country = fn;
}
KOVREL_API void ast_reg_callback_get_national_flag(AstGetNationalFlagFn fn) {
    kovrel::g_get_national_flag = fn;
}

}  // extern "C"
