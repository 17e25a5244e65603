#pragma once

namespace zolt {

// The application title: it names every settings node and heads boxes that
// have no caption of their own.
inline constexpr const char* kAppTitle = "ZOLT 6.0";
inline constexpr int kVersionMajor = 6;
inline constexpr int kVersionMinor = 0;
inline constexpr int kVersionRevision = 0;
inline constexpr int kBuildNumber = 1;
// The maker's page that Thessor Web Site opens.
inline constexpr const char* kWebSite = "https://www.thessor.com/zolt";

} // namespace zolt
