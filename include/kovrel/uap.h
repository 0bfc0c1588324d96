/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * uap.h: data item identifiers and User Application Profiles.
 *
 * An AstItemId is category x 1000 + item number (I048/010 is 48010). Item
 * numbers 997, 998 and 999 are the Random Field Sequencing, Reserved
 * Expansion and Special Purpose fields; 0 is "no item" (a spare FRN).
 * Identifiers 1901-1904, 2901, 2902, 1951, 2951 and 21902-21911 name the
 * items of variant profiles and old editions; they print with the standard
 * item number of the layout they replace.
 *
 * A profile maps each FRN of a category to an item. AST_UAP_STANDARD knows
 * all supported categories; the nine variants override one or two
 * categories and defer to AST_UAP_STANDARD for the rest.
 */
#ifndef KOVREL_UAP_H
#define KOVREL_UAP_H

#include "kovrel/export.h"

KOVREL_BEGIN_DECLS

typedef uint32_t AstItemId;

/** A profile: two functions of the category (and FRN). */
typedef struct AstUap {
    /** Highest FRN of the category, 0 for an unknown category. */
    uint32_t (*max_frn)(uint32_t category);
    /** Item of the FRN, 0 for a spare or undefined FRN. */
    AstItemId (*get_dataitem)(uint32_t category, uint32_t frn);
} AstUap;

KOVREL_API extern const AstUap AST_UAP_STANDARD;
KOVREL_API extern const AstUap AST_UAP_CAT001_PLOT;
KOVREL_API extern const AstUap AST_UAP_CAT021_VER023;
KOVREL_API extern const AstUap AST_UAP_CAT021_VER026;
KOVREL_API extern const AstUap AST_UAP_CAT021_VER21;
KOVREL_API extern const AstUap AST_UAP_CAT021_VER27;
KOVREL_API extern const AstUap AST_UAP_ASR10SS;
KOVREL_API extern const AstUap AST_UAP_ASR10SS_MK2;
KOVREL_API extern const AstUap AST_UAP_THALES;
KOVREL_API extern const AstUap AST_UAP_MANAGAIR;

/** Highest FRN of category in uap; 0 when uap or its max_frn is NULL. */
KOVREL_API uint32_t ast_uap_max_frn(const AstUap *uap, uint32_t category);
/** Item of the FRN in uap; 0 when uap or its get_dataitem is NULL. */
KOVREL_API AstItemId ast_uap_get_dataitem(const AstUap *uap, uint32_t category, uint32_t frn);

/* The functions behind the exported profiles. A lookup beyond a table logs
 * a CRITICAL message such as "UAP CAT048: Undefined FRN 29" and returns 0. */
KOVREL_API uint32_t ast_uap_max_frn_standard(uint32_t category);
KOVREL_API AstItemId ast_uap_get_dataitem_standard(uint32_t category, uint32_t frn);
KOVREL_API uint32_t ast_uap_max_frn_cat001_plot(uint32_t category);
KOVREL_API AstItemId ast_uap_get_dataitem_cat001_plot(uint32_t category, uint32_t frn);
KOVREL_API uint32_t ast_uap_max_frn_cat021_ver023(uint32_t category);
KOVREL_API AstItemId ast_uap_get_dataitem_cat021_ver023(uint32_t category, uint32_t frn);
KOVREL_API uint32_t ast_uap_max_frn_cat021_ver026(uint32_t category);
KOVREL_API AstItemId ast_uap_get_dataitem_cat021_ver026(uint32_t category, uint32_t frn);
KOVREL_API uint32_t ast_uap_max_frn_cat021_ver21(uint32_t category);
KOVREL_API AstItemId ast_uap_get_dataitem_cat021_ver21(uint32_t category, uint32_t frn);
KOVREL_API uint32_t ast_uap_max_frn_cat021_ver27(uint32_t category);
KOVREL_API AstItemId ast_uap_get_dataitem_cat021_ver27(uint32_t category, uint32_t frn);
KOVREL_API uint32_t ast_uap_max_frn_asr10ss(uint32_t category);
KOVREL_API AstItemId ast_uap_get_dataitem_asr10ss(uint32_t category, uint32_t frn);
KOVREL_API uint32_t ast_uap_max_frn_asr10ss_mk2(uint32_t category);
KOVREL_API AstItemId ast_uap_get_dataitem_asr10ss_mk2(uint32_t category, uint32_t frn);
KOVREL_API uint32_t ast_uap_max_frn_thales(uint32_t category);
KOVREL_API AstItemId ast_uap_get_dataitem_thales(uint32_t category, uint32_t frn);
KOVREL_API uint32_t ast_uap_max_frn_managair(uint32_t category);
KOVREL_API AstItemId ast_uap_get_dataitem_managair(uint32_t category, uint32_t frn);

/**
 * Writes the text form of an identifier: "I048/010", "I048/REF",
 * "I048/SPF", "I048/RFS", and for variant items the standard number they
 * stand for (21907 gives "I021/271"). Returns buffer, or NULL when buffer
 * is NULL or size is 0. Cut to size.
 */
KOVREL_API char *ast_dataitem_type_to_str(char *buffer, size_t size, AstItemId id);
/** Writes "I%03d" of the category; returns buffer, or NULL. */
KOVREL_API char *ast_category_to_str(char *buffer, size_t size, uint32_t category);

KOVREL_END_DECLS

#endif /* KOVREL_UAP_H */
