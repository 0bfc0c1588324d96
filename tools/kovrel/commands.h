// The sub-commands of the kovrel tool.
#pragma once

#include <cstdio>
#include <string>

namespace kovrel_tool {

// `kovrel info`: library version, revision and build date.
int run_info(std::FILE *out);

// `kovrel uap [--profile NAME] [CATEGORY]`: the FRN table of one category
// (or of every supported category when category is 0) in a profile.
int run_uap(std::FILE *out, const std::string &profile, unsigned category);

}  // namespace kovrel_tool
