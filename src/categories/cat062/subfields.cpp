// CAT062 compound items: the subfields of I062/110, 290, 295, 340, 380, 390
// and 500, each with its short identifier, display name and size.
//
// Short identifiers follow the CAT062 standard edition 1.18. Display names
// are the library's own texts, misspellings included ("Brometric",
// "Avisory", "Uncertanty"): consumers display and match on them.
#include "categories/cat062/subfields.h"

#include "kovrel/cat062.h"

namespace kovrel {
namespace {

constexpr SubfieldRow k110Subfields[] = {
    {"SUM", "Mode 5 Summary", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"PMN", "Mode 5 PIN/ National", SubfieldRule::Fixed, 4, nullptr, nullptr, nullptr},
    {"POS", "Mode 5 Reported Position", SubfieldRule::Fixed, 6, nullptr, nullptr, nullptr},
    {"GA", "Mode 5 GNSS-derived Altitude", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"EM1", "Extended Mode 1 Code in Octal Representation", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"TOS", "Time Offset for POS and GA", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"XP", "X Pulse Presence", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
};

constexpr SubfieldRow k290Subfields[] = {
    {"TRK", "Track age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"PSR", "PSR age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"SSR", "SSR age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"MDS", "Mode S age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"ADS", "ADS-C age", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"ES", "ADS-B Extended Squitter age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"VDL", "ADS-B VDL Mode 4 age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"UAT", "ADS-B UAT age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"LOP", "Loop age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"MLT", "Multilateration age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
};

constexpr SubfieldRow k295Subfields[] = {
    {"MFL", "Measured Flight Level age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"MD1", "Mode 1 age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"MD2", "Mode 2 age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"MDA", "Mode 3/A age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"MD4", "Mode 4 age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"MD5", "Mode 5 age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"MHG", "Magnetic Heading age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"IAS", "Indicated Airspeed/Mach Nb age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"TAS", "True Airspeed age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"SAL", "Selected Altitude age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"FSS", "Final State Selected Altitude age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"TID", "Trajectory Intent Data age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"COM", "Communications / ACAS Capability and Flight Status age",
     SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"SAB", "Status Reported by ADS-B age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"ACS", "ACAS Resolution Advisory Report age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"BVR", "Barometric Vertical Rate age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"GVR", "Geometric Vertical Rate age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"RAN", "Roll Angle age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"TAR", "Track Angle Rate age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"TAN", "Track Angle age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"GSP", "Ground Speed age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"VUN", "Velocity Uncertanty age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"MET", "Meteorological Data age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"EMC", "Emitter Category age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"POS", "Position Data age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"GAL", "Geometric Altitude Data age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"PUN", "Position Uncertainty Data age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"MB", "Mode S MB Data age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"IAR", "Indicated Airspeed Data age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"MAC", "Mach Number Data age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"BPS", "Barometric Pressure Setting Data age", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
};

constexpr SubfieldRow k340Subfields[] = {
    {"SID", "Sensor Identification", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"POS", "Measured Position", SubfieldRule::Fixed, 4, nullptr, nullptr, nullptr},
    {"HEIGHT", "Measured 3-D Height", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"MDC", "Last Measured Mode C Code", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"MDA", "Last Measured Mode 3/A Code", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"TYP", "Report Type", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
};

constexpr SubfieldRow k380Subfields[] = {
    {"ADR", "Target Address", SubfieldRule::Fixed, 3, nullptr, nullptr, nullptr},
    {"ID", "Target Identification", SubfieldRule::Fixed, 6, nullptr, nullptr, nullptr},
    {"MHG", "Magnetic Heading", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"IAS", "Indicated Airspeed / Mach No", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"TAS", "True Airspeed", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"SAL", "Selected Altitude", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"FSS", "Final State Selected Altitude", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    // The trajectory intent status is taken as one octet; its FX bit is not followed.
    {"TIS", "Trajectory Intent Status", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"TID", "Trajectory Intent Data", SubfieldRule::Repeated, 15, nullptr, nullptr, nullptr},
    {"COM", "Communications / ACAS Capability and Flight Status reported by Mode-S",
     SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"SAB", "Status reported by ADS-B", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"ACS", "ACAS Resolution Avisory Report", SubfieldRule::Fixed, 7, nullptr, nullptr, nullptr},
    {"BVR", "Brometric Vertical Rate", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"GVR", "Geometric Vertical Rate", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"RAN", "Roll Angle", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"TAR", "Track Angle Rate", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"TAN", "Track Angle", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"GS", "Ground Speed", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"VUN", "Velocity Uncertainty Category", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"MET", "Met Data", SubfieldRule::Fixed, 8, nullptr, nullptr, nullptr},
    {"EMC", "Emitter Category", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"POS", "Position", SubfieldRule::Fixed, 6, nullptr, nullptr, nullptr},
    {"GAL", "Geometric Altitude", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"PUN", "Position Uncertainty", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"MB", "Mode-S MB Data", SubfieldRule::Repeated, 8, nullptr, nullptr, nullptr},
    {"IAR", "Indicated Airspeed", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"MAC", "Mach Number", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"BPS", "Barometric Pressure Setting", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
};

constexpr SubfieldRow k390Subfields[] = {
    {"TAG", "FPPS Identification Tag", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"CS", "Callsign", SubfieldRule::Fixed, 7, nullptr, nullptr, nullptr},
    {"IFI", "IFPS Flight ID", SubfieldRule::Fixed, 4, nullptr, nullptr, nullptr},
    {"FCT", "Flight Category", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"TAC", "Type of Aircraft", SubfieldRule::Fixed, 4, nullptr, nullptr, nullptr},
    {"WTC", "Wake Turbulence Category", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"DEP", "Departure Airport", SubfieldRule::Fixed, 4, nullptr, nullptr, nullptr},
    {"DST", "Destination Airport", SubfieldRule::Fixed, 4, nullptr, nullptr, nullptr},
    {"RDS", "Runway Designation", SubfieldRule::Fixed, 3, nullptr, nullptr, nullptr},
    {"CFL", "Current Cleared Flight Level", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"CTL", "Current Control Position", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"TOD", "Time of Departure / Arrival", SubfieldRule::Repeated, 4, nullptr, nullptr, nullptr},
    {"AST", "Aircraft Stand", SubfieldRule::Fixed, 6, nullptr, nullptr, nullptr},
    {"STS", "Stand Status", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"STD", "Standard Instrument Departure", SubfieldRule::Fixed, 7, nullptr, nullptr, nullptr},
    {"STA", "Standard Instrument Arrival", SubfieldRule::Fixed, 7, nullptr, nullptr, nullptr},
    {"PEM", "Pre-emergency Mode 3/A Code", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"PEC", "Pre-emergency Callsign", SubfieldRule::Fixed, 7, nullptr, nullptr, nullptr},
};

constexpr SubfieldRow k500Subfields[] = {
    {"APC", "Estimated Accuracy Of Track Position (Cartesian)", SubfieldRule::Fixed, 4, nullptr, nullptr, nullptr},
    {"COV", "XY Covariance", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"APW", "Estimated Accuracy Of Track Position (WGS-84)", SubfieldRule::Fixed, 4, nullptr, nullptr, nullptr},
    {"AGA", "Estimated Accuracy Of Calculated Track Geometric Altitude",
     SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"ABA", "Estimated Accuracy Of Calculated Track Barometric Altitude",
     SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"ATV", "Estimated Accuracy Of Track Velocity (Cartesian)", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"AA", "Estimated Accuracy Of Acceleration", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"ARC", "Estimated Accuracy Of Rate Of Climb/Descent", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
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
