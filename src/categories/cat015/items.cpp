// CAT015 dispatch rows (independent non-cooperative surveillance target
// reports, edition 1.2 of the category): size rule and name of every item of
// the standard UAP, and the subfields of its twelve compound items.
// Items laid out as a common item carry that item's views and the
// structured entry points of common_items.cpp.
#include "kovrel/cat015.h"
#include "kovrel/items.h"
#include "categories/cat015/compound.h"
#include "categories/cat015/item_fields.h"
#include "items/common_views.h"
#include "items/item_fields.h"
#include "record/item_table.h"

namespace kovrel {
namespace {

using namespace views;

// Every CAT015 subfield has a fixed length; each compound item's subfields
// share one summary and one detail function (compound.cpp).
struct Views {
    AstSubfieldGetSummaryFn summary;
    AstSubfieldGetDetailHtmlFn detail;
};

constexpr SubfieldRow fixed(const char *id, const char *name, uint16_t n, Views v) {
    return SubfieldRow{id, name, SubfieldRule::Fixed, n, nullptr, v.summary, v.detail};
}

constexpr Views k270{cat015::summary_270, cat015::detail_270};
constexpr SubfieldRow k270Subfields[] = {
    fixed("LEN", "Target Length", 2, k270),
    fixed("WDT", "Target Width", 2, k270),
    fixed("HGT", "Target Height", 2, k270),
    fixed("ORT", "Target Orientation", 2, k270),
};

constexpr Views k600{cat015::summary_600, cat015::detail_600};
constexpr SubfieldRow k600Subfields[] = {
    fixed("P84", "Horizontal Position in WGS-84 Coordinates", 8, k600),
    fixed("HPR", "Horizontal Position Resolution", 5, k600),
    fixed("HPP", "Horizontal Position Precision", 5, k600),
};

constexpr Views k601{cat015::summary_601, cat015::detail_601};
constexpr SubfieldRow k601Subfields[] = {
    fixed("GH", "Geometric Height (WGS-84)", 3, k601),
    fixed("RSGH", "Geometric Height Resolution", 3, k601),
    fixed("SDGH", "Geometric Height Precision", 3, k601),
    fixed("CI6", "Confidence Interval for Geometric Height (67%)", 3, k601),
    fixed("CI9", "Confidence Interval for Geometric Height (95%)", 3, k601),
    fixed("COGHHP", "Correlation of Geometric Height and Horizontal Position", 2, k601),
    fixed("COGHHV", "Correlation of Geometric Height and Horizontal Velocity", 2, k601),
    fixed("COGHHA", "Correlation of Geometric Height and Horizontal Acceleration", 2, k601),
};

constexpr Views k602{cat015::summary_602, cat015::detail_602};
constexpr SubfieldRow k602Subfields[] = {
    fixed("HV", "Horizontal Velocity Vector", 5, k602),
    fixed("RSHV", "Horizontal Velocity Resolution", 5, k602),
    fixed("SDHV", "Horizontal Velocity Precision", 5, k602),
    fixed("COHVHP", "Correlation of Horizontal Velocity and Horizontal Position", 4, k602),
};

constexpr Views k603{cat015::summary_603, cat015::detail_603};
constexpr SubfieldRow k603Subfields[] = {
    fixed("HA", "Horizontal Acceleration Vector", 3, k603),
    fixed("SDHA", "Horizontal Acceleration Precision", 4, k603),
    fixed("COHAHP", "Correlation of Horizontal Acceleration and Horizontal Position", 4, k603),
    fixed("COHAHV", "Correlation of Horizontal Acceleration and Horizontal Velocity", 4, k603),
};

constexpr Views k604{cat015::summary_604, cat015::detail_604};
constexpr SubfieldRow k604Subfields[] = {
    fixed("VV", "Vertical Velocity", 3, k604),
    fixed("RSVV", "Vertical Velocity Resolution", 2, k604),
    fixed("SDVV", "Vertical Velocity Precision", 3, k604),
    fixed("COVVHP", "Correlation of Vertical Velocity and Horizontal Position", 2, k604),
    fixed("COVVHV", "Correlation of Vertical Velocity and Horizontal Velocity", 2, k604),
    fixed("COVVHA", "Correlation of Vertical Velocity and Horizontal Acceleration", 2, k604),
};

constexpr Views k605{cat015::summary_605, cat015::detail_605};
constexpr SubfieldRow k605Subfields[] = {
    fixed("VA", "Vertical Acceleration", 2, k605),
    fixed("RSVA", "Vertical Acceleration Precision", 4, k605),
    fixed("COVAHP", "Correlation of Vertical Acceleration and Horizontal Position", 2, k605),
    fixed("COVAHV", "Correlation of Vertical Acceleration and Horizontal Velocity", 2, k605),
    fixed("COVAHA", "Correlation of Vertical Acceleration and Horizontal Acceleration", 2, k605),
};

constexpr Views k625{cat015::summary_625, cat015::detail_625};
constexpr SubfieldRow k625Subfields[] = {
    fixed("R", "Range", 3, k625),
    fixed("RSR", "Range Resolution", 3, k625),
    fixed("SDR", "Range Precision", 3, k625),
    fixed("RR", "Range Rate", 3, k625),
    fixed("RSRR", "Range Rate Resolution", 3, k625),
    fixed("SDRR", "Range Rate Precision", 4, k625),
    fixed("RA", "Range Acceleration", 2, k625),
    fixed("SDRA", "Range Acceleration Precision", 4, k625),
};

constexpr Views k626{cat015::summary_626, cat015::detail_626};
constexpr SubfieldRow k626Subfields[] = {
    fixed("DV", "Doppler Velocity", 3, k626),
    fixed("SDDV", "Precision of Doppler Velocity", 2, k626),
    fixed("DA", "Doppler Acceleration", 2, k626),
    fixed("SDDA", "Precision of Doppler Acceleration", 3, k626),
    fixed("CODVR", "Correlation of Doppler Velocity and Range", 1, k626),
    fixed("CODVRR", "Correlation of Doppler Velocity and Range Rate", 1, k626),
    fixed("CODVRA", "Correlation of Doppler Velocity and Range Acceleration", 1, k626),
    fixed("CODAR", "Correlation of Doppler Acceleration and Range", 1, k626),
    fixed("CODARR", "Correlation of Doppler Acceleration and Range Rate", 1, k626),
    fixed("CODARA", "Correlation of Doppler Acceleration and Range Acceleration", 1, k626),
};

constexpr Views k627{cat015::summary_627, cat015::detail_627};
constexpr SubfieldRow k627Subfields[] = {
    fixed("AZ", "Azimuth", 2, k627),
    fixed("RSAZ", "Azimuth Resolution", 2, k627),
    // The mnemonic is spelled so in the edition.
    fixed("SDASZ", "Standard Deviation of Azimuth", 2, k627),
    fixed("AZR", "Azimuth Rate", 2, k627),
    fixed("SDAZR", "Standard Deviation of Azimuth Rate", 3, k627),
    fixed("AZEX", "Azimuth Extent", 4, k627),
};

constexpr Views k628{cat015::summary_628, cat015::detail_628};
constexpr SubfieldRow k628Subfields[] = {
    fixed("EL", "Elevation", 2, k628),
    fixed("RSEL", "Elevation Resolution", 2, k628),
    fixed("SDEL", "Standard Deviation of Elevation", 2, k628),
    fixed("ER", "Elevation Rate", 2, k628),
    fixed("SDER", "Standard Deviation of Elevation Rate", 3, k628),
    fixed("ELEX", "Elevation Extent", 4, k628),
};

constexpr Views k630{cat015::summary_630, cat015::detail_630};
constexpr SubfieldRow k630Subfields[] = {
    fixed("DPP", "Direct Path - Power", 1, k630),
    fixed("DPS", "Direct Path - Signal to Noise Ratio (SNR)", 1, k630),
    fixed("RPP", "Reflected Path - Power", 2, k630),
    fixed("RPS", "Reflected Path - Signal to Noise Ratio (SNR)", 1, k630),
};

}  // namespace

extern const CompoundItem kCompound015_270;
extern const CompoundItem kCompound015_600;
extern const CompoundItem kCompound015_601;
extern const CompoundItem kCompound015_602;
extern const CompoundItem kCompound015_603;
extern const CompoundItem kCompound015_604;
extern const CompoundItem kCompound015_605;
extern const CompoundItem kCompound015_625;
extern const CompoundItem kCompound015_626;
extern const CompoundItem kCompound015_627;
extern const CompoundItem kCompound015_628;
extern const CompoundItem kCompound015_630;

}  // namespace kovrel

