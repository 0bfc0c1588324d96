// Test helper: what `kovrel decode` prints for octets held in memory.
#pragma once

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "session.h"
#include "tools/capture_builder.h"
#include "tools/memory_stream.h"

namespace kovrel_tool_test {

struct Decoded {
    std::vector<std::string> lines;  // text lines, or one JSON object per line
    std::string messages;
};

inline Decoded decode_octets(const Octets &octets, bool json) {
    kovrel_tool::SessionSettings settings;
    settings.format = json ? kovrel_tool::RecordFormat::Json : kovrel_tool::RecordFormat::Text;
    Capture out, messages;
    kovrel_tool::DecodeSession session(settings, out.file(), messages.file());
    session.decode_memory("in", octets.data(), octets.size());
    return {out.lines(), messages.text()};
}

inline std::vector<nlohmann::json> decode_json(const Octets &octets) {
    std::vector<nlohmann::json> records;
    for (const auto &line : decode_octets(octets, true).lines) records.push_back(nlohmann::json::parse(line));
    return records;
}

}  // namespace kovrel_tool_test
