// CAT015's twelve compound items, subfield by subfield: every subfield is
// one packed layout (items/packed.h) over the item's structure,
// which gives the item's decoder and encoder, each subfield's summary and
// detail view, and the named fields (one group per subfield, present when
// its bit is set). Every subfield has a fixed length.
#include <iterator>

#include "categories/cat015/compound.h"
#include "categories/cat015/item_fields.h"
#include "items/packed.h"
#include "kovrel/cat015.h"

namespace {

using namespace kovrel::packed;

// I015/270 Target Size & Orientation.
using T270 = AstItem015_270;
constexpr Element k270Len[] = {
    KOVREL_QUANTITY(T270, "len", len, 16, 1.0 / 100.0, "m"),
};
constexpr Element k270Wdt[] = {
    KOVREL_QUANTITY(T270, "wdt", wdt, 16, 1.0 / 100.0, "m"),
};
constexpr Element k270Hgt[] = {
    KOVREL_QUANTITY(T270, "hgt", hgt, 16, 1.0 / 100.0, "m"),
};
constexpr Element k270Ort[] = {
    KOVREL_QUANTITY(T270, "ort", ort, 16, 360.0 / 65536.0, "deg"),
};
constexpr Subfield k270Subfields[] = {
    {"len", 2, KOVREL_MEMBER(T270, len_present), k270Len, std::size(k270Len)},
    {"wdt", 2, KOVREL_MEMBER(T270, wdt_present), k270Wdt, std::size(k270Wdt)},
    {"hgt", 2, KOVREL_MEMBER(T270, hgt_present), k270Hgt, std::size(k270Hgt)},
    {"ort", 2, KOVREL_MEMBER(T270, ort_present), k270Ort, std::size(k270Ort)},
};

// I015/600 Horizontal Position Information.
using T600 = AstItem015_600;
constexpr Element k600P84[] = {
    KOVREL_QUANTITY(T600, "latitude", p84_latitude, 32, 180.0 / 2147483648.0, "deg"),
    KOVREL_QUANTITY(T600, "longitude", p84_longitude, 32, 180.0 / 2147483648.0, "deg"),
};
constexpr Element k600Hpr[] = {
    KOVREL_QUANTITY(T600, "rshpx", hpr_rshpx, 16, 1.0 / 2.0, "m"),
    KOVREL_QUANTITY(T600, "rshpy", hpr_rshpy, 16, 1.0 / 2.0, "m"),
    KOVREL_QUANTITY(T600, "corshpxy", hpr_corshpxy, 8, 1.0 / 128.0, ""),
};
constexpr Element k600Hpp[] = {
    KOVREL_QUANTITY(T600, "sdhpx", hpp_sdhpx, 16, 1.0 / 4.0, "m"),
    KOVREL_QUANTITY(T600, "sdhpy", hpp_sdhpy, 16, 1.0 / 4.0, "m"),
    KOVREL_QUANTITY(T600, "cosdhpxy", hpp_cosdhpxy, 8, 1.0 / 128.0, ""),
};
constexpr Subfield k600Subfields[] = {
    {"p84", 8, KOVREL_MEMBER(T600, p84_present), k600P84, std::size(k600P84)},
    {"hpr", 5, KOVREL_MEMBER(T600, hpr_present), k600Hpr, std::size(k600Hpr)},
    {"hpp", 5, KOVREL_MEMBER(T600, hpp_present), k600Hpp, std::size(k600Hpp)},
};

// I015/601 Geometric Height Information.
using T601 = AstItem015_601;
constexpr Element k601Gh[] = {
    KOVREL_QUANTITY(T601, "gh", gh, 24, 1.0 / 100.0, "m"),
};
constexpr Element k601Rsgh[] = {
    KOVREL_QUANTITY(T601, "rsgh", rsgh, 24, 1.0 / 100.0, "m"),
};
constexpr Element k601Sdgh[] = {
    KOVREL_QUANTITY(T601, "sdgh", sdgh, 24, 1.0 / 100.0, "m"),
};
constexpr Element k601Ci6[] = {
    KOVREL_QUANTITY(T601, "uci6", ci6_uci6, 12, 16.0, "m"),
    KOVREL_QUANTITY(T601, "lci6", ci6_lci6, 12, 16.0, "m"),
};
constexpr Element k601Ci9[] = {
    KOVREL_QUANTITY(T601, "uci9", ci9_uci9, 12, 16.0, "m"),
    KOVREL_QUANTITY(T601, "lci9", ci9_lci9, 12, 16.0, "m"),
};
constexpr Element k601Coghhp[] = {
    KOVREL_QUANTITY(T601, "x", coghhp_x, 8, 1.0 / 128.0, ""),
    KOVREL_QUANTITY(T601, "y", coghhp_y, 8, 1.0 / 128.0, ""),
};
constexpr Element k601Coghhv[] = {
    KOVREL_QUANTITY(T601, "x", coghhv_x, 8, 1.0 / 128.0, ""),
    KOVREL_QUANTITY(T601, "y", coghhv_y, 8, 1.0 / 128.0, ""),
};
constexpr Element k601Coghha[] = {
    KOVREL_QUANTITY(T601, "x", coghha_x, 8, 1.0 / 128.0, ""),
    KOVREL_QUANTITY(T601, "y", coghha_y, 8, 1.0 / 128.0, ""),
};
constexpr Subfield k601Subfields[] = {
    {"gh", 3, KOVREL_MEMBER(T601, gh_present), k601Gh, std::size(k601Gh)},
    {"rsgh", 3, KOVREL_MEMBER(T601, rsgh_present), k601Rsgh, std::size(k601Rsgh)},
    {"sdgh", 3, KOVREL_MEMBER(T601, sdgh_present), k601Sdgh, std::size(k601Sdgh)},
    {"ci6", 3, KOVREL_MEMBER(T601, ci6_present), k601Ci6, std::size(k601Ci6)},
    {"ci9", 3, KOVREL_MEMBER(T601, ci9_present), k601Ci9, std::size(k601Ci9)},
    {"coghhp", 2, KOVREL_MEMBER(T601, coghhp_present), k601Coghhp, std::size(k601Coghhp)},
    {"coghhv", 2, KOVREL_MEMBER(T601, coghhv_present), k601Coghhv, std::size(k601Coghhv)},
    {"coghha", 2, KOVREL_MEMBER(T601, coghha_present), k601Coghha, std::size(k601Coghha)},
};

// I015/602 Horizontal Velocity Information.
using T602 = AstItem015_602;
constexpr Element k602Hv[] = {
    KOVREL_QUANTITY(T602, "x", hv_x, 20, 1.0 / 100.0, "m/s"),
    KOVREL_QUANTITY(T602, "y", hv_y, 20, 1.0 / 100.0, "m/s"),
};
constexpr Element k602Rshv[] = {
    KOVREL_QUANTITY(T602, "x", rshv_x, 16, 1.0 / 100.0, "m/s"),
    KOVREL_QUANTITY(T602, "y", rshv_y, 16, 1.0 / 100.0, "m/s"),
    KOVREL_QUANTITY(T602, "corshvxy", rshv_corshvxy, 8, 1.0 / 128.0, ""),
};
constexpr Element k602Sdhv[] = {
    KOVREL_QUANTITY(T602, "x", sdhv_x, 16, 1.0 / 100.0, "m/s"),
    KOVREL_QUANTITY(T602, "y", sdhv_y, 16, 1.0 / 100.0, "m/s"),
    KOVREL_QUANTITY(T602, "cohvxy", sdhv_cohvxy, 8, 1.0 / 128.0, ""),
};
constexpr Element k602Cohvhp[] = {
    KOVREL_QUANTITY(T602, "cohvxhpx", cohvhp_cohvxhpx, 8, 1.0 / 128.0, ""),
    KOVREL_QUANTITY(T602, "cohvxhpy", cohvhp_cohvxhpy, 8, 1.0 / 128.0, ""),
    KOVREL_QUANTITY(T602, "cohvyhpx", cohvhp_cohvyhpx, 8, 1.0 / 128.0, ""),
    KOVREL_QUANTITY(T602, "cohvyhpy", cohvhp_cohvyhpy, 8, 1.0 / 128.0, ""),
};
constexpr Subfield k602Subfields[] = {
    {"hv", 5, KOVREL_MEMBER(T602, hv_present), k602Hv, std::size(k602Hv)},
    {"rshv", 5, KOVREL_MEMBER(T602, rshv_present), k602Rshv, std::size(k602Rshv)},
    {"sdhv", 5, KOVREL_MEMBER(T602, sdhv_present), k602Sdhv, std::size(k602Sdhv)},
    {"cohvhp", 4, KOVREL_MEMBER(T602, cohvhp_present), k602Cohvhp, std::size(k602Cohvhp)},
};

// I015/603 Horizontal Acceleration Information.
using T603 = AstItem015_603;
constexpr Element k603Ha[] = {
    KOVREL_QUANTITY(T603, "x", ha_x, 12, 1.0 / 16.0, "m/s2"),
    KOVREL_QUANTITY(T603, "y", ha_y, 12, 1.0 / 16.0, "m/s2"),
};
constexpr Element k603Sdha[] = {
    KOVREL_QUANTITY(T603, "x", sdha_x, 12, 1.0 / 16.0, "m/s2"),
    KOVREL_QUANTITY(T603, "y", sdha_y, 12, 1.0 / 16.0, "m/s2"),
    KOVREL_QUANTITY(T603, "cohaxy", sdha_cohaxy, 8, 1.0 / 128.0, ""),
};
constexpr Element k603Cohahp[] = {
    KOVREL_QUANTITY(T603, "cohaxhpx", cohahp_cohaxhpx, 8, 1.0 / 128.0, ""),
    KOVREL_QUANTITY(T603, "cohaxhpy", cohahp_cohaxhpy, 8, 1.0 / 128.0, ""),
    KOVREL_QUANTITY(T603, "cohayhpx", cohahp_cohayhpx, 8, 1.0 / 128.0, ""),
    KOVREL_QUANTITY(T603, "coayhpy", cohahp_coayhpy, 8, 1.0 / 128.0, ""),
};
constexpr Element k603Cohahv[] = {
    KOVREL_QUANTITY(T603, "cohaxhvx", cohahv_cohaxhvx, 8, 1.0 / 128.0, ""),
    KOVREL_QUANTITY(T603, "cohaxhvy", cohahv_cohaxhvy, 8, 1.0 / 128.0, ""),
    KOVREL_QUANTITY(T603, "cohayhvx", cohahv_cohayhvx, 8, 1.0 / 128.0, ""),
    KOVREL_QUANTITY(T603, "cohayhvy", cohahv_cohayhvy, 8, 1.0 / 128.0, ""),
};
constexpr Subfield k603Subfields[] = {
    {"ha", 3, KOVREL_MEMBER(T603, ha_present), k603Ha, std::size(k603Ha)},
    {"sdha", 4, KOVREL_MEMBER(T603, sdha_present), k603Sdha, std::size(k603Sdha)},
    {"cohahp", 4, KOVREL_MEMBER(T603, cohahp_present), k603Cohahp, std::size(k603Cohahp)},
    {"cohahv", 4, KOVREL_MEMBER(T603, cohahv_present), k603Cohahv, std::size(k603Cohahv)},
};

// I015/604 Vertical Velocity Information.
using T604 = AstItem015_604;
constexpr Element k604Vv[] = {
    KOVREL_QUANTITY(T604, "vv", vv, 24, 1.0 / 100.0, "m/s"),
};
constexpr Element k604Rsvv[] = {
    KOVREL_QUANTITY(T604, "rsvv", rsvv, 16, 1.0 / 100.0, "m/s"),
};
constexpr Element k604Sdvv[] = {
    KOVREL_QUANTITY(T604, "sdvv", sdvv, 16, 1.0 / 100.0, "m/s"),
    KOVREL_QUANTITY(T604, "covvgh", sdvv_covvgh, 8, 1.0 / 128.0, ""),
};
constexpr Element k604Covvhp[] = {
    KOVREL_QUANTITY(T604, "x", covvhp_x, 8, 1.0 / 128.0, ""),
    KOVREL_QUANTITY(T604, "y", covvhp_y, 8, 1.0 / 128.0, ""),
};
constexpr Element k604Covvhv[] = {
    KOVREL_QUANTITY(T604, "x", covvhv_x, 8, 1.0 / 128.0, ""),
    KOVREL_QUANTITY(T604, "y", covvhv_y, 8, 1.0 / 128.0, ""),
};
constexpr Element k604Covvha[] = {
    KOVREL_QUANTITY(T604, "x", covvha_x, 8, 1.0 / 128.0, ""),
    KOVREL_QUANTITY(T604, "y", covvha_y, 8, 1.0 / 128.0, ""),
};
constexpr Subfield k604Subfields[] = {
    {"vv", 3, KOVREL_MEMBER(T604, vv_present), k604Vv, std::size(k604Vv)},
    {"rsvv", 2, KOVREL_MEMBER(T604, rsvv_present), k604Rsvv, std::size(k604Rsvv)},
    {"sdvv", 3, KOVREL_MEMBER(T604, sdvv_present), k604Sdvv, std::size(k604Sdvv)},
    {"covvhp", 2, KOVREL_MEMBER(T604, covvhp_present), k604Covvhp, std::size(k604Covvhp)},
    {"covvhv", 2, KOVREL_MEMBER(T604, covvhv_present), k604Covvhv, std::size(k604Covvhv)},
    {"covvha", 2, KOVREL_MEMBER(T604, covvha_present), k604Covvha, std::size(k604Covvha)},
};

// I015/605 Vertical Acceleration Information.
using T605 = AstItem015_605;
constexpr Element k605Va[] = {
    KOVREL_QUANTITY(T605, "va", va, 16, 1.0 / 100.0, "m/s2"),
};
constexpr Element k605Rsva[] = {
    KOVREL_QUANTITY(T605, "sdva", rsva_sdva, 16, 1.0 / 100.0, "m/s2"),
    KOVREL_QUANTITY(T605, "covagh", rsva_covagh, 8, 1.0 / 128.0, ""),
    KOVREL_QUANTITY(T605, "covavv", rsva_covavv, 8, 1.0 / 128.0, ""),
};
constexpr Element k605Covahp[] = {
    KOVREL_QUANTITY(T605, "x", covahp_x, 8, 1.0 / 128.0, ""),
    KOVREL_QUANTITY(T605, "y", covahp_y, 8, 1.0 / 128.0, ""),
};
constexpr Element k605Covahv[] = {
    KOVREL_QUANTITY(T605, "x", covahv_x, 8, 1.0 / 128.0, ""),
    KOVREL_QUANTITY(T605, "y", covahv_y, 8, 1.0 / 128.0, ""),
};
constexpr Element k605Covaha[] = {
    KOVREL_QUANTITY(T605, "x", covaha_x, 8, 1.0 / 128.0, ""),
    KOVREL_QUANTITY(T605, "y", covaha_y, 8, 1.0 / 128.0, ""),
};
constexpr Subfield k605Subfields[] = {
    {"va", 2, KOVREL_MEMBER(T605, va_present), k605Va, std::size(k605Va)},
    {"rsva", 4, KOVREL_MEMBER(T605, rsva_present), k605Rsva, std::size(k605Rsva)},
    {"covahp", 2, KOVREL_MEMBER(T605, covahp_present), k605Covahp, std::size(k605Covahp)},
    {"covahv", 2, KOVREL_MEMBER(T605, covahv_present), k605Covahv, std::size(k605Covahv)},
    {"covaha", 2, KOVREL_MEMBER(T605, covaha_present), k605Covaha, std::size(k605Covaha)},
};

// I015/625 Range Information.
using T625 = AstItem015_625;
constexpr Element k625R[] = {
    KOVREL_QUANTITY(T625, "r", r, 24, 1.0 / 10.0, "m"),
};
constexpr Element k625Rsr[] = {
    KOVREL_QUANTITY(T625, "rsr", rsr, 24, 1.0 / 10.0, "m"),
};
constexpr Element k625Sdr[] = {
    KOVREL_QUANTITY(T625, "sdr", sdr, 24, 1.0 / 10.0, "m"),
};
constexpr Element k625Rr[] = {
    KOVREL_QUANTITY(T625, "rr", rr, 24, 1.0 / 10.0, "m/s"),
};
constexpr Element k625Rsrr[] = {
    KOVREL_QUANTITY(T625, "rsrr", rsrr, 24, 1.0 / 10.0, "m/s"),
};
constexpr Element k625Sdrr[] = {
    KOVREL_QUANTITY(T625, "sdrr", sdrr, 24, 1.0 / 10.0, "m/s"),
    KOVREL_QUANTITY(T625, "corrr", sdrr_corrr, 8, 1.0 / 128.0, ""),
};
constexpr Element k625Ra[] = {
    KOVREL_QUANTITY(T625, "ra", ra, 16, 1.0 / 64.0, "m/s2"),
};
constexpr Element k625Sdra[] = {
    KOVREL_QUANTITY(T625, "sdra", sdra, 16, 1.0 / 128.0, "m/s2"),
    KOVREL_QUANTITY(T625, "corar", sdra_corar, 8, 1.0 / 128.0, ""),
    KOVREL_QUANTITY(T625, "corarr", sdra_corarr, 8, 1.0 / 128.0, ""),
};
constexpr Subfield k625Subfields[] = {
    {"r", 3, KOVREL_MEMBER(T625, r_present), k625R, std::size(k625R)},
    {"rsr", 3, KOVREL_MEMBER(T625, rsr_present), k625Rsr, std::size(k625Rsr)},
    {"sdr", 3, KOVREL_MEMBER(T625, sdr_present), k625Sdr, std::size(k625Sdr)},
    {"rr", 3, KOVREL_MEMBER(T625, rr_present), k625Rr, std::size(k625Rr)},
    {"rsrr", 3, KOVREL_MEMBER(T625, rsrr_present), k625Rsrr, std::size(k625Rsrr)},
    {"sdrr", 4, KOVREL_MEMBER(T625, sdrr_present), k625Sdrr, std::size(k625Sdrr)},
    {"ra", 2, KOVREL_MEMBER(T625, ra_present), k625Ra, std::size(k625Ra)},
    {"sdra", 4, KOVREL_MEMBER(T625, sdra_present), k625Sdra, std::size(k625Sdra)},
};

// I015/626 Doppler Information.
using T626 = AstItem015_626;
constexpr Element k626Dv[] = {
    KOVREL_QUANTITY(T626, "dv", dv, 24, 1.0 / 100.0, "m/s"),
};
constexpr Element k626Sddv[] = {
    KOVREL_QUANTITY(T626, "sddv", sddv, 16, 1.0 / 64.0, "m/s"),
};
constexpr Element k626Da[] = {
    KOVREL_QUANTITY(T626, "da", da, 16, 1.0 / 64.0, "m/s2"),
};
constexpr Element k626Sdda[] = {
    KOVREL_QUANTITY(T626, "sdda", sdda, 16, 1.0 / 64.0, "m/s2"),
    KOVREL_QUANTITY(T626, "codadv", sdda_codadv, 8, 1.0 / 128.0, ""),
};
constexpr Element k626Codvr[] = {
    KOVREL_QUANTITY(T626, "codvr", codvr, 8, 1.0 / 128.0, ""),
};
constexpr Element k626Codvrr[] = {
    KOVREL_QUANTITY(T626, "codvrr", codvrr, 8, 1.0 / 128.0, ""),
};
constexpr Element k626Codvra[] = {
    KOVREL_QUANTITY(T626, "codvra", codvra, 8, 1.0 / 128.0, ""),
};
constexpr Element k626Codar[] = {
    KOVREL_QUANTITY(T626, "codar", codar, 8, 1.0 / 128.0, ""),
};
constexpr Element k626Codarr[] = {
    KOVREL_QUANTITY(T626, "codarr", codarr, 8, 1.0 / 128.0, ""),
};
constexpr Element k626Codara[] = {
    KOVREL_QUANTITY(T626, "codara", codara, 8, 1.0 / 128.0, ""),
};
constexpr Subfield k626Subfields[] = {
    {"dv", 3, KOVREL_MEMBER(T626, dv_present), k626Dv, std::size(k626Dv)},
    {"sddv", 2, KOVREL_MEMBER(T626, sddv_present), k626Sddv, std::size(k626Sddv)},
    {"da", 2, KOVREL_MEMBER(T626, da_present), k626Da, std::size(k626Da)},
    {"sdda", 3, KOVREL_MEMBER(T626, sdda_present), k626Sdda, std::size(k626Sdda)},
    {"codvr", 1, KOVREL_MEMBER(T626, codvr_present), k626Codvr, std::size(k626Codvr)},
    {"codvrr", 1, KOVREL_MEMBER(T626, codvrr_present), k626Codvrr, std::size(k626Codvrr)},
    {"codvra", 1, KOVREL_MEMBER(T626, codvra_present), k626Codvra, std::size(k626Codvra)},
    {"codar", 1, KOVREL_MEMBER(T626, codar_present), k626Codar, std::size(k626Codar)},
    {"codarr", 1, KOVREL_MEMBER(T626, codarr_present), k626Codarr, std::size(k626Codarr)},
    {"codara", 1, KOVREL_MEMBER(T626, codara_present), k626Codara, std::size(k626Codara)},
};

// I015/627 Azimuth Information.
using T627 = AstItem015_627;
constexpr Element k627Az[] = {
    KOVREL_QUANTITY(T627, "az", az, 16, 360.0 / 65536.0, "deg"),
};
constexpr Element k627Rsaz[] = {
    KOVREL_QUANTITY(T627, "rsaz", rsaz, 16, 45.0 / 65536.0, "deg"),
};
constexpr Element k627Sdasz[] = {
    KOVREL_QUANTITY(T627, "sdasz", sdasz, 16, 45.0 / 65536.0, "deg"),
};
constexpr Element k627Azr[] = {
    KOVREL_QUANTITY(T627, "azr", azr, 16, 180.0 / 65536.0, "deg"),
};
constexpr Element k627Sdazr[] = {
    KOVREL_QUANTITY(T627, "sdazr", sdazr, 16, 45.0 / 65536.0, "deg"),
    KOVREL_QUANTITY(T627, "coazraz", sdazr_coazraz, 8, 1.0 / 128.0, ""),
};
constexpr Element k627Azex[] = {
    KOVREL_QUANTITY(T627, "s", azex_s, 16, 360.0 / 65536.0, "deg"),
    KOVREL_QUANTITY(T627, "e", azex_e, 16, 360.0 / 65536.0, "deg"),
};
constexpr Subfield k627Subfields[] = {
    {"az", 2, KOVREL_MEMBER(T627, az_present), k627Az, std::size(k627Az)},
    {"rsaz", 2, KOVREL_MEMBER(T627, rsaz_present), k627Rsaz, std::size(k627Rsaz)},
    {"sdasz", 2, KOVREL_MEMBER(T627, sdasz_present), k627Sdasz, std::size(k627Sdasz)},
    {"azr", 2, KOVREL_MEMBER(T627, azr_present), k627Azr, std::size(k627Azr)},
    {"sdazr", 3, KOVREL_MEMBER(T627, sdazr_present), k627Sdazr, std::size(k627Sdazr)},
    {"azex", 4, KOVREL_MEMBER(T627, azex_present), k627Azex, std::size(k627Azex)},
};

// I015/628 Elevation Information.
using T628 = AstItem015_628;
constexpr Element k628El[] = {
    KOVREL_QUANTITY(T628, "el", el, 16, 180.0 / 65536.0, "deg"),
};
constexpr Element k628Rsel[] = {
    KOVREL_QUANTITY(T628, "rsel", rsel, 16, 45.0 / 65536.0, "deg"),
};
constexpr Element k628Sdel[] = {
    KOVREL_QUANTITY(T628, "sdel", sdel, 16, 45.0 / 65536.0, "deg"),
};
constexpr Element k628Er[] = {
    KOVREL_QUANTITY(T628, "er", er, 16, 180.0 / 65536.0, "deg/s"),
};
constexpr Element k628Sder[] = {
    KOVREL_QUANTITY(T628, "sdelr", sder_sdelr, 16, 45.0 / 65536.0, "deg/s"),
    KOVREL_QUANTITY(T628, "coelrel", sder_coelrel, 8, 1.0 / 128.0, ""),
};
constexpr Element k628Elex[] = {
    KOVREL_QUANTITY(T628, "s", elex_s, 16, 180.0 / 65536.0, "deg"),
    KOVREL_QUANTITY(T628, "e", elex_e, 16, 180.0 / 65536.0, "deg"),
};
constexpr Subfield k628Subfields[] = {
    {"el", 2, KOVREL_MEMBER(T628, el_present), k628El, std::size(k628El)},
    {"rsel", 2, KOVREL_MEMBER(T628, rsel_present), k628Rsel, std::size(k628Rsel)},
    {"sdel", 2, KOVREL_MEMBER(T628, sdel_present), k628Sdel, std::size(k628Sdel)},
    {"er", 2, KOVREL_MEMBER(T628, er_present), k628Er, std::size(k628Er)},
    {"sder", 3, KOVREL_MEMBER(T628, sder_present), k628Sder, std::size(k628Sder)},
    {"elex", 4, KOVREL_MEMBER(T628, elex_present), k628Elex, std::size(k628Elex)},
};

// I015/630 Path Quality.
using T630 = AstItem015_630;
constexpr Element k630Dpp[] = {
    KOVREL_QUANTITY(T630, "dpp", dpp, 8, 1.0, "dB"),
};
constexpr Element k630Dps[] = {
    KOVREL_QUANTITY(T630, "dps", dps, 8, 1.0, "dB"),
};
constexpr Element k630Rpp[] = {
    spare(7),
    KOVREL_QUANTITY(T630, "rpp", rpp, 9, 1.0, "dB"),
};
constexpr Element k630Rps[] = {
    KOVREL_QUANTITY(T630, "rps", rps, 8, 1.0, "dB"),
};
constexpr Subfield k630Subfields[] = {
    {"dpp", 1, KOVREL_MEMBER(T630, dpp_present), k630Dpp, std::size(k630Dpp)},
    {"dps", 1, KOVREL_MEMBER(T630, dps_present), k630Dps, std::size(k630Dps)},
    {"rpp", 2, KOVREL_MEMBER(T630, rpp_present), k630Rpp, std::size(k630Rpp)},
    {"rps", 1, KOVREL_MEMBER(T630, rps_present), k630Rps, std::size(k630Rps)},
};

constexpr Compound kC270{15270, k270Subfields, std::size(k270Subfields)};
constexpr Compound kC600{15600, k600Subfields, std::size(k600Subfields)};
constexpr Compound kC601{15601, k601Subfields, std::size(k601Subfields)};
constexpr Compound kC602{15602, k602Subfields, std::size(k602Subfields)};
constexpr Compound kC603{15603, k603Subfields, std::size(k603Subfields)};
constexpr Compound kC604{15604, k604Subfields, std::size(k604Subfields)};
constexpr Compound kC605{15605, k605Subfields, std::size(k605Subfields)};
constexpr Compound kC625{15625, k625Subfields, std::size(k625Subfields)};
constexpr Compound kC626{15626, k626Subfields, std::size(k626Subfields)};
constexpr Compound kC627{15627, k627Subfields, std::size(k627Subfields)};
constexpr Compound kC628{15628, k628Subfields, std::size(k628Subfields)};
constexpr Compound kC630{15630, k630Subfields, std::size(k630Subfields)};

using I270 = CompoundValue<T270, kC270>;
using I600 = CompoundValue<T600, kC600>;
using I601 = CompoundValue<T601, kC601>;
using I602 = CompoundValue<T602, kC602>;
using I603 = CompoundValue<T603, kC603>;
using I604 = CompoundValue<T604, kC604>;
using I605 = CompoundValue<T605, kC605>;
using I625 = CompoundValue<T625, kC625>;
using I626 = CompoundValue<T626, kC626>;
using I627 = CompoundValue<T627, kC627>;
using I628 = CompoundValue<T628, kC628>;
using I630 = CompoundValue<T630, kC630>;

}  // namespace

