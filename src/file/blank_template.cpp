#include "file/blank_template.h"

#include "file/path_names.h"

#include <filesystem>

namespace zolt::file {
namespace {

namespace fs = std::filesystem;

bool holdsTemplate(const fs::path& folder) {
    std::error_code ec;
    for (fs::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
        if (UpperExtensionOf(it->path().string()) == "ZLT")
            return true;
    }
    return false;
}

} // namespace

bool InstallBlankTemplate(const std::string& dataDirectory, const std::string& templatesDirectory) {
    const fs::path target = fs::path(templatesDirectory) / kBlankTemplate;
    std::error_code ec;
    if (fs::exists(target, ec))
        return true;
    if (templatesDirectory.empty() || holdsTemplate(templatesDirectory))
        return false;
    fs::create_directories(templatesDirectory, ec);
    return fs::copy_file(fs::path(dataDirectory) / kBlankTemplate, target, ec) && !ec;
}

} // namespace zolt::file
