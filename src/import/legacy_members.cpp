#include "import/legacy_members.h"

#include "core/cp1252.h"
#include "file/file_bytes.h"
#include "import/pid_lines.h"

#include <random>

namespace zolt::import {

namespace fs = std::filesystem;

WorkFolder::WorkFolder(const fs::path& sourceFolder) : temp_(sourceFolder / "temp") {
    std::error_code ec;
    madeTemp_ = fs::create_directory(temp_, ec);
    if (ec)
        return;
    std::random_device random;
    for (int attempt = 0; attempt < 10 && path_.empty(); ++attempt) {
        const fs::path candidate = temp_ / ("zos-" + std::to_string(random()));
        if (fs::create_directory(candidate, ec) && !ec)
            path_ = candidate;
    }
}

WorkFolder::~WorkFolder() {
    std::error_code ec;
    if (!path_.empty())
        fs::remove_all(path_, ec);
    if (madeTemp_)
        fs::remove(temp_, ec); // only when empty: other files there are not ours
}

void MemberFiles::Add(const fs::path& folder, const std::vector<std::string>& names) {
    for (const std::string& name : names)
        byName_[vb::UCase(name)] = folder / name;
}

std::optional<fs::path> MemberFiles::Find(const std::string& name) const {
    const auto found = byName_.find(vb::UCase(name));
    if (found == byName_.end())
        return std::nullopt;
    return found->second;
}

std::vector<fs::path> MemberFiles::WithExtension(const std::string& extension) const {
    const std::string upper = vb::UCase(extension);
    std::vector<fs::path> files;
    for (const auto& [name, path] : byName_)
        if (name.size() > upper.size() &&
            name.compare(name.size() - upper.size(), upper.size(), upper) == 0)
            files.push_back(path);
    return files;
}

std::vector<std::string> ReadMemberLines(const fs::path& file) {
    std::vector<std::string> lines;
    const auto bytes = file::ReadFileBytes(file.string(), 64u << 20);
    if (!bytes)
        return lines;
    const std::string text = cp1252::toUtf8(BeforeEndOfFileMark(*bytes));
    std::size_t pos = 0;
    while (pos < text.size()) {
        const std::size_t end = text.find('\n', pos);
        std::string line =
            text.substr(pos, end == std::string::npos ? std::string::npos : end - pos);
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        lines.push_back(std::move(line));
        pos = end == std::string::npos ? text.size() : end + 1;
    }
    return lines;
}

std::vector<std::string> LegacyFields(const std::string& line) {
    std::vector<std::string_view> parts;
    SplitFields(line, parts);
    std::vector<std::string> fields;
    for (std::string_view part : parts)
        fields.emplace_back(part == "-" ? std::string_view() : part);
    return fields;
}

std::string FieldAt(const std::vector<std::string>& fields, std::size_t i) {
    return i < fields.size() ? fields[i] : std::string();
}

std::int16_t LegacyNumber(const std::string& field) {
    const auto n = vb::CInt(Value(field));
    return n && *n > 0 ? *n : 0;
}

std::int32_t LegacyLong(const std::string& field) {
    const auto n = vb::CLng(Value(field));
    return n && *n > 0 ? *n : 0;
}

} // namespace zolt::import