KOVREL_PACKED_COMPOUND(015_270, AstItem015_270, I270)
KOVREL_PACKED_COMPOUND(015_600, AstItem015_600, I600)
KOVREL_PACKED_COMPOUND(015_601, AstItem015_601, I601)
KOVREL_PACKED_COMPOUND(015_602, AstItem015_602, I602)
KOVREL_PACKED_COMPOUND(015_603, AstItem015_603, I603)
KOVREL_PACKED_COMPOUND(015_604, AstItem015_604, I604)
KOVREL_PACKED_COMPOUND(015_605, AstItem015_605, I605)
KOVREL_PACKED_COMPOUND(015_625, AstItem015_625, I625)
KOVREL_PACKED_COMPOUND(015_626, AstItem015_626, I626)
KOVREL_PACKED_COMPOUND(015_627, AstItem015_627, I627)
KOVREL_PACKED_COMPOUND(015_628, AstItem015_628, I628)
KOVREL_PACKED_COMPOUND(015_630, AstItem015_630, I630)

namespace kovrel::cat015 {

void summary_270(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    subfield_summary_of<T270, kC270>(buffer, size, span, subfield_id);
}
void detail_270(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    subfield_detail_of<T270, kC270>(buffer, size, span, subfield_id);
}
void summary_600(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    subfield_summary_of<T600, kC600>(buffer, size, span, subfield_id);
}
void detail_600(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    subfield_detail_of<T600, kC600>(buffer, size, span, subfield_id);
}
void summary_601(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    subfield_summary_of<T601, kC601>(buffer, size, span, subfield_id);
}
void detail_601(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    subfield_detail_of<T601, kC601>(buffer, size, span, subfield_id);
}
void summary_602(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    subfield_summary_of<T602, kC602>(buffer, size, span, subfield_id);
}
void detail_602(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    subfield_detail_of<T602, kC602>(buffer, size, span, subfield_id);
}
void summary_603(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    subfield_summary_of<T603, kC603>(buffer, size, span, subfield_id);
}
void detail_603(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    subfield_detail_of<T603, kC603>(buffer, size, span, subfield_id);
}
void summary_604(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    subfield_summary_of<T604, kC604>(buffer, size, span, subfield_id);
}
void detail_604(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    subfield_detail_of<T604, kC604>(buffer, size, span, subfield_id);
}
void summary_605(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    subfield_summary_of<T605, kC605>(buffer, size, span, subfield_id);
}
void detail_605(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    subfield_detail_of<T605, kC605>(buffer, size, span, subfield_id);
}
void summary_625(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    subfield_summary_of<T625, kC625>(buffer, size, span, subfield_id);
}
void detail_625(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    subfield_detail_of<T625, kC625>(buffer, size, span, subfield_id);
}
void summary_626(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    subfield_summary_of<T626, kC626>(buffer, size, span, subfield_id);
}
void detail_626(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    subfield_detail_of<T626, kC626>(buffer, size, span, subfield_id);
}
void summary_627(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    subfield_summary_of<T627, kC627>(buffer, size, span, subfield_id);
}
void detail_627(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    subfield_detail_of<T627, kC627>(buffer, size, span, subfield_id);
}
void summary_628(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    subfield_summary_of<T628, kC628>(buffer, size, span, subfield_id);
}
void detail_628(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    subfield_detail_of<T628, kC628>(buffer, size, span, subfield_id);
}
void summary_630(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    subfield_summary_of<T630, kC630>(buffer, size, span, subfield_id);
}
void detail_630(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    subfield_detail_of<T630, kC630>(buffer, size, span, subfield_id);
}

}  // namespace kovrel::cat015

