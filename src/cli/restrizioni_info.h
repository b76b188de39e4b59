#pragma once
// The lines of the main panel's restrictions block, for `info`.

#include <filesystem>
#include <string>
#include <vector>

namespace gorgo::cli {

std::vector<std::string> RigheRestrizioni(const std::filesystem::path& fileIni);

}  // namespace gorgo::cli
