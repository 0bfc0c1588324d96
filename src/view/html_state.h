// Process-wide state of the HTML builders: the output flavor and the parity
// of the next data row of the detail table being written.
#pragma once

#include <cstdint>

namespace kovrel {

// Set by ast_html_set_flavor; 1 asks for tables that carry presentation
// attributes for viewers without a style sheet.
extern uint32_t g_html_flavor;
// 1 when the next data row of a detail table is an even row.
extern int g_html_row_parity;

inline bool html_flavor_bordered() { return g_html_flavor == 1; }

}  // namespace kovrel
