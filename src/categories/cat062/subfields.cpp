// CAT062 compound items: the subfields of I062/110, 290, 295, 340, 380, 390
// and 500, each with its short identifier, display name and size.
//
// Short identifiers follow the CAT062 standard edition 1.18. Display names
// are the library's own texts, misspellings included ("Brometric",
// "Avisory", "Uncertanty"): consumers display and match on them.
#include "categories/cat062/subfields.h"

#include "categories/cat062/item_fields.h"
#include "kovrel/cat062.h"

namespace kovrel {
namespace {

constexpr SubfieldRow k110Subfields[] = {
    {"SUM", "Mode 5 Summary", SubfieldRule::Fixed, 1, nullptr, cat062::summary_110, cat062::detail_110},
    {"PMN", "Mode 5 PIN/ National", SubfieldRule::Fixed, 4, nullptr, cat062::summary_110, cat062::detail_110},
    {"POS", "Mode 5 Reported Position", SubfieldRule::Fixed, 6, nullptr, cat062::summary_110, cat062::detail_110},
    {"GA", "Mode 5 GNSS-derived Altitude", SubfieldRule::Fixed, 2, nullptr, cat062::summary_110, cat062::detail_110},
    {"EM1", "Extended Mode 1 Code in Octal Representation", SubfieldRule::Fixed, 2, nullptr, cat062::summary_110, cat062::detail_110},
    {"TOS", "Time Offset for POS and GA", SubfieldRule::Fixed, 1, nullptr, cat062::summary_110, cat062::detail_110},
    {"XP", "X Pulse Presence", SubfieldRule::Fixed, 1, nullptr, cat062::summary_110, cat062::detail_110},
};

constexpr SubfieldRow k290Subfields[] = {
    {"TRK", "Track age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_290, cat062::detail_290},
    {"PSR", "PSR age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_290, cat062::detail_290},
    {"SSR", "SSR age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_290, cat062::detail_290},
    {"MDS", "Mode S age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_290, cat062::detail_290},
    {"ADS", "ADS-C age", SubfieldRule::Fixed, 2, nullptr, cat062::summary_290, cat062::detail_290},
    {"ES", "ADS-B Extended Squitter age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_290, cat062::detail_290},
    {"VDL", "ADS-B VDL Mode 4 age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_290, cat062::detail_290},
    {"UAT", "ADS-B UAT age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_290, cat062::detail_290},
    {"LOP", "Loop age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_290, cat062::detail_290},
    {"MLT", "Multilateration age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_290, cat062::detail_290},
};

constexpr SubfieldRow k295Subfields[] = {
    {"MFL", "Measured Flight Level age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"MD1", "Mode 1 age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"MD2", "Mode 2 age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"MDA", "Mode 3/A age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"MD4", "Mode 4 age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"MD5", "Mode 5 age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"MHG", "Magnetic Heading age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"IAS", "Indicated Airspeed/Mach Nb age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"TAS", "True Airspeed age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"SAL", "Selected Altitude age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"FSS", "Final State Selected Altitude age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"TID", "Trajectory Intent Data age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"COM", "Communications / ACAS Capability and Flight Status age",
     SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"SAB", "Status Reported by ADS-B age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"ACS", "ACAS Resolution Advisory Report age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"BVR", "Barometric Vertical Rate age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"GVR", "Geometric Vertical Rate age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"RAN", "Roll Angle age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"TAR", "Track Angle Rate age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"TAN", "Track Angle age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"GSP", "Ground Speed age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"VUN", "Velocity Uncertanty age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"MET", "Meteorological Data age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"EMC", "Emitter Category age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"POS", "Position Data age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"GAL", "Geometric Altitude Data age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"PUN", "Position Uncertainty Data age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"MB", "Mode S MB Data age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"IAR", "Indicated Airspeed Data age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"MAC", "Mach Number Data age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
    {"BPS", "Barometric Pressure Setting Data age", SubfieldRule::Fixed, 1, nullptr, cat062::summary_295, cat062::detail_295},
};

constexpr SubfieldRow k340Subfields[] = {
    {"SID", "Sensor Identification", SubfieldRule::Fixed, 2, nullptr, cat062::summary_340, cat062::detail_340},
    {"POS", "Measured Position", SubfieldRule::Fixed, 4, nullptr, cat062::summary_340, cat062::detail_340},
    {"HEIGHT", "Measured 3-D Height", SubfieldRule::Fixed, 2, nullptr, cat062::summary_340, cat062::detail_340},
    {"MDC", "Last Measured Mode C Code", SubfieldRule::Fixed, 2, nullptr, cat062::summary_340, cat062::detail_340},
    {"MDA", "Last Measured Mode 3/A Code", SubfieldRule::Fixed, 2, nullptr, cat062::summary_340, cat062::detail_340},
    {"TYP", "Report Type", SubfieldRule::Fixed, 1, nullptr, cat062::summary_340, cat062::detail_340},
};

constexpr SubfieldRow k380Subfields[] = {
    {"ADR", "Target Address", SubfieldRule::Fixed, 3, nullptr, cat062::summary_380, cat062::detail_380},
    {"ID", "Target Identification", SubfieldRule::Fixed, 6, nullptr, cat062::summary_380, cat062::detail_380},
    {"MHG", "Magnetic Heading", SubfieldRule::Fixed, 2, nullptr, cat062::summary_380, cat062::detail_380},
    {"IAS", "Indicated Airspeed / Mach No", SubfieldRule::Fixed, 2, nullptr, cat062::summary_380, cat062::detail_380},
    {"TAS", "True Airspeed", SubfieldRule::Fixed, 2, nullptr, cat062::summary_380, cat062::detail_380},
    {"SAL", "Selected Altitude", SubfieldRule::Fixed, 2, nullptr, cat062::summary_380, cat062::detail_380},
    {"FSS", "Final State Selected Altitude", SubfieldRule::Fixed, 2, nullptr, cat062::summary_380, cat062::detail_380},
    // The trajectory intent status is taken as one octet; its FX bit is not followed.
    {"TIS", "Trajectory Intent Status", SubfieldRule::Fixed, 1, nullptr, cat062::summary_380, cat062::detail_380},
    {"TID", "Trajectory Intent Data", SubfieldRule::Repeated, 15, nullptr, cat062::summary_380, cat062::detail_380},
    {"COM", "Communications / ACAS Capability and Flight Status reported by Mode-S",
     SubfieldRule::Fixed, 2, nullptr, cat062::summary_380, cat062::detail_380},
    {"SAB", "Status reported by ADS-B", SubfieldRule::Fixed, 2, nullptr, cat062::summary_380, cat062::detail_380},
    {"ACS", "ACAS Resolution Avisory Report", SubfieldRule::Fixed, 7, nullptr, cat062::summary_380, cat062::detail_380},
    {"BVR", "Brometric Vertical Rate", SubfieldRule::Fixed, 2, nullptr, cat062::summary_380, cat062::detail_380},
    {"GVR", "Geometric Vertical Rate", SubfieldRule::Fixed, 2, nullptr, cat062::summary_380, cat062::detail_380},
    {"RAN", "Roll Angle", SubfieldRule::Fixed, 2, nullptr, cat062::summary_380, cat062::detail_380},
    {"TAR", "Track Angle Rate", SubfieldRule::Fixed, 2, nullptr, cat062::summary_380, cat062::detail_380},
    {"TAN", "Track Angle", SubfieldRule::Fixed, 2, nullptr, cat062::summary_380, cat062::detail_380},
    {"GS", "Ground Speed", SubfieldRule::Fixed, 2, nullptr, cat062::summary_380, cat062::detail_380},
    {"VUN", "Velocity Uncertainty Category", SubfieldRule::Fixed, 1, nullptr, cat062::summary_380, cat062::detail_380},
    {"MET", "Met Data", SubfieldRule::Fixed, 8, nullptr, cat062::summary_380, cat062::detail_380},
    {"EMC", "Emitter Category", SubfieldRule::Fixed, 1, nullptr, cat062::summary_380, cat062::detail_380},
    {"POS", "Position", SubfieldRule::Fixed, 6, nullptr, cat062::summary_380, cat062::detail_380},
    {"GAL", "Geometric Altitude", SubfieldRule::Fixed, 2, nullptr, cat062::summary_380, cat062::detail_380},
    {"PUN", "Position Uncertainty", SubfieldRule::Fixed, 1, nullptr, cat062::summary_380, cat062::detail_380},
    {"MB", "Mode-S MB Data", SubfieldRule::Repeated, 8, nullptr, cat062::summary_380, cat062::detail_380},
    {"IAR", "Indicated Airspeed", SubfieldRule::Fixed, 2, nullptr, cat062::summary_380, cat062::detail_380},
    {"MAC", "Mach Number", SubfieldRule::Fixed, 2, nullptr, cat062::summary_380, cat062::detail_380},
    {"BPS", "Barometric Pressure Setting", SubfieldRule::Fixed, 2, nullptr, cat062::summary_380, cat062::detail_380},
};

constexpr SubfieldRow k390Subfields[] = {
    {"TAG", "FPPS Identification Tag", SubfieldRule::Fixed, 2, nullptr, cat062::summary_390, cat062::detail_390},
    {"CS", "Callsign", SubfieldRule::Fixed, 7, nullptr, cat062::summary_390, cat062::detail_390},
    {"IFI", "IFPS Flight ID", SubfieldRule::Fixed, 4, nullptr, cat062::summary_390, cat062::detail_390},
    {"FCT", "Flight Category", SubfieldRule::Fixed, 1, nullptr, cat062::summary_390, cat062::detail_390},
    {"TAC", "Type of Aircraft", SubfieldRule::Fixed, 4, nullptr, cat062::summary_390, cat062::detail_390},
    {"WTC", "Wake Turbulence Category", SubfieldRule::Fixed, 1, nullptr, cat062::summary_390, cat062::detail_390},
    {"DEP", "Departure Airport", SubfieldRule::Fixed, 4, nullptr, cat062::summary_390, cat062::detail_390},
    {"DST", "Destination Airport", SubfieldRule::Fixed, 4, nullptr, cat062::summary_390, cat062::detail_390},
    {"RDS", "Runway Designation", SubfieldRule::Fixed, 3, nullptr, cat062::summary_390, cat062::detail_390},
    {"CFL", "Current Cleared Flight Level", SubfieldRule::Fixed, 2, nullptr, cat062::summary_390, cat062::detail_390},
    {"CTL", "Current Control Position", SubfieldRule::Fixed, 2, nullptr, cat062::summary_390, cat062::detail_390},
    {"TOD", "Time of Departure / Arrival", SubfieldRule::Repeated, 4, nullptr, cat062::summary_390, cat062::detail_390},
    {"AST", "Aircraft Stand", SubfieldRule::Fixed, 6, nullptr, cat062::summary_390, cat062::detail_390},
    {"STS", "Stand Status", SubfieldRule::Fixed, 1, nullptr, cat062::summary_390, cat062::detail_390},
    {"STD", "Standard Instrument Departure", SubfieldRule::Fixed, 7, nullptr, cat062::summary_390, cat062::detail_390},
    {"STA", "Standard Instrument Arrival", SubfieldRule::Fixed, 7, nullptr, cat062::summary_390, cat062::detail_390},
    {"PEM", "Pre-emergency Mode 3/A Code", SubfieldRule::Fixed, 2, nullptr, cat062::summary_390, cat062::detail_390},
    {"PEC", "Pre-emergency Callsign", SubfieldRule::Fixed, 7, nullptr, cat062::summary_390, cat062::detail_390},
};

constexpr SubfieldRow k500Subfields[] = {
    {"APC", "Estimated Accuracy Of Track Position (Cartesian)", SubfieldRule::Fixed, 4, nullptr, cat062::summary_500, cat062::detail_500},
    {"COV", "XY Covariance", SubfieldRule::Fixed, 2, nullptr, cat062::summary_500, cat062::detail_500},
    {"APW", "Estimated Accuracy Of Track Position (WGS-84)", SubfieldRule::Fixed, 4, nullptr, cat062::summary_500, cat062::detail_500},
    {"AGA", "Estimated Accuracy Of Calculated Track Geometric Altitude",
     SubfieldRule::Fixed, 1, nullptr, cat062::summary_500, cat062::detail_500},
    {"ABA", "Estimated Accuracy Of Calculated Track Barometric Altitude",
     SubfieldRule::Fixed, 1, nullptr, cat062::summary_500, cat062::detail_500},
    {"ATV", "Estimated Accuracy Of Track Velocity (Cartesian)", SubfieldRule::Fixed, 2, nullptr, cat062::summary_500, cat062::detail_500},
    {"AA", "Estimated Accuracy Of Acceleration", SubfieldRule::Fixed, 2, nullptr, cat062::summary_500, cat062::detail_500},
    {"ARC", "Estimated Accuracy Of Rate Of Climb/Descent", SubfieldRule::Fixed, 1, nullptr, cat062::summary_500, cat062::detail_500},
};

}  // namespace
}  // namespace kovrel

KOVREL_COMPOUND_ITEM(062_110, 62110, ::kovrel::kCompound062_110)
KOVREL_COMPOUND_ITEM(062_290, 62290, ::kovrel::kCompound062_290)
KOVREL_COMPOUND_ITEM(062_295, 62295, ::kovrel::kCompound062_295)
KOVREL_COMPOUND_ITEM(062_340, 62340, ::kovrel::kCompound062_340)
KOVREL_COMPOUND_ITEM(062_380, 62380, ::kovrel::kCompound062_380)
KOVREL_COMPOUND_ITEM(062_390, 62390, ::kovrel::kCompound062_390)
KOVREL_COMPOUND_ITEM(062_500, 62500, ::kovrel::kCompound062_500)

namespace kovrel {

constinit const CompoundItem kCompound062_110 = make_compound(7, k110Subfields, KOVREL_SUBFIELD_FUNCS(062_110));
constinit const CompoundItem kCompound062_290 = make_compound(10, k290Subfields, KOVREL_SUBFIELD_FUNCS(062_290));
constinit const CompoundItem kCompound062_295 = make_compound(31, k295Subfields, KOVREL_SUBFIELD_FUNCS(062_295));
constinit const CompoundItem kCompound062_340 = make_compound(6, k340Subfields, KOVREL_SUBFIELD_FUNCS(062_340));
constinit const CompoundItem kCompound062_380 = make_compound(28, k380Subfields, KOVREL_SUBFIELD_FUNCS(062_380));
constinit const CompoundItem kCompound062_390 = make_compound(18, k390Subfields, KOVREL_SUBFIELD_FUNCS(062_390));
constinit const CompoundItem kCompound062_500 = make_compound(8, k500Subfields, KOVREL_SUBFIELD_FUNCS(062_500));

}  // namespace kovrel
