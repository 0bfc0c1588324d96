// Test helper: the HTML page of some octets, and the data it embeds read
// back (base64 and raw deflate undone, items met again resolved).
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "output_html.h"
#include "tools/capture_builder.h"

namespace kovrel_tool_test {

// Inflates a raw deflate stream made of fixed-code blocks (what the page's
// compressor writes). False when the stream is broken or uses other codes.
bool inflate_fixed(const std::string &in, std::string &out);
std::string base64_decode(const std::string &text);

struct EmbeddedPage {
    std::string text;       // the page
    std::string messages;   // what went to standard error
    nlohmann::json meta;
    std::vector<nlohmann::json> rows;     // per record
    std::vector<nlohmann::json> records;  // per record: [location, profile, video, [item, ...]]
    std::string inflated;   // the texts of every group, inflated, one after the other
    size_t groups = 0;
    bool readable = true;   // every group inflated and parsed
};

// Writes the page of `octets` (named `name`) and reads its data back.
EmbeddedPage render_page(const std::string &name, const Octets &octets,
                         const kovrel_tool::PageOptions &options = {});

}  // namespace kovrel_tool_test
