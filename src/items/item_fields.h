// The field descriptions of the common items' structures (fields.h), one
// per structure, defined beside each structure's decoder. Category dispatch
// rows point at them for the items the common items serve; the description
// of AstXxx is kovrel::fields::kXxx.
#pragma once

#include "record/field_desc.h"

namespace kovrel::fields {

// The defaults of T (its init) marked valid: a structure filled by field
// name is filled to be encoded, and the encoders take only structures whose
// valid flag is 1. Descriptions of item structures use it as their init:
//   describe<T, init_valid<T, ast_dataitem_xxx_init>>(rows)
template <typename T, auto Init>
void init_valid(T *out) {
    Init(out);
    out->valid = 1;
}

// Identification and time (items_ident.h)
extern const FieldDesc kMessageType;
extern const FieldDesc kDataSourceIdentifier;
extern const FieldDesc kServiceId;
extern const FieldDesc kSectorNumber;
extern const FieldDesc kTimeOfDay;
extern const FieldDesc kTimeOfDayHigh;
extern const FieldDesc kTrackNumber;
extern const FieldDesc kAntennaRotationPeriod;

// Position, velocity and height (items_motion.h)
extern const FieldDesc kPositionWgs84Low;
extern const FieldDesc kPositionWgs84;
extern const FieldDesc kPositionCartesian;
extern const FieldDesc kVelocityCartesian;
extern const FieldDesc kVelocityPolar;
extern const FieldDesc kHeight;
extern const FieldDesc kVerticalRate;
extern const FieldDesc kVerticalRateNoRe;  // the 16-bit rate without range-exceeded bit

// Mode codes and Mode S (items_mode.h)
extern const FieldDesc kMode3aCode;
// The same structure under the names of other items: bit 6 read as "code
// changed" (I062/060), and the Mode 2 code.
extern const FieldDesc kMode3aCodeChanged;
extern const FieldDesc kMode2Code;
extern const FieldDesc kMode3aConfidence;
extern const FieldDesc kModeCCode;
extern const FieldDesc kModeCConfidence;
extern const FieldDesc kTargetAddress;
extern const FieldDesc kAircraftId;
extern const FieldDesc kTargetId;
extern const FieldDesc kModesMb;
extern const FieldDesc kExplicitField;  // RE, SP and RFS fields

// Mode S Comm-B registers (bds.h)
extern const FieldDesc kBds05;
extern const FieldDesc kBds08;
extern const FieldDesc kBds09;
extern const FieldDesc kBds10;
extern const FieldDesc kBds20;
extern const FieldDesc kBds30;
extern const FieldDesc kBds40;
extern const FieldDesc kBds50;
extern const FieldDesc kBds60;

}  // namespace kovrel::fields
