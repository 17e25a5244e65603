#include "file/path_names.h"

#include "core/utf8.h"
#include "core/value.h"

#include <filesystem>
#include <system_error>
#include <vector>

namespace zolt::file {
namespace {

#ifdef _WIN32
constexpr const char* kSeparators = "\\/:";
constexpr char kSeparator = '\\';
constexpr bool kCaseBlindFileSystem = true;
#else
constexpr const char* kSeparators = "/";
constexpr char kSeparator = '/';
constexpr bool kCaseBlindFileSystem = false;
#endif

std::size_t lastSeparator(const std::string& path) {
    return path.find_last_of(kSeparators);
}

// The last "." of the file's name; a "." in a directory name is no extension.
std::size_t extensionDot(const std::string& path) {
    const std::size_t dot = path.rfind('.');
    const std::size_t sep = lastSeparator(path);
    return dot != std::string::npos && (sep == std::string::npos || dot > sep) ? dot
                                                                               : std::string::npos;
}

// The spelling of `name` among the entries of `dir`: the exact one first, else
// the one that differs in case only; empty when there is none.
std::string spellingIn(const std::filesystem::path& dir, const std::string& name) {
    std::error_code ec;
    if (std::filesystem::exists(dir / name, ec)) {
        std::filesystem::directory_iterator it(dir, ec), end;
        std::string caseBlind;
        for (; !ec && it != end; it.increment(ec)) {
            const std::string entry = it->path().filename().string();
            if (entry == name)
                return entry;
            if (caseBlind.empty() && vb::TextEqualsNoCase(entry, name))
                caseBlind = entry;
        }
        return caseBlind.empty() ? name : caseBlind;
    }
    return {};
}

} // namespace

std::string UpperExtensionOf(const std::string& path) {
    return vb::UCase(ExtensionOf(path));
}

bool IsNewOrTemplate(const std::string& path) {
    const std::string ext = UpperExtensionOf(path);
    return ext == "ZLT" || ext == "~PT" || vb::UCase(StripExtension(FileNameOf(path))) == "NEW";
}

std::string DirectoryOf(const std::string& path) {
    const std::size_t cut = lastSeparator(path);
    if (cut == std::string::npos)
        return {};
    std::string dir = path.substr(0, cut);
    // A bare root ("/") or drive ("C:") keeps its separator.
    if (dir.empty() || (dir.size() == 2 && dir[1] == ':'))
        dir = path.substr(0, cut + 1);
    return kCaseBlindFileSystem ? vb::UCase(dir) : dir;
}

std::string FileNameOf(const std::string& path) {
    const std::size_t cut = lastSeparator(path);
    return cut == std::string::npos ? path : path.substr(cut + 1);
}

std::string StripExtension(const std::string& path) {
    const std::size_t dot = extensionDot(path);
    return dot == std::string::npos ? path : path.substr(0, dot);
}

std::string ExtensionOf(const std::string& path) {
    const std::size_t dot = extensionDot(path);
    return dot == std::string::npos ? std::string() : path.substr(dot + 1);
}

std::string ProgramName(const std::string& path) {
    std::string name = utf8::Left(StripExtension(FileNameOf(path)), 16);
    const std::size_t blank = name.find(' ');
    return blank == std::string::npos ? name : name.substr(0, blank);
}

std::string GetLongFilename(const std::string& path) {
    if (path.empty())
        return {};
    std::vector<std::string> parts;
    std::size_t start = 0;
    std::string result;
    // The root (or drive) is taken as it stands.
    if (path.front() == kSeparator || path.front() == '/') {
        result = std::string(1, path.front());
        start = 1;
    } else if (path.size() >= 2 && path[1] == ':') {
        result = path.substr(0, 2);
        start = 2;
        if (path.size() > 2 && (path[2] == '\\' || path[2] == '/')) {
            result += path[2];
            start = 3;
        }
    }
    while (start <= path.size()) {
        const std::size_t end = path.find_first_of(kSeparators, start);
        const std::string part = path.substr(start, end == std::string::npos ? end : end - start);
        if (!part.empty())
            parts.push_back(part);
        if (end == std::string::npos)
            break;
        start = end + 1;
    }
    std::filesystem::path walked =
        result.empty() ? std::filesystem::path(".") : std::filesystem::path(result);
    bool first = true;
    for (const std::string& part : parts) {
        const std::string spelled = part == "." || part == ".."
                                        ? (std::filesystem::exists(walked / part) ? part : "")
                                        : spellingIn(walked, part);
        if (spelled.empty())
            return {};
        walked /= spelled;
        if (!first || (!result.empty() && result.back() != kSeparator && result.back() != '/' &&
                       result.back() != '\\'))
            result += kSeparator;
        result += spelled;
        first = false;
    }
    return result;
}

bool IsInvalidFileName(const std::string& path) {
    const std::size_t colon = path.find(':', 2);
    if (path.size() > 2 && colon != std::string::npos)
        return true;
    const std::string base = StripExtension(FileNameOf(path));
    if (base.size() >= 216)
        return true;
    return base.find_first_of("?*\\/:\"<>|") != std::string::npos;
}

std::string CompanionPath(const std::string& path, const std::string& extension) {
    return StripExtension(path) + extension;
}

} // namespace zolt::file