KOVREL_COMPOUND_ITEM(015_270, 15270, ::kovrel::kCompound015_270)
KOVREL_COMPOUND_ITEM(015_600, 15600, ::kovrel::kCompound015_600)
KOVREL_COMPOUND_ITEM(015_601, 15601, ::kovrel::kCompound015_601)
KOVREL_COMPOUND_ITEM(015_602, 15602, ::kovrel::kCompound015_602)
KOVREL_COMPOUND_ITEM(015_603, 15603, ::kovrel::kCompound015_603)
KOVREL_COMPOUND_ITEM(015_604, 15604, ::kovrel::kCompound015_604)
KOVREL_COMPOUND_ITEM(015_605, 15605, ::kovrel::kCompound015_605)
KOVREL_COMPOUND_ITEM(015_625, 15625, ::kovrel::kCompound015_625)
KOVREL_COMPOUND_ITEM(015_626, 15626, ::kovrel::kCompound015_626)
KOVREL_COMPOUND_ITEM(015_627, 15627, ::kovrel::kCompound015_627)
KOVREL_COMPOUND_ITEM(015_628, 15628, ::kovrel::kCompound015_628)
KOVREL_COMPOUND_ITEM(015_630, 15630, ::kovrel::kCompound015_630)

namespace kovrel {

constinit const CompoundItem kCompound015_270 = make_compound(4, k270Subfields, KOVREL_SUBFIELD_FUNCS(015_270));
constinit const CompoundItem kCompound015_600 = make_compound(3, k600Subfields, KOVREL_SUBFIELD_FUNCS(015_600));
constinit const CompoundItem kCompound015_601 = make_compound(8, k601Subfields, KOVREL_SUBFIELD_FUNCS(015_601));
constinit const CompoundItem kCompound015_602 = make_compound(4, k602Subfields, KOVREL_SUBFIELD_FUNCS(015_602));
constinit const CompoundItem kCompound015_603 = make_compound(4, k603Subfields, KOVREL_SUBFIELD_FUNCS(015_603));
constinit const CompoundItem kCompound015_604 = make_compound(6, k604Subfields, KOVREL_SUBFIELD_FUNCS(015_604));
constinit const CompoundItem kCompound015_605 = make_compound(5, k605Subfields, KOVREL_SUBFIELD_FUNCS(015_605));
constinit const CompoundItem kCompound015_625 = make_compound(8, k625Subfields, KOVREL_SUBFIELD_FUNCS(015_625));
constinit const CompoundItem kCompound015_626 = make_compound(10, k626Subfields, KOVREL_SUBFIELD_FUNCS(015_626));
constinit const CompoundItem kCompound015_627 = make_compound(6, k627Subfields, KOVREL_SUBFIELD_FUNCS(015_627));
constinit const CompoundItem kCompound015_628 = make_compound(6, k628Subfields, KOVREL_SUBFIELD_FUNCS(015_628));
constinit const CompoundItem kCompound015_630 = make_compound(4, k630Subfields, KOVREL_SUBFIELD_FUNCS(015_630));

namespace {

constexpr ItemRow compound(uint16_t item, const char *name, AstDataItemGetSizeFn size, const CompoundItem &c,
                          AstDataItemEncodeExFn encode, AstDataItemDecodeExFn decode, const fields::FieldDesc &f) {
    return ItemRow{item, name, size, kCompoundSummary, kCompoundDetail, encode, decode, &f, &c};
}

// The functions of a simple item of the category, by its number.
#define OWN(N) ast_dataitem_015_##N##_get_summary, ast_dataitem_015_##N##_get_detail_html, \
    ast_dataitem_015_##N##_encode_ex, ast_dataitem_015_##N##_decode_ex, &fields::k015_##N
#define COMPOUND(N) ast_dataitem_015_##N##_encode_ex, ast_dataitem_015_##N##_decode_ex, fields::k015_##N

constexpr ItemRow kRows[] = {
    {10, "Data Source Identifier", ast_dataitem_get_size_fixed_2_byte, kSourceSummary, kSourceDetail,
     ast_dataitem_015_010_encode_ex, ast_dataitem_015_010_decode_ex, &fields::kDataSourceIdentifier},
    // Message type (seven bits) and report generation (one bit).
    {0, "Message Type", ast_dataitem_get_size_fixed_1_byte, OWN(000)},
    {15, "Service Identification", ast_dataitem_get_size_fixed_1_byte, kServiceSummary, kNoDetail,
     ast_dataitem_015_015_encode_ex, ast_dataitem_015_015_decode_ex, &fields::kServiceId},
    // One octet with its FX bit; the edition defines no extent.
    {20, "Target Report Descriptor", ast_dataitem_get_size_var_1_byte, OWN(020)},
    // Seven-bit warning/error values, each octet extended by its FX bit,
    // with no upper bound in the category.
    {30, "Warning/Error Conditions", ast_dataitem_get_size_var_unlimited, OWN(030)},
    {145, "Time of Applicability", ast_dataitem_get_size_fixed_3_byte, kTimeSummary, kTimeDetail,
     ast_dataitem_015_145_encode_ex, ast_dataitem_015_145_decode_ex, &fields::kTimeOfDay},
    {161, "Track/Plot Number", ast_dataitem_get_size_fixed_2_byte, kTrackSummary, kNoDetail,
     ast_dataitem_015_161_encode_ex, ast_dataitem_015_161_decode_ex, &fields::kTrackNumber},
    {170, "Track/Plot Status", ast_dataitem_get_size_var_1_byte, OWN(170)},
    {50, "Update Period", ast_dataitem_get_size_fixed_2_byte, OWN(050)},
    compound(270, "Target Size & Orientation", ast_dataitem_015_270_get_size, kCompound015_270, COMPOUND(270)),
    {300, "Object Classification", ast_dataitem_get_size_rep_2_byte, OWN(300)},
    // Pair identifier (two octets) and observation number (three).
    {400, "Measurement Identifier", ast_dataitem_get_size_fixed_5_byte, OWN(400)},
    compound(600, "Horizontal Position Information", ast_dataitem_015_600_get_size, kCompound015_600, COMPOUND(600)),
    compound(601, "Geometric Height Information", ast_dataitem_015_601_get_size, kCompound015_601, COMPOUND(601)),
    compound(602, "Horizontal Velocity Information", ast_dataitem_015_602_get_size, kCompound015_602, COMPOUND(602)),
    compound(603, "Horizontal Acceleration Information", ast_dataitem_015_603_get_size, kCompound015_603, COMPOUND(603)),
    compound(604, "Vertical Velocity Information", ast_dataitem_015_604_get_size, kCompound015_604, COMPOUND(604)),
    // Edition 1.2 titles I015/605 like I015/604 although it carries the
    // vertical acceleration; the published title is kept.
    compound(605, "Vertical Velocity Information", ast_dataitem_015_605_get_size, kCompound015_605, COMPOUND(605)),
    // Each association is a five-octet measurement identifier.
    {480, "Associations", ast_dataitem_get_size_rep_5_byte, OWN(480)},
    compound(625, "Range Information", ast_dataitem_015_625_get_size, kCompound015_625, COMPOUND(625)),
    compound(626, "Doppler Information", ast_dataitem_015_626_get_size, kCompound015_626, COMPOUND(626)),
    compound(627, "Azimuth Information", ast_dataitem_015_627_get_size, kCompound015_627, COMPOUND(627)),
    compound(628, "Elevation Information", ast_dataitem_015_628_get_size, kCompound015_628, COMPOUND(628)),
    compound(630, "Path Quality", ast_dataitem_015_630_get_size, kCompound015_630, COMPOUND(630)),
    // Azimuth, elevation, and the stop and start of the range extent: two
    // octets each.
    {631, "Contour (Azimuth, Elevation Angle, Range Extent)", ast_dataitem_get_size_rep_8_byte, OWN(631)},
    // Not reached through the standard UAP (its 25 FRNs stop at I015/631),
    // but defined by the edition at FRN 26, so a caller's own profile may
    // carry it.
    {999, "Special Purpose Field", ast_dataitem_special_purpose_field_get_size, kSpfSummary, kNoDetail,
     nullptr, ast_dataitem_015_SPF_decode_ex, &fields::kExplicitField},
};

#undef OWN
#undef COMPOUND

}  // namespace

constexpr CategoryItems kItems015Table =
    make_category_items(15, ast_dataitem_015_get_name, "Unknown CAT015 Dataitem", kRows);
constinit const CategoryItems kItems015 = kItems015Table;

}  // namespace kovrel

extern "C" KOVREL_API const char *ast_dataitem_015_get_name(AstItemId id) {
    return kovrel::category_item_name(kovrel::kItems015, id);
}
