/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat240.h: Category 240, radar video (video header, cell resolution,
 * counters and one block of video cell amplitudes).
 */
#ifndef KOVREL_CAT240_H
#define KOVREL_CAT240_H

#include "kovrel/dataitem.h"
#include "kovrel/datarecord.h"
#include "kovrel/export.h"
#include "kovrel/items_ident.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT240 item ("Video Header Nano"); I240/140 is "Time of
 * Day", I240/REF and I240/SPF are "Reserved Expansion Field" and "Special
 * Purpose Field", and any other identifier gives "Unknown CAT240 Dataitem"
 * (nothing is logged).
 */
KOVREL_API const char *ast_dataitem_240_get_name(AstItemId id);

/*
 * Items served by the common items of items_ident.h and items_mode.h.
 * Their summaries and detail views are the common item's, except for the
 * message type, which the common item only reads and writes; decode_ex
 * fills the common item's structure (the storage must hold it) and
 * encode_ex writes the item from that structure (see ast_dataitem_decode
 * and ast_dataitem_encode).
 */

/*
 * I240/000 Message Type: read and written as the common message type
 * (AstMessageType; 1 video summary, 2 video message). It has no detail view.
 */
KOVREL_API void ast_dataitem_240_000_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_240_000_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I240/010 Data Source Identifier: data source identifier (AstDataSourceIdentifier). */
KOVREL_API void ast_dataitem_240_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_240_010_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I240/140 Time of Day: time of day (AstTimeOfDay). */
KOVREL_API void ast_dataitem_240_140_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_240_140_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I240/REF and I240/SPF: reserved expansion and special purpose fields (AstExplicitField), no detail view. */
KOVREL_API void ast_dataitem_240_REF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_240_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* ---- Decoded structures of the category's own items. Each begins with its
 * one-octet valid flag (1 when decoded); the defaults are all zero unless
 * said otherwise.
 *
 * The functions of each own item follow its structure:
 *   _init         the defaults, valid 0.
 *   _decode       the defaults with valid 0 when the span is NULL, not
 *                 valid, of another identifier, or (fixed-length items 020,
 *                 040, 041, 048, 049) of another length.
 *   _get_summary, _get_detail_html
 *                 empty the buffer, then write the text when the item
 *                 decodes; every text is cut to size, NUL included.
 *   _decode_ex    *out = {valid flag, item id, storage} after decoding into
 *                 storage; {0, item id, NULL} and nothing written when
 *                 storage is NULL or smaller than the structure, or the span
 *                 is not valid.
 * None of these items has an encoder of its own.
 *
 * Detail tables have the columns "Bit", "Item", "Value", bits counted from 0
 * at the item's most significant bit:
 *   I240/030  Bit[0-7] REP (the number of characters), then TEXT (escaped).
 *   I240/040, I240/041
 *             Bit[0-15] START_AZ (raw), START_AZ DEG ("%.4f");
 *             Bit[16-31] END_AZ (raw), END_AZ DEG; Bit[32-63] START_RG (a cell
 *             index), START_RG M ("%.2f", the range of that cell);
 *             Bit[64-95] CELL_DUR NS or CELL_DUR FS (raw), CELL_DUR S ("%.6e").
 *   I240/048  Bit[0] C, Bit[8-15] RES, Bit[8-15] RES BITS (bits per cell by
 *             ast_video_resolution_bits).
 *   I240/049  Bit[0-15] NB_VB, Bit[16-39] NB_CELLS.
 *   I240/050, I240/051, I240/052
 *             Bit[0-7] REP, OCTETS (REP x 4, 64 or 256), CELLS (as the
 *             summary counts them; the row is left out while the thread has
 *             seen no resolution); then, when the thread's resolution is
 *             8 bits and the block holds at most 1024 octets, the cell table
 *             of ast_videocells_get_detail_html over the block with the
 *             thread's start range and cell duration.
 *
 * Named fields (fields.h: ast_dataitem_walk_fields, ast_dataitem_get_fields_json):
 *   I240/020  msg_index.
 *   I240/030  len, text.
 *   I240/040, I240/041  start_az, end_az (deg), start_rg (a cell index),
 *             cell_dur_raw (ns or fs), cell_dur (s).
 *   I240/048  c, res (the code; see ast_video_resolution_bits).
 *   I240/049  nb_vb, nb_cells.
 *   I240/050, I240/051, I240/052  len (octets), video (the octets).
 */

