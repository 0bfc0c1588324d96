// The script and style sheet of the HTML page (html/report.js and
// html/report.css), compiled in as they are written.
#pragma once

namespace kovrel_tool {

extern const char kReportJs[];
extern const char kReportCss[];

}  // namespace kovrel_tool
