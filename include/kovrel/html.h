/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * html.h: the HTML text builders that every detail view uses, and links to
 * web map services for a WGS-84 position.
 *
 * Every builder writes a NUL-terminated text from the start of dst and never
 * writes past size; output that does not fit is cut piece by piece. To build
 * a view, call the builders in turn with the current end of the text and the
 * room left: title, table begin, header row, data rows, table end.
 *
 * CSS classes used: detail_table, even_row, hex_table, bin_table,
 * caption_row, data_row. The library produces no style sheet.
 *
 * The flavor and the row parity are process-wide: do not generate detail
 * views on two threads at once.
 */
#ifndef KOVREL_HTML_H
#define KOVREL_HTML_H

#include "kovrel/export.h"

KOVREL_BEGIN_DECLS

/** Marks the end of the cell list of ast_html_gen_table_row (compared by content). */
#define AST_HTML_TABLE_END_OF_ROW "AST_HTML_TABLE_END_OF_ROW"

/** Map service identifiers. */
#define AST_MAP_GOOGLE 1
#define AST_MAP_OSM 2
#define AST_MAP_AMAP 3
#define AST_MAP_BAIDU 4

/**
 * Flavor 1 gives tables with border="1" cellspacing="0" for viewers without a
 * style sheet; any other value gives tables with their class only (default 0).
 */
KOVREL_API void ast_html_set_flavor(uint32_t flavor);

/** Writes "<h4>" + printf(format, ...) + "</h4>"; returns dst. */
KOVREL_API char *ast_html_gen_title_h4(char *dst, size_t size, const char *format, ...)
    KOVREL_PRINTF(3, 4);
/** Writes "<p>" + printf(format, ...) + "</p>"; returns dst. */
KOVREL_API char *ast_html_gen_para(char *dst, size_t size, const char *format, ...)
    KOVREL_PRINTF(3, 4);
/**
 * Copies src replacing &, < and > by their entities. An entity that does not
 * fit whole ends the text there (it is never cut in half).
 */
KOVREL_API void ast_html_escape_text(char *dst, size_t size, const char *src);
/** Opens a detail table and resets the row parity. */
KOVREL_API void ast_html_gen_table_begin(char *dst, size_t size);
/**
 * Writes one row. header non-zero gives <th> cells and resets the parity;
 * data rows alternate between "<tr>" and "<tr class=\"even_row\">". The
 * cells follow as const char * arguments and end with a text equal to
 * AST_HTML_TABLE_END_OF_ROW. Cell texts are inserted as they are.
 */
KOVREL_API void ast_html_gen_table_row(char *dst, size_t size, int header, const char *cell, ...);
/** Writes "</table><br/>". */
KOVREL_API void ast_html_gen_table_end(char *dst, size_t size);
/** Hexadecimal dump of count octets, 16 a row; empty text for count 0. */
KOVREL_API void ast_html_gen_hex_table(char *dst, size_t size, const uint8_t *octets, size_t count);
/** Bit dump of count octets, 4 octets a row; empty text for count 0. */
KOVREL_API void ast_html_gen_bin_table(char *dst, size_t size, const uint8_t *octets, size_t count);
/**
 * Writes <a href="URL">Service name</a> for the service, or the empty text
 * for an unknown service.
 */
KOVREL_API void ast_html_gen_location_map_link(char *dst, size_t size, int32_t service,
                                               double latitude, double longitude);

/** "Google Maps", "OpenStreetMap", "AMap", "Baidu Map", or "No Map". */
KOVREL_API const char *ast_map_get_service_name(int32_t service);
/**
 * Writes the link address of the position on the service and returns true;
 * false (dst untouched) for an unknown service. AMap takes longitude first.
 */
KOVREL_API bool ast_map_get_link_url(char *dst, size_t size, int32_t service, double latitude,
                                     double longitude);
KOVREL_API bool ast_map_get_link_url_google(char *dst, size_t size, double latitude, double longitude);
KOVREL_API bool ast_map_get_link_url_osm(char *dst, size_t size, double latitude, double longitude);
KOVREL_API bool ast_map_get_link_url_amap(char *dst, size_t size, double latitude, double longitude);
KOVREL_API bool ast_map_get_link_url_baidu(char *dst, size_t size, double latitude, double longitude);

KOVREL_END_DECLS

#endif /* KOVREL_HTML_H */
