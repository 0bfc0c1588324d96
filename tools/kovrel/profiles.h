// Names of the library's profiles as the tool accepts them on the command line.
#pragma once

#include <string>
#include <vector>

#include <kovrel/uap.h>

namespace kovrel_tool {

struct ProfileName {
    const char *name;
    const AstUap *uap;
};

// The ten exported profiles, standard first.
const std::vector<ProfileName> &profiles();
// The profile of a name, or nullptr.
const AstUap *find_profile(const std::string &name);
// The name of a profile (compared by its item lookup), or "custom".
const char *profile_name(const AstUap &uap);
// The categories the library supports, in ascending order.
const std::vector<unsigned> &supported_categories();

}  // namespace kovrel_tool
