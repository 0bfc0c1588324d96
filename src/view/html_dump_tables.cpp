// Octet dumps for detail views: a hexadecimal table (16 octets a row) and a
// bit table (4 octets a row, one cell per bit).
#include "core/text.h"
#include "kovrel/html.h"
#include "view/html_state.h"

namespace kovrel {
namespace {

constexpr size_t kHexPerRow = 16;
constexpr size_t kBinPerRow = 4;

size_t rows_for(size_t count, size_t per_row) {
    return count / per_row + (count % per_row != 0 ? 1 : 0);
}

}  // namespace
}  // namespace kovrel

extern "C" {

KOVREL_API void ast_html_gen_hex_table(char *dst, size_t size, const uint8_t *octets, size_t count) {
    kovrel::TextWriter w(dst, size);
    // No octets give no table at all, not an empty one.
    if (count == 0 || !octets) return;

    w.append(kovrel::html_flavor_bordered()
                 ? "<table class=\"hex_table\" border=\"1\" cellspacing=\"0\">"
                 : "<table class=\"hex_table\">");
    // The caption marks the two ends of a row whatever the count.
    w.append("<tr><th colspan=8 align=\"left\">Octet 1</th>"
             "<th colspan=8 align=\"right\">Octet 16</th></tr>");

    const size_t rows = kovrel::rows_for(count, kovrel::kHexPerRow);
    for (size_t row = 0; row < rows && !w.full(); ++row) {
        w.append("<tr>");
        for (size_t col = 0; col < kovrel::kHexPerRow; ++col) {
            const size_t i = row * kovrel::kHexPerRow + col;
            if (i < count)
                w.appendf("<td>%.2X</td>", static_cast<unsigned>(octets[i]));
            else
                w.append("<td>--</td>");
        }
        w.append("</tr>");
    }
    w.append("</table>");
}

KOVREL_API void ast_html_gen_bin_table(char *dst, size_t size, const uint8_t *octets, size_t count) {
    kovrel::TextWriter w(dst, size);
    if (count == 0 || !octets) return;

    w.append(kovrel::html_flavor_bordered()
                 ? "<table class=\"bin_table\" border=\"1\" cellspacing=\"0\">"
                 : "<table class=\"bin_table\">");

    const size_t rows = kovrel::rows_for(count, kovrel::kBinPerRow);
    for (size_t row = 0; row < rows && !w.full(); ++row) {
        const size_t first = row * kovrel::kBinPerRow;

        // Caption: the 1-based number and value of each octet of the row.
        w.append("<tr class=\"caption_row\">");
        for (size_t i = first; i < first + kovrel::kBinPerRow; ++i) {
            if (i < count)
                w.appendf("<th colspan=8>Octet %zu - %.2X</th>", i + 1, static_cast<unsigned>(octets[i]));
            else
                w.appendf("<th colspan=8>Octet %zu - --</th>", i + 1);
        }
        w.append("</tr>");

        // Data: one cell per bit, most significant bit of each octet first.
        w.append("<tr class=\"data_row\">");
        for (size_t i = first; i < first + kovrel::kBinPerRow; ++i) {
            for (int bit = 7; bit >= 0; --bit) {
                if (i < count)
                    w.append((octets[i] >> bit) & 1 ? "<td>1</td>" : "<td>0</td>");
                else
                    w.append("<td>-</td>");
            }
        }
        w.append("</tr>");
    }
    w.append("</table>");
}

}  // extern "C"
