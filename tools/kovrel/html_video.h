// The sweep of a CAT240 video record as an inline SVG, for the HTML page.
#pragma once

#include <string>

#include <kovrel/kovrel.h>

namespace kovrel_tool {

// An inline SVG of the record's radial: range from left to right, the
// amplitude of each cell as a grey level (black: no echo), the sector and
// the range scale written beneath. Empty for a video summary and for a
// record that is not CAT240 video; a note for a video message that cannot
// be drawn.
std::string video_figure(const AstDataRecord &record);

}  // namespace kovrel_tool