/* ---- Per-thread video state.
 * Each thread keeps the start range (a cell index) and cell duration (s)
 * of the last video header it decoded or summarised (I240/040, I240/041),
 * and the RES code of the last I240/048 it decoded or summarised. The block
 * summaries and detail views read it, since the block items carry no
 * resolution of their own: decode a record's items in record order. */

/** I240/020 Video Record Header: the message sequence identifier. */
typedef struct AstItem240_020 {
    uint8_t valid;
    uint32_t msg_index; /**< message sequence identifier */
} AstItem240_020;

KOVREL_API void ast_dataitem_240_020_init(AstItem240_020 *out);
KOVREL_API void ast_dataitem_240_020_decode(AstItem240_020 *out, const AstDataItem *item);
/** "MSG_INDEX:%u". */
KOVREL_API void ast_dataitem_240_020_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_240_020_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/**
 * I240/030 Video Summary: REP characters of free text. The decoder
 * NUL-terminates the text (it never exceeds 255 characters); characters
 * are kept as they are, NUL octets included (they end the text).
 */
typedef struct AstItem240_030 {
    uint8_t valid;
    uint32_t length; /**< REP: the number of characters */
    char text[260];
} AstItem240_030;

KOVREL_API void ast_dataitem_240_030_init(AstItem240_030 *out);
/** Not valid when the span holds fewer than 1 + REP octets. */
KOVREL_API void ast_dataitem_240_030_decode(AstItem240_030 *out, const AstDataItem *item);
/** "SUM:%s"; a text of more than 16 characters as "SUM:%s...[%u]" with its first 16 and its length. */
KOVREL_API void ast_dataitem_240_030_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_240_030_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_240_030_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/**
 * I240/040 Video Header Nano and I240/041 Video Header Femto: the azimuth
 * sector and range start of a video radial and the duration of one cell
 * (LSB 1 ns in I240/040, 1 fs in I240/041). Decoding one also sets the
 * thread's start range and cell duration.
 */
typedef struct AstVideoHeader {
    uint8_t valid;
    uint32_t start_az_raw;
    double start_az_lsb; /**< 360/2^16 deg */
    double start_az;     /**< deg */
    uint32_t end_az_raw;
    double end_az_lsb;   /**< 360/2^16 deg */
    double end_az;       /**< deg */
    uint32_t start_rg;   /**< range of the first cell, as a cell index */
    uint32_t cell_dur_raw;
    double cell_dur_lsb; /**< 1e-9 s (I240/040) or 1e-15 s (I240/041); 0 until decoded */
    double cell_dur;     /**< s */
} AstVideoHeader;

