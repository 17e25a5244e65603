#pragma once

#include <string>

namespace zolt::file {

// The empty program a fresh install offers to File > New, shipped beside the executables.
inline constexpr const char* kBlankTemplate = "Blank.zlt";

// Puts the shipped blank template into a templates folder that holds no
// template yet; the user's own templates are never touched. True when the
// folder holds the blank template afterwards.
bool InstallBlankTemplate(const std::string& dataDirectory, const std::string& templatesDirectory);

} // namespace zolt::file