namespace kovrel::fields {

namespace {

constexpr auto k270LenRows = rows_of<named_count(k270Len)>(k270Len);
constinit const FieldDesc k270LenDesc = describe<T270>(k270LenRows.rows);
constexpr auto k270WdtRows = rows_of<named_count(k270Wdt)>(k270Wdt);
constinit const FieldDesc k270WdtDesc = describe<T270>(k270WdtRows.rows);
constexpr auto k270HgtRows = rows_of<named_count(k270Hgt)>(k270Hgt);
constinit const FieldDesc k270HgtDesc = describe<T270>(k270HgtRows.rows);
constexpr auto k270OrtRows = rows_of<named_count(k270Ort)>(k270Ort);
constinit const FieldDesc k270OrtDesc = describe<T270>(k270OrtRows.rows);
constexpr FieldRow k270Rows[] = {
    subfield_group("len", KOVREL_MEMBER(T270, len_present), k270LenDesc, sizeof(T270)),
    subfield_group("wdt", KOVREL_MEMBER(T270, wdt_present), k270WdtDesc, sizeof(T270)),
    subfield_group("hgt", KOVREL_MEMBER(T270, hgt_present), k270HgtDesc, sizeof(T270)),
    subfield_group("ort", KOVREL_MEMBER(T270, ort_present), k270OrtDesc, sizeof(T270)),
};

constexpr auto k600P84Rows = rows_of<named_count(k600P84)>(k600P84);
constinit const FieldDesc k600P84Desc = describe<T600>(k600P84Rows.rows);
constexpr auto k600HprRows = rows_of<named_count(k600Hpr)>(k600Hpr);
constinit const FieldDesc k600HprDesc = describe<T600>(k600HprRows.rows);
constexpr auto k600HppRows = rows_of<named_count(k600Hpp)>(k600Hpp);
constinit const FieldDesc k600HppDesc = describe<T600>(k600HppRows.rows);
constexpr FieldRow k600Rows[] = {
    subfield_group("p84", KOVREL_MEMBER(T600, p84_present), k600P84Desc, sizeof(T600)),
    subfield_group("hpr", KOVREL_MEMBER(T600, hpr_present), k600HprDesc, sizeof(T600)),
    subfield_group("hpp", KOVREL_MEMBER(T600, hpp_present), k600HppDesc, sizeof(T600)),
};

constexpr auto k601GhRows = rows_of<named_count(k601Gh)>(k601Gh);
constinit const FieldDesc k601GhDesc = describe<T601>(k601GhRows.rows);
constexpr auto k601RsghRows = rows_of<named_count(k601Rsgh)>(k601Rsgh);
constinit const FieldDesc k601RsghDesc = describe<T601>(k601RsghRows.rows);
constexpr auto k601SdghRows = rows_of<named_count(k601Sdgh)>(k601Sdgh);
constinit const FieldDesc k601SdghDesc = describe<T601>(k601SdghRows.rows);
constexpr auto k601Ci6Rows = rows_of<named_count(k601Ci6)>(k601Ci6);
constinit const FieldDesc k601Ci6Desc = describe<T601>(k601Ci6Rows.rows);
constexpr auto k601Ci9Rows = rows_of<named_count(k601Ci9)>(k601Ci9);
constinit const FieldDesc k601Ci9Desc = describe<T601>(k601Ci9Rows.rows);
constexpr auto k601CoghhpRows = rows_of<named_count(k601Coghhp)>(k601Coghhp);
constinit const FieldDesc k601CoghhpDesc = describe<T601>(k601CoghhpRows.rows);
constexpr auto k601CoghhvRows = rows_of<named_count(k601Coghhv)>(k601Coghhv);
constinit const FieldDesc k601CoghhvDesc = describe<T601>(k601CoghhvRows.rows);
constexpr auto k601CoghhaRows = rows_of<named_count(k601Coghha)>(k601Coghha);
constinit const FieldDesc k601CoghhaDesc = describe<T601>(k601CoghhaRows.rows);
constexpr FieldRow k601Rows[] = {
    subfield_group("gh", KOVREL_MEMBER(T601, gh_present), k601GhDesc, sizeof(T601)),
    subfield_group("rsgh", KOVREL_MEMBER(T601, rsgh_present), k601RsghDesc, sizeof(T601)),
    subfield_group("sdgh", KOVREL_MEMBER(T601, sdgh_present), k601SdghDesc, sizeof(T601)),
    subfield_group("ci6", KOVREL_MEMBER(T601, ci6_present), k601Ci6Desc, sizeof(T601)),
    subfield_group("ci9", KOVREL_MEMBER(T601, ci9_present), k601Ci9Desc, sizeof(T601)),
    subfield_group("coghhp", KOVREL_MEMBER(T601, coghhp_present), k601CoghhpDesc, sizeof(T601)),
    subfield_group("coghhv", KOVREL_MEMBER(T601, coghhv_present), k601CoghhvDesc, sizeof(T601)),
    subfield_group("coghha", KOVREL_MEMBER(T601, coghha_present), k601CoghhaDesc, sizeof(T601)),
};

constexpr auto k602HvRows = rows_of<named_count(k602Hv)>(k602Hv);
constinit const FieldDesc k602HvDesc = describe<T602>(k602HvRows.rows);
constexpr auto k602RshvRows = rows_of<named_count(k602Rshv)>(k602Rshv);
constinit const FieldDesc k602RshvDesc = describe<T602>(k602RshvRows.rows);
constexpr auto k602SdhvRows = rows_of<named_count(k602Sdhv)>(k602Sdhv);
constinit const FieldDesc k602SdhvDesc = describe<T602>(k602SdhvRows.rows);
constexpr auto k602CohvhpRows = rows_of<named_count(k602Cohvhp)>(k602Cohvhp);
constinit const FieldDesc k602CohvhpDesc = describe<T602>(k602CohvhpRows.rows);
constexpr FieldRow k602Rows[] = {
    subfield_group("hv", KOVREL_MEMBER(T602, hv_present), k602HvDesc, sizeof(T602)),
    subfield_group("rshv", KOVREL_MEMBER(T602, rshv_present), k602RshvDesc, sizeof(T602)),
    subfield_group("sdhv", KOVREL_MEMBER(T602, sdhv_present), k602SdhvDesc, sizeof(T602)),
    subfield_group("cohvhp", KOVREL_MEMBER(T602, cohvhp_present), k602CohvhpDesc, sizeof(T602)),
};

constexpr auto k603HaRows = rows_of<named_count(k603Ha)>(k603Ha);
constinit const FieldDesc k603HaDesc = describe<T603>(k603HaRows.rows);
constexpr auto k603SdhaRows = rows_of<named_count(k603Sdha)>(k603Sdha);
constinit const FieldDesc k603SdhaDesc = describe<T603>(k603SdhaRows.rows);
constexpr auto k603CohahpRows = rows_of<named_count(k603Cohahp)>(k603Cohahp);
constinit const FieldDesc k603CohahpDesc = describe<T603>(k603CohahpRows.rows);
constexpr auto k603CohahvRows = rows_of<named_count(k603Cohahv)>(k603Cohahv);
constinit const FieldDesc k603CohahvDesc = describe<T603>(k603CohahvRows.rows);
constexpr FieldRow k603Rows[] = {
    subfield_group("ha", KOVREL_MEMBER(T603, ha_present), k603HaDesc, sizeof(T603)),
    subfield_group("sdha", KOVREL_MEMBER(T603, sdha_present), k603SdhaDesc, sizeof(T603)),
    subfield_group("cohahp", KOVREL_MEMBER(T603, cohahp_present), k603CohahpDesc, sizeof(T603)),
    subfield_group("cohahv", KOVREL_MEMBER(T603, cohahv_present), k603CohahvDesc, sizeof(T603)),
};

constexpr auto k604VvRows = rows_of<named_count(k604Vv)>(k604Vv);
constinit const FieldDesc k604VvDesc = describe<T604>(k604VvRows.rows);
constexpr auto k604RsvvRows = rows_of<named_count(k604Rsvv)>(k604Rsvv);
constinit const FieldDesc k604RsvvDesc = describe<T604>(k604RsvvRows.rows);
constexpr auto k604SdvvRows = rows_of<named_count(k604Sdvv)>(k604Sdvv);
constinit const FieldDesc k604SdvvDesc = describe<T604>(k604SdvvRows.rows);
constexpr auto k604CovvhpRows = rows_of<named_count(k604Covvhp)>(k604Covvhp);
constinit const FieldDesc k604CovvhpDesc = describe<T604>(k604CovvhpRows.rows);
constexpr auto k604CovvhvRows = rows_of<named_count(k604Covvhv)>(k604Covvhv);
constinit const FieldDesc k604CovvhvDesc = describe<T604>(k604CovvhvRows.rows);
constexpr auto k604CovvhaRows = rows_of<named_count(k604Covvha)>(k604Covvha);
constinit const FieldDesc k604CovvhaDesc = describe<T604>(k604CovvhaRows.rows);
constexpr FieldRow k604Rows[] = {
    subfield_group("vv", KOVREL_MEMBER(T604, vv_present), k604VvDesc, sizeof(T604)),
    subfield_group("rsvv", KOVREL_MEMBER(T604, rsvv_present), k604RsvvDesc, sizeof(T604)),
    subfield_group("sdvv", KOVREL_MEMBER(T604, sdvv_present), k604SdvvDesc, sizeof(T604)),
    subfield_group("covvhp", KOVREL_MEMBER(T604, covvhp_present), k604CovvhpDesc, sizeof(T604)),
    subfield_group("covvhv", KOVREL_MEMBER(T604, covvhv_present), k604CovvhvDesc, sizeof(T604)),
    subfield_group("covvha", KOVREL_MEMBER(T604, covvha_present), k604CovvhaDesc, sizeof(T604)),
};

constexpr auto k605VaRows = rows_of<named_count(k605Va)>(k605Va);
constinit const FieldDesc k605VaDesc = describe<T605>(k605VaRows.rows);
constexpr auto k605RsvaRows = rows_of<named_count(k605Rsva)>(k605Rsva);
constinit const FieldDesc k605RsvaDesc = describe<T605>(k605RsvaRows.rows);
constexpr auto k605CovahpRows = rows_of<named_count(k605Covahp)>(k605Covahp);
constinit const FieldDesc k605CovahpDesc = describe<T605>(k605CovahpRows.rows);
constexpr auto k605CovahvRows = rows_of<named_count(k605Covahv)>(k605Covahv);
constinit const FieldDesc k605CovahvDesc = describe<T605>(k605CovahvRows.rows);
constexpr auto k605CovahaRows = rows_of<named_count(k605Covaha)>(k605Covaha);
constinit const FieldDesc k605CovahaDesc = describe<T605>(k605CovahaRows.rows);
constexpr FieldRow k605Rows[] = {
    subfield_group("va", KOVREL_MEMBER(T605, va_present), k605VaDesc, sizeof(T605)),
    subfield_group("rsva", KOVREL_MEMBER(T605, rsva_present), k605RsvaDesc, sizeof(T605)),
    subfield_group("covahp", KOVREL_MEMBER(T605, covahp_present), k605CovahpDesc, sizeof(T605)),
    subfield_group("covahv", KOVREL_MEMBER(T605, covahv_present), k605CovahvDesc, sizeof(T605)),
    subfield_group("covaha", KOVREL_MEMBER(T605, covaha_present), k605CovahaDesc, sizeof(T605)),
};

constexpr auto k625RRows = rows_of<named_count(k625R)>(k625R);
constinit const FieldDesc k625RDesc = describe<T625>(k625RRows.rows);
constexpr auto k625RsrRows = rows_of<named_count(k625Rsr)>(k625Rsr);
constinit const FieldDesc k625RsrDesc = describe<T625>(k625RsrRows.rows);
constexpr auto k625SdrRows = rows_of<named_count(k625Sdr)>(k625Sdr);
constinit const FieldDesc k625SdrDesc = describe<T625>(k625SdrRows.rows);
constexpr auto k625RrRows = rows_of<named_count(k625Rr)>(k625Rr);
constinit const FieldDesc k625RrDesc = describe<T625>(k625RrRows.rows);
constexpr auto k625RsrrRows = rows_of<named_count(k625Rsrr)>(k625Rsrr);
constinit const FieldDesc k625RsrrDesc = describe<T625>(k625RsrrRows.rows);
constexpr auto k625SdrrRows = rows_of<named_count(k625Sdrr)>(k625Sdrr);
constinit const FieldDesc k625SdrrDesc = describe<T625>(k625SdrrRows.rows);
constexpr auto k625RaRows = rows_of<named_count(k625Ra)>(k625Ra);
constinit const FieldDesc k625RaDesc = describe<T625>(k625RaRows.rows);
constexpr auto k625SdraRows = rows_of<named_count(k625Sdra)>(k625Sdra);
constinit const FieldDesc k625SdraDesc = describe<T625>(k625SdraRows.rows);
constexpr FieldRow k625Rows[] = {
    subfield_group("r", KOVREL_MEMBER(T625, r_present), k625RDesc, sizeof(T625)),
    subfield_group("rsr", KOVREL_MEMBER(T625, rsr_present), k625RsrDesc, sizeof(T625)),
    subfield_group("sdr", KOVREL_MEMBER(T625, sdr_present), k625SdrDesc, sizeof(T625)),
    subfield_group("rr", KOVREL_MEMBER(T625, rr_present), k625RrDesc, sizeof(T625)),
    subfield_group("rsrr", KOVREL_MEMBER(T625, rsrr_present), k625RsrrDesc, sizeof(T625)),
    subfield_group("sdrr", KOVREL_MEMBER(T625, sdrr_present), k625SdrrDesc, sizeof(T625)),
    subfield_group("ra", KOVREL_MEMBER(T625, ra_present), k625RaDesc, sizeof(T625)),
    subfield_group("sdra", KOVREL_MEMBER(T625, sdra_present), k625SdraDesc, sizeof(T625)),
};

constexpr auto k626DvRows = rows_of<named_count(k626Dv)>(k626Dv);
constinit const FieldDesc k626DvDesc = describe<T626>(k626DvRows.rows);
constexpr auto k626SddvRows = rows_of<named_count(k626Sddv)>(k626Sddv);
constinit const FieldDesc k626SddvDesc = describe<T626>(k626SddvRows.rows);
constexpr auto k626DaRows = rows_of<named_count(k626Da)>(k626Da);
constinit const FieldDesc k626DaDesc = describe<T626>(k626DaRows.rows);
constexpr auto k626SddaRows = rows_of<named_count(k626Sdda)>(k626Sdda);
constinit const FieldDesc k626SddaDesc = describe<T626>(k626SddaRows.rows);
constexpr auto k626CodvrRows = rows_of<named_count(k626Codvr)>(k626Codvr);
constinit const FieldDesc k626CodvrDesc = describe<T626>(k626CodvrRows.rows);
constexpr auto k626CodvrrRows = rows_of<named_count(k626Codvrr)>(k626Codvrr);
constinit const FieldDesc k626CodvrrDesc = describe<T626>(k626CodvrrRows.rows);
constexpr auto k626CodvraRows = rows_of<named_count(k626Codvra)>(k626Codvra);
constinit const FieldDesc k626CodvraDesc = describe<T626>(k626CodvraRows.rows);
constexpr auto k626CodarRows = rows_of<named_count(k626Codar)>(k626Codar);
constinit const FieldDesc k626CodarDesc = describe<T626>(k626CodarRows.rows);
constexpr auto k626CodarrRows = rows_of<named_count(k626Codarr)>(k626Codarr);
constinit const FieldDesc k626CodarrDesc = describe<T626>(k626CodarrRows.rows);
constexpr auto k626CodaraRows = rows_of<named_count(k626Codara)>(k626Codara);
constinit const FieldDesc k626CodaraDesc = describe<T626>(k626CodaraRows.rows);
constexpr FieldRow k626Rows[] = {
    subfield_group("dv", KOVREL_MEMBER(T626, dv_present), k626DvDesc, sizeof(T626)),
    subfield_group("sddv", KOVREL_MEMBER(T626, sddv_present), k626SddvDesc, sizeof(T626)),
    subfield_group("da", KOVREL_MEMBER(T626, da_present), k626DaDesc, sizeof(T626)),
    subfield_group("sdda", KOVREL_MEMBER(T626, sdda_present), k626SddaDesc, sizeof(T626)),
    subfield_group("codvr", KOVREL_MEMBER(T626, codvr_present), k626CodvrDesc, sizeof(T626)),
    subfield_group("codvrr", KOVREL_MEMBER(T626, codvrr_present), k626CodvrrDesc, sizeof(T626)),
    subfield_group("codvra", KOVREL_MEMBER(T626, codvra_present), k626CodvraDesc, sizeof(T626)),
    subfield_group("codar", KOVREL_MEMBER(T626, codar_present), k626CodarDesc, sizeof(T626)),
    subfield_group("codarr", KOVREL_MEMBER(T626, codarr_present), k626CodarrDesc, sizeof(T626)),
    subfield_group("codara", KOVREL_MEMBER(T626, codara_present), k626CodaraDesc, sizeof(T626)),
};

constexpr auto k627AzRows = rows_of<named_count(k627Az)>(k627Az);
constinit const FieldDesc k627AzDesc = describe<T627>(k627AzRows.rows);
constexpr auto k627RsazRows = rows_of<named_count(k627Rsaz)>(k627Rsaz);
constinit const FieldDesc k627RsazDesc = describe<T627>(k627RsazRows.rows);
constexpr auto k627SdaszRows = rows_of<named_count(k627Sdasz)>(k627Sdasz);
constinit const FieldDesc k627SdaszDesc = describe<T627>(k627SdaszRows.rows);
constexpr auto k627AzrRows = rows_of<named_count(k627Azr)>(k627Azr);
constinit const FieldDesc k627AzrDesc = describe<T627>(k627AzrRows.rows);
constexpr auto k627SdazrRows = rows_of<named_count(k627Sdazr)>(k627Sdazr);
constinit const FieldDesc k627SdazrDesc = describe<T627>(k627SdazrRows.rows);
constexpr auto k627AzexRows = rows_of<named_count(k627Azex)>(k627Azex);
constinit const FieldDesc k627AzexDesc = describe<T627>(k627AzexRows.rows);
constexpr FieldRow k627Rows[] = {
    subfield_group("az", KOVREL_MEMBER(T627, az_present), k627AzDesc, sizeof(T627)),
    subfield_group("rsaz", KOVREL_MEMBER(T627, rsaz_present), k627RsazDesc, sizeof(T627)),
    subfield_group("sdasz", KOVREL_MEMBER(T627, sdasz_present), k627SdaszDesc, sizeof(T627)),
    subfield_group("azr", KOVREL_MEMBER(T627, azr_present), k627AzrDesc, sizeof(T627)),
    subfield_group("sdazr", KOVREL_MEMBER(T627, sdazr_present), k627SdazrDesc, sizeof(T627)),
    subfield_group("azex", KOVREL_MEMBER(T627, azex_present), k627AzexDesc, sizeof(T627)),
};

constexpr auto k628ElRows = rows_of<named_count(k628El)>(k628El);
constinit const FieldDesc k628ElDesc = describe<T628>(k628ElRows.rows);
constexpr auto k628RselRows = rows_of<named_count(k628Rsel)>(k628Rsel);
constinit const FieldDesc k628RselDesc = describe<T628>(k628RselRows.rows);
constexpr auto k628SdelRows = rows_of<named_count(k628Sdel)>(k628Sdel);
constinit const FieldDesc k628SdelDesc = describe<T628>(k628SdelRows.rows);
constexpr auto k628ErRows = rows_of<named_count(k628Er)>(k628Er);
constinit const FieldDesc k628ErDesc = describe<T628>(k628ErRows.rows);
constexpr auto k628SderRows = rows_of<named_count(k628Sder)>(k628Sder);
constinit const FieldDesc k628SderDesc = describe<T628>(k628SderRows.rows);
constexpr auto k628ElexRows = rows_of<named_count(k628Elex)>(k628Elex);
constinit const FieldDesc k628ElexDesc = describe<T628>(k628ElexRows.rows);
constexpr FieldRow k628Rows[] = {
    subfield_group("el", KOVREL_MEMBER(T628, el_present), k628ElDesc, sizeof(T628)),
    subfield_group("rsel", KOVREL_MEMBER(T628, rsel_present), k628RselDesc, sizeof(T628)),
    subfield_group("sdel", KOVREL_MEMBER(T628, sdel_present), k628SdelDesc, sizeof(T628)),
    subfield_group("er", KOVREL_MEMBER(T628, er_present), k628ErDesc, sizeof(T628)),
    subfield_group("sder", KOVREL_MEMBER(T628, sder_present), k628SderDesc, sizeof(T628)),
    subfield_group("elex", KOVREL_MEMBER(T628, elex_present), k628ElexDesc, sizeof(T628)),
};

constexpr auto k630DppRows = rows_of<named_count(k630Dpp)>(k630Dpp);
constinit const FieldDesc k630DppDesc = describe<T630>(k630DppRows.rows);
constexpr auto k630DpsRows = rows_of<named_count(k630Dps)>(k630Dps);
constinit const FieldDesc k630DpsDesc = describe<T630>(k630DpsRows.rows);
constexpr auto k630RppRows = rows_of<named_count(k630Rpp)>(k630Rpp);
constinit const FieldDesc k630RppDesc = describe<T630>(k630RppRows.rows);
constexpr auto k630RpsRows = rows_of<named_count(k630Rps)>(k630Rps);
constinit const FieldDesc k630RpsDesc = describe<T630>(k630RpsRows.rows);
constexpr FieldRow k630Rows[] = {
    subfield_group("dpp", KOVREL_MEMBER(T630, dpp_present), k630DppDesc, sizeof(T630)),
    subfield_group("dps", KOVREL_MEMBER(T630, dps_present), k630DpsDesc, sizeof(T630)),
    subfield_group("rpp", KOVREL_MEMBER(T630, rpp_present), k630RppDesc, sizeof(T630)),
    subfield_group("rps", KOVREL_MEMBER(T630, rps_present), k630RpsDesc, sizeof(T630)),
};

}  // namespace

constinit const FieldDesc k015_270 = describe<T270, init_valid<T270, ast_dataitem_015_270_init>>(k270Rows);
constinit const FieldDesc k015_600 = describe<T600, init_valid<T600, ast_dataitem_015_600_init>>(k600Rows);
constinit const FieldDesc k015_601 = describe<T601, init_valid<T601, ast_dataitem_015_601_init>>(k601Rows);
constinit const FieldDesc k015_602 = describe<T602, init_valid<T602, ast_dataitem_015_602_init>>(k602Rows);
constinit const FieldDesc k015_603 = describe<T603, init_valid<T603, ast_dataitem_015_603_init>>(k603Rows);
constinit const FieldDesc k015_604 = describe<T604, init_valid<T604, ast_dataitem_015_604_init>>(k604Rows);
constinit const FieldDesc k015_605 = describe<T605, init_valid<T605, ast_dataitem_015_605_init>>(k605Rows);
constinit const FieldDesc k015_625 = describe<T625, init_valid<T625, ast_dataitem_015_625_init>>(k625Rows);
constinit const FieldDesc k015_626 = describe<T626, init_valid<T626, ast_dataitem_015_626_init>>(k626Rows);
constinit const FieldDesc k015_627 = describe<T627, init_valid<T627, ast_dataitem_015_627_init>>(k627Rows);
constinit const FieldDesc k015_628 = describe<T628, init_valid<T628, ast_dataitem_015_628_init>>(k628Rows);
constinit const FieldDesc k015_630 = describe<T630, init_valid<T630, ast_dataitem_015_630_init>>(k630Rows);

}  // namespace kovrel::fields