/** Defaults: both azimuth LSBs 360/2^16, everything else 0. */
KOVREL_API void ast_dataitem_video_header_init(AstVideoHeader *out);
KOVREL_API void ast_dataitem_240_040_decode(AstVideoHeader *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_240_041_decode(AstVideoHeader *out, const AstDataItem *item);
/** "AZ:%.2f-%.2f RG:%.2f": azimuths in degrees, start range in metres. */
KOVREL_API void ast_dataitem_240_040_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_240_041_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_240_040_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_240_041_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_240_040_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_240_041_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/**
 * I240/048 Video Cells Resolution & Data Compression Indicator. Decoding it
 * sets the thread's RES; a RES outside 1..6 is logged at WARNING ("I240/048
 * video cells resolution %d is not a standard value [1-6].") and kept.
 */
typedef struct AstItem240_048 {
    uint8_t valid;
    uint8_t c;    /**< data compression applied */
    uint16_t res; /**< 1..6: 1, 2, 4, 8, 16, 32 bits per cell */
} AstItem240_048;

KOVREL_API void ast_dataitem_240_048_init(AstItem240_048 *out);
KOVREL_API void ast_dataitem_240_048_decode(AstItem240_048 *out, const AstDataItem *item);
/** "RES:%u-BITS" (bits per cell), then " DCI" when C is set. */
KOVREL_API void ast_dataitem_240_048_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_240_048_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_240_048_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/** I240/049 Video Octets & Video Cells Counters: the octets and cells of the block that hold video. */
typedef struct AstItem240_049 {
    uint8_t valid;
    uint32_t nb_vb;    /**< 16 bits */
    uint32_t nb_cells; /**< 24 bits */
} AstItem240_049;

KOVREL_API void ast_dataitem_240_049_init(AstItem240_049 *out);
KOVREL_API void ast_dataitem_240_049_decode(AstItem240_049 *out, const AstDataItem *item);
/** "OCTET:%u CELL:%u". */
KOVREL_API void ast_dataitem_240_049_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_240_049_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_240_049_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/**
 * I240/050, 051, 052 Video Block Low, Medium and High Data Volume: REP
 * repetitions of 4, 64 or 256 video octets. The structure points into the
 * item's span. Valid only when the span is longer than the block; a high
 * block of REP 255 (beyond the 64 kB the standard allows) is logged at
 * CRITICAL ("I240/052 REP %u exceeds the maximum 254.") and left not valid
 * with its length filled.
 */
typedef struct AstVideoBlock {
    uint8_t valid;
    uint32_t length;       /**< octets: REP x 4, 64 or 256 */
    const uint8_t *video;  /**< the first video octet, NULL when not valid */
} AstVideoBlock;

KOVREL_API void ast_dataitem_240_050_decode(AstVideoBlock *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_240_051_decode(AstVideoBlock *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_240_052_decode(AstVideoBlock *out, const AstDataItem *item);
/**
 * "OCTET:%zu, CELL:%zu": the block's octets and its cells at the thread's
 * RES (octets x 8 / 2^(RES - 1); one cell a bit for RES above 6); "OCTET:%zu"
 * alone while the thread has seen no resolution (RES 0).
 */
KOVREL_API void ast_dataitem_240_050_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_240_051_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_240_052_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_240_050_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_240_051_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_240_052_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_240_050_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_240_051_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_240_052_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/** I240/000: "MSG_TYPE:VIDEO_SUMMARY" (1), "MSG_TYPE:VIDEO_MESSAGE" (2), "MSG_TYPE:UNDEFINED". */
KOVREL_API void ast_dataitem_240_000_get_summary(char *buffer, size_t size, const AstDataItem *item);

/** Bits per video cell of a RES code: 2, 4, 8, 16, 32 for RES 2..6, and 1 for any other code. */
KOVREL_API uint32_t ast_video_resolution_bits(uint32_t res);

/* ---- Video cells: the non-empty cells of a block of 8-bit cells. */

#define AST_VIDEO_MAX_CELLS 1024

typedef struct AstVideoCell {
    uint32_t number;    /**< position in the block, from 1 */
    double range;       /**< m */
    uint32_t amplitude; /**< the cell's octet */
} AstVideoCell;

typedef struct AstVideoCells {
    uint8_t valid;
    uint32_t res; /**< the RES code the cells were decoded with */
    AstVideoCell cells[AST_VIDEO_MAX_CELLS];
    uint64_t count;
} AstVideoCells;

/**
 * Decodes count video octets of 8-bit cells (res 4) into *out, leaving out
 * the empty cells (octet 0). Cell i (from 0) lies at (start_range + i) x
 * cell_duration x c / 2 metres. Any other res is logged at CRITICAL
 * ("Unsupported video resolution %d-bits.") and gives not valid; more than
 * 1024 non-empty cells keep the first 1024, are logged at PANIC ("Number of
 * videocells %zu exceeds the limit %u.") and give not valid.
 */
KOVREL_API void ast_videocell_decode(AstVideoCells *out, const uint8_t *octets, size_t count, uint32_t res,
                                     uint32_t start_range, double cell_duration);
/**
 * Appends to the text in buffer, for a valid list: "<p>%d valid (non empty)
 * video cells.</p>", "<p>Video resolution is %d-bits.</p>" and, when there
 * are cells, a table "Number", "Range", "Amptitude Value", "Amptitude
 * Relative" (the spelling consumers match on) with one row per cell.
 */
KOVREL_API void ast_videocells_get_detail_html(char *buffer, size_t size, const AstVideoCells *cells);

/* ---- Disassembled record. */

/**
 * A CAT240 record, one member per item (ast_datarecord_240_disassemble).
 * Disassembling decodes the members in record order, so the header and
 * resolution items also set the thread's video state; an item without a
 * member (RE, SP) is logged at WARNING as "Failed to disassemble dataitem :
 * %s." and skipped. Not valid and all zero for a record that is not valid
 * or not of category 240; a valid record without items gives a valid empty
 * structure.
 */
typedef struct AstRecord240 {
    uint8_t valid;
    AstMessageType i000;
    AstDataSourceIdentifier i010;
    AstItem240_020 i020;
    AstItem240_030 i030;
    AstVideoHeader i040;
    AstVideoHeader i041;
    AstItem240_048 i048;
    AstItem240_049 i049;
    AstVideoBlock i050;
    AstVideoBlock i051;
    AstVideoBlock i052;
    AstTimeOfDay i140;
} AstRecord240;

KOVREL_API void ast_datarecord_240_disassemble(AstRecord240 *out, const AstDataRecord *record);

/* ---- The video of a record as cell amplitudes. */

#define AST_VIDEO_OK 0
#define AST_VIDEO_RECORD_NOT_VALID 1
#define AST_VIDEO_IS_SUMMARY 2
#define AST_VIDEO_NO_MESSAGE_TYPE 3
#define AST_VIDEO_NO_HEADER 4
#define AST_VIDEO_TWO_HEADERS 5
#define AST_VIDEO_NO_RESOLUTION 6
#define AST_VIDEO_BAD_RESOLUTION 7
#define AST_VIDEO_WIDE_CELLS 8
#define AST_VIDEO_COMPRESSED 9
#define AST_VIDEO_NO_BLOCK 10
#define AST_VIDEO_TWO_BLOCKS 11
#define AST_VIDEO_BLOCK_NOT_VALID 12
#define AST_VIDEO_BLOCK_TOO_LONG 13
#define AST_VIDEO_NO_ROOM 14

/**
 * What ast_datarecord_240_get_vector found. The members are filled as far
 * as the checks went: with status 14 everything but the cells is there, so
 * cell_count tells the capacity needed.
 */
typedef struct AstVideoVector {
    uint8_t valid;
    uint32_t status;        /**< AST_VIDEO_*: the first check that failed */
    double start_az;        /**< deg */
    double end_az;          /**< deg */
    double cell_duration;   /**< s */
    double cell_length;     /**< m: cell_duration x c / 2 */
    double start_range;     /**< m: start_rg x cell_length */
    uint32_t start_rg;      /**< range of the first cell, as a cell index */
    uint32_t msg_index;     /**< I240/020, 0 without it */
    uint8_t tod_valid;      /**< the record holds a valid I240/140 */
    uint32_t hour;
    uint32_t minute;
    uint32_t second;
    uint32_t millisecond;
    uint32_t res;           /**< the RES code */
    uint32_t cell_mask;     /**< 2^bits - 1 */
    uint64_t cell_count;
    uint32_t *cells;        /**< the caller's array, cell_count amplitudes, nearest first */
} AstVideoVector;

/**
 * Turns a disassembled video message into its azimuth sector, range scale
 * and cell amplitudes (1, 2, 4 or 8 bits a cell, the first cell of an octet
 * in its top bits). The checks run in the order of the AST_VIDEO_* codes;
 * cells gets the amplitudes when there are at most capacity of them. With
 * I240/049 the counters give the extent of the video when they fit the
 * block; otherwise, or without I240/049, the whole block is used and the
 * fact is logged ("I240/049 counters VB %u CELLS %u are inconsistent with
 * the video block size %zu." at WARNING, "I240/049 is missing, the extent of
 * the video block is derived from its size." at CRITICAL).
 */
KOVREL_API AstVideoVector ast_datarecord_240_get_vector(const AstRecord240 *record, uint32_t *cells,
                                                        size_t capacity);

/* ---- Record accessors (datarecord.h dispatches to them). */

/** The first I240/010; not valid, with SAC and SIC all ones, when there is none. */
KOVREL_API void ast_datarecord_240_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record);
/** The first I240/140; all zero when there is none. */
KOVREL_API void ast_datarecord_240_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record);
/** The first I240/000: 7 "Video" when it says video summary or video message, else not valid. */
KOVREL_API void ast_datarecord_240_get_msgtype(AstRecordMsgType *out, const AstDataRecord *record);

KOVREL_END_DECLS

#endif /* KOVREL_CAT240_H */
