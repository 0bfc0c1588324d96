// Text builders shared by every detail view: heading, paragraph, escaping and
// the detail table opened, filled row by row and closed.
//
// Each builder writes from the start of its buffer; a caller composing a view
// passes the current end of its text and the room left behind it.
#include <cstdarg>
#include <cstring>

#include "core/text.h"
#include "kovrel/html.h"
#include "view/html_state.h"

namespace kovrel {

uint32_t g_html_flavor = 0;
int g_html_row_parity = 0;

namespace {

// printf-formatted text between an opening and a closing tag, each piece cut
// to the room left.
char *gen_tagged(char *dst, size_t size, const char *open, const char *close,
                 const char *format, va_list ap) {
    TextWriter w(dst, size);
    w.append(open);
    if (format) w.vappendf(format, ap);
    w.append(close);
    return dst;
}

// The entity that replaces c, or null when c is copied as it is. Quotes are
// left alone: the builders never place escaped text inside an attribute.
const char *entity_for(char c) {
    switch (c) {
    case '&': return "&amp;";
    case '<': return "&lt;";
    case '>': return "&gt;";
    default: return nullptr;
    }
}

}  // namespace
}  // namespace kovrel

extern "C" {

KOVREL_API void ast_html_set_flavor(uint32_t flavor) { kovrel::g_html_flavor = flavor; }

KOVREL_API char *ast_html_gen_title_h4(char *dst, size_t size, const char *format, ...) {
    va_list ap;
    va_start(ap, format);
    kovrel::gen_tagged(dst, size, "<h4>", "</h4>", format, ap);
    va_end(ap);
    return dst;
}

KOVREL_API char *ast_html_gen_para(char *dst, size_t size, const char *format, ...) {
    va_list ap;
    va_start(ap, format);
    kovrel::gen_tagged(dst, size, "<p>", "</p>", format, ap);
    va_end(ap);
    return dst;
}

KOVREL_API void ast_html_escape_text(char *dst, size_t size, const char *src) {
    kovrel::TextWriter w(dst, size);
    if (!src) return;
    for (; *src != '\0'; ++src) {
        const char *entity = kovrel::entity_for(*src);
        if (!entity) {
            if (w.room() < 1) break;
            w.append_char(*src);
            continue;
        }
        // Half an entity would garble the rest of the page: stop instead.
        if (w.room() < std::strlen(entity)) break;
        w.append(entity);
    }
}

KOVREL_API void ast_html_gen_table_begin(char *dst, size_t size) {
    kovrel::TextWriter w(dst, size);
    w.append(kovrel::html_flavor_bordered()
                 ? "<table class=\"detail_table\" border=\"1\" cellspacing=\"0\">"
                 : "<table class=\"detail_table\">");
    kovrel::g_html_row_parity = 0;
}

KOVREL_API void ast_html_gen_table_row(char *dst, size_t size, int header, const char *cell, ...) {
    kovrel::TextWriter w(dst, size);
    if (header) {
        kovrel::g_html_row_parity = 0;
        w.append("<tr>");
    } else {
        w.append(kovrel::g_html_row_parity ? "<tr class=\"even_row\">" : "<tr>");
    }

    // The list ends with a text equal to the marker, wherever it is stored.
    // A null pointer ends it as well rather than being read as a text.
    va_list ap;
    va_start(ap, cell);
    for (const char *text = cell; text && std::strcmp(text, AST_HTML_TABLE_END_OF_ROW) != 0;
         text = va_arg(ap, const char *)) {
        if (header)
            w.appendf("<th>%s</th>", text);
        else
            w.appendf("<td>%s</td>", text);
    }
    va_end(ap);

    w.append("</tr>");
    // The parity follows the rows, not the text: it advances even when the
    // row did not fit.
    if (!header) kovrel::g_html_row_parity ^= 1;
}

KOVREL_API void ast_html_gen_table_end(char *dst, size_t size) {
    kovrel::TextWriter w(dst, size);
    w.append("</table><br/>");
}

}  // extern "C"
