/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat001.h: Category 001, monoradar plots and tracks (the older format that
 * CAT048 replaced), with the ASR-10SS sensor layouts and the MANAGAIR
 * custom field.
 */
#ifndef KOVREL_CAT001_H
#define KOVREL_CAT001_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"
#include "kovrel/items.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT001 item ("Truncated Time of Day"), including the
 * sensor variants: 1901 and 1903 (ASR-10SS and ASR-10SS Mk2 layouts of
 * I001/130) are "Radar Plot Characteristics", 1902 (ASR-10SS, in place of
 * I001/210) is "Plot Amplitude", 1904 (ASR-10SS Mk2, in place of I001/210)
 * is "Track Quality and Plot Extent", and 1951 (MANAGAIR) is "Custom Field".
 *
 * Any other identifier gives "Unknown CAT001 Dataitem" and logs "Unknown
 * dataitem name: %s." at WARNING. I001/120 (Measured Radial Doppler Speed)
 * and I001/150 (Presence of X-Pulse) are sized and decoded like every other
 * item but have no name of their own: they too answer "Unknown CAT001
 * Dataitem" (and log), as they always have.
 */
KOVREL_API const char *ast_dataitem_001_get_name(AstItemId id);

/*
 * Items served by the common items (items.h). Their summaries and detail
 * views are the common item's (unless told otherwise below); the structured
 * decode entry points decode into the common item's structure: *out =
 * {valid flag of the structure, item id, storage}, or {0, item id, NULL}
 * with nothing written when storage is NULL or smaller than the structure,
 * or the item is not valid.
 */

/* I001/010 Data Source Identifier: data source identifier (AstDataSourceIdentifier). */
KOVREL_API void ast_dataitem_001_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/*
 * I001/050 Mode-2 Code: Mode 3/A code (AstMode3aCode), the same layout;
 * the summary reads "MODE_2:..." and the detail view has no bit 6 row.
 * I001/060 Mode-2 Code Confidence Indicator: Mode 3/A confidence
 * (AstMode3aConfidence).
 */
KOVREL_API void ast_dataitem_001_050_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_001_060_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I001/070 Mode-3/A Code: Mode 3/A code (AstMode3aCode). */
KOVREL_API void ast_dataitem_001_070_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I001/080 Mode-3/A Code Confidence Indicator: Mode 3/A confidence (AstMode3aConfidence). */
KOVREL_API void ast_dataitem_001_080_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I001/090 Mode-C Code: Mode C code (AstModeCCode). */
KOVREL_API void ast_dataitem_001_090_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I001/100 Mode-C Code and Code Confidence Indicator: Mode C confidence (AstModeCConfidence). */
KOVREL_API void ast_dataitem_001_100_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/*
 * I001/130 Radar Plot Characteristics is summarised with the binary data
 * summary ("BIN:...").
 */

/* I001/161 Track Plot Number: 16-bit track number (AstTrackNumber); no detail view. */
KOVREL_API void ast_dataitem_001_161_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I001/200 Calculated Track Velocity: polar velocity (AstVelocityPolar). */
KOVREL_API void ast_dataitem_001_200_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/*
 * SPF and RFS: special purpose field (AstSpecialPurposeField) and random
 * field sequencing (AstRandomFieldSequencing); no detail view.
 */
KOVREL_API void ast_dataitem_001_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_001_RFS_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

KOVREL_END_DECLS

#endif /* KOVREL_CAT001_H */
