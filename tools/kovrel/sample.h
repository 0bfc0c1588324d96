// The sample recording built into the tool (a pcap composed at build time
// by tools/samplegen; see there for what it holds).
#pragma once

#include <cstddef>

namespace kovrel_tool {

extern const unsigned char kSamplePcap[];
extern const std::size_t kSamplePcapSize;

}  // namespace kovrel_tool
