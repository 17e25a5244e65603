#pragma once

#include <string>

namespace zolt::file {

// Plain-string helpers over program paths. Paths use the platform's separator;
// on a case-sensitive file system names keep their case.

// True when the file is unnamed or a template: extension "ZLT" or "~PT" in upper
// case, or base name "NEW".
bool IsNewOrTemplate(const std::string& path);
// The directory without a final separator; a bare root or drive keeps it. Upper
// case where the file system ignores case.
std::string DirectoryOf(const std::string& path);
// What stands behind the last separator (or drive colon).
std::string FileNameOf(const std::string& path);
// The path cut from its last "." on.
std::string StripExtension(const std::string& path);
// What stands behind the last "."; empty when there is no ".".
std::string ExtensionOf(const std::string& path);
// The first 16 characters of the file's base name, cut at the first blank.
std::string ProgramName(const std::string& path);
// The path as the file system spells each of its parts; empty when a part is missing.
std::string GetLongFilename(const std::string& path);
// A name the program refuses: a ":" from the third character on, a base name of
// 216 characters or more, or one holding ? * \ / : " < > |.
bool IsInvalidFileName(const std::string& path);
// The upper-case extension.
std::string UpperExtensionOf(const std::string& path);
// The companion file of a program: its base with another extension (".bin").
std::string CompanionPath(const std::string& path, const std::string& extension);

} // namespace zolt::file
