#pragma once

#include "core/value.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace zolt::import {

// The folder an import unpacks into: made fresh below `temp` beside the source,
// removed with everything in it when the import is over, however it ends.
class WorkFolder {
public:
    explicit WorkFolder(const std::filesystem::path& sourceFolder);
    ~WorkFolder();
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;

    bool ok() const { return !path_.empty(); }
    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path temp_;
    std::filesystem::path path_;
    bool madeTemp_ = false;
};

// The unpacked member files, found by name in any case (DOS names are upper case).
class MemberFiles {
public:
    void Add(const std::filesystem::path& folder, const std::vector<std::string>& names);
    std::optional<std::filesystem::path> Find(const std::string& name) const;
    bool Has(const std::string& name) const { return Find(name).has_value(); }
    // Every file whose name ends in `extension` (".MAN"), in name order.
    std::vector<std::filesystem::path> WithExtension(const std::string& extension) const;

private:
    std::map<std::string, std::filesystem::path> byName_;
};

// The lines of a member file as text, without their line ends.
std::vector<std::string> ReadMemberLines(const std::filesystem::path& file);

// The fields of a legacy line, cut at blanks; "-" counts as empty.
std::vector<std::string> LegacyFields(const std::string& line);
// A field, empty when absent.
std::string FieldAt(const std::vector<std::string>& fields, std::size_t i);
// The numeric filter: 0 for an empty, non-numeric or negative field.
std::int16_t LegacyNumber(const std::string& field);
// The same filter for a 32-bit column, so that a value above 32767 is kept as read.
std::int32_t LegacyLong(const std::string& field);

} // namespace zolt::import
