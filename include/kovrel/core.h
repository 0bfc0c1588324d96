/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * core.h: library identity, the options word, initialisation, the log
 * channel and the lookup callbacks that detail views use.
 *
 * All state here is process-wide and unsynchronised: set options, the log
 * handler and the callbacks before decoding starts on several threads.
 */
#ifndef KOVREL_CORE_H
#define KOVREL_CORE_H

#include "kovrel/export.h"

KOVREL_BEGIN_DECLS

/* ---- Version identity ------------------------------------------------- */

/** Major version number of this build (2). */
KOVREL_API uint64_t ast_library_version_major(void);
/** Minor version number of this build (1). */
KOVREL_API uint64_t ast_library_version_minor(void);
/** Patch version number of this build (0). */
KOVREL_API uint64_t ast_library_version_patch(void);
/** Version text "2.1.0". Constant, owned by the library. */
KOVREL_API const char *ast_library_version(void);
/** Short source revision id ("2c7b438"). Constant, owned by the library. */
KOVREL_API const char *ast_library_revision(void);
/** Build date in the compiler's form, e.g. "Oct 10 2026". */
KOVREL_API const char *ast_library_build(void);
/** One-line copyright notice. */
KOVREL_API const char *ast_library_about(void);
/** Contact web address of the maintainers. */
KOVREL_API const char *ast_library_contact(void);

/* ---- Options ---------------------------------------------------------- */

/**
 * Decode I062/105 negative raw longitudes as their positive counterpart
 * (kept for compatibility with trackers that sent the magnitude only).
 * Only I062/105 is affected.
 */
#define AST_OPTION_I062_105_NEGATE_WEST_LONGITUDE 0x1u
/**
 * Accept an FSPEC (or compound primary subfield) that is complete but has no
 * item bit set; the record then holds no items.
 */
#define AST_OPTION_ACCEPT_EMPTY_FSPEC 0x2u

/**
 * Initialises the library. The text is not interpreted. Clears the options
 * word and returns true. Optional; may be called again at any time.
 */
KOVREL_API bool ast_library_init(const char *text);
/** options |= mask. */
KOVREL_API void ast_library_set_option(uint32_t mask);
/** options &= ~mask. */
KOVREL_API void ast_library_unset_option(uint32_t mask);
/** options = 0. */
KOVREL_API void ast_library_reset_option(void);
/**
 * With a non-zero mask: true when any bit of mask is set in the options word.
 * With mask 0: true when no option at all is set.
 */
KOVREL_API bool ast_library_test_option(uint32_t mask);

/* ---- Logging ---------------------------------------------------------- */

/** Log levels. */
#define AST_LOG_DEBUG 0u
#define AST_LOG_INFO 1u
#define AST_LOG_WARNING 2u
#define AST_LOG_CRITICAL 3u
#define AST_LOG_PANIC 4u

/**
 * A log handler receives the level and one formatted message without level
 * label and without line ending. Its return value is ignored.
 */
typedef int (*AstLogHandler)(uint32_t level, const char *text);

/**
 * Replaces the log handler. NULL switches all logging off: nothing is then
 * formatted at all. The default handler is ast_log_stdout; register it again
 * to restore the default.
 */
KOVREL_API void ast_log_handler_reg(AstLogHandler handler);

/**
 * printf-style logging front end: formats into 512 bytes (longer output is
 * cut) and calls the handler. Returns at once when no handler is registered.
 */
KOVREL_API void ast_log(uint32_t level, const char *format, ...) KOVREL_PRINTF(2, 3);

/**
 * The default handler: writes a ten-character label ("[DEBUG   ]",
 * "[INFO    ]", "[WARNING ]", "[CRITICAL]", "[PANIC   ]", "[UNKNOWN ]" for
 * level 5 and above), a blank, the text and a line feed to standard output.
 * Returns the result of the second write.
 */
KOVREL_API int ast_log_stdout(uint32_t level, const char *text);

/**
 * Dumps octets through the handler: first "Binary data size: %d", then
 * lines of "0x%.2X" values separated by ", ". The first line holds 17
 * octets, every further line 16 (a format kept for existing log readers).
 * Does nothing when no handler is registered.
 */
KOVREL_API void ast_log_binary_data(uint32_t level, const uint8_t *data, size_t size);

/* ---- Lookup callbacks ------------------------------------------------- */

/** Entries an application may report per lookup. */
#define AST_SAC_INFO_MAX_ENTRIES 8
#define AST_SENSOR_LIST_MAX_ENTRIES 16

/** What is known about one owner of a System Area Code. */
typedef struct AstSacInfoEntry {
    uint8_t valid;          /**< 1 when this entry carries an answer */
    char region[64];        /**< e.g. "Europe" */
    char country_name[64]; /**< e.g. "France" */
    char country_code[8];   /**< e.g. "FR" */
} AstSacInfoEntry;

/** Answer of the SAC information callback: zero or more entries. */
typedef struct AstSacInfo {
    size_t count; /**< entries used, at most AST_SAC_INFO_MAX_ENTRIES */
    AstSacInfoEntry entries[AST_SAC_INFO_MAX_ENTRIES];
} AstSacInfo;

/** One sensor or system behind a SAC/SIC pair. */
typedef struct AstSensorEntry {
    uint8_t valid;
    char country_name[64];
    char country_code[8];
    char system[128];
    char type[64];
    char manufacturer[128];
    char model[128];
    char description[256];
} AstSensorEntry;

/** Answer of the SAC/SIC sensor callback. */
typedef struct AstSensorList {
    size_t count; /**< entries used, at most AST_SENSOR_LIST_MAX_ENTRIES */
    AstSensorEntry entries[AST_SENSOR_LIST_MAX_ENTRIES];
} AstSensorList;

/** Country that an ICAO 24-bit address block is allocated to. */
typedef struct AstCountryInfo {
    uint8_t valid;  /**< 1 when the address was found */
    char name[64];  /**< e.g. "Germany" */
    char code[8];   /**< e.g. "DE" */
} AstCountryInfo;

struct AstDataItem;

/** Fills info (already zeroed by the library) for the SAC. */
typedef void (*AstSacGetInfoFn)(AstSacInfo *info, uint32_t sac);
/** Fills list (already zeroed) with the sensors behind SAC/SIC. */
typedef void (*AstSacSicGetSensorFn)(AstSensorList *list, uint32_t sac, uint32_t sic);
/** Fills country (already zeroed) for the 24-bit address of the item shown. */
typedef void (*AstIcaoAddrGetCountryFn)(AstCountryInfo *country, uint32_t address,
                                        const struct AstDataItem *item);
/**
 * Returns the address (URL or data URI) of a flag image for the country
 * code, or NULL when there is none. The text must stay valid until the
 * detail view call returns.
 */
typedef const char *(*AstGetNationalFlagFn)(const char *country_code);

/** Registers the SAC information callback (NULL unregisters). */
KOVREL_API void ast_reg_callback_sac_get_info(AstSacGetInfoFn fn);
/** Registers the SAC/SIC sensor list callback (NULL unregisters). */
KOVREL_API void ast_reg_callback_sacsic_get_sensor(AstSacSicGetSensorFn fn);
/** Registers the ICAO address country callback (NULL unregisters). */
KOVREL_API void ast_reg_callback_icao_addr_get_country(AstIcaoAddrGetCountryFn fn);
/** Registers the national flag callback (NULL unregisters). */
KOVREL_API void ast_reg_callback_get_national_flag(AstGetNationalFlagFn fn);

KOVREL_END_DECLS

#endif /* KOVREL_CORE_H */
