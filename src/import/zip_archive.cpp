#include "import/zip_archive.h"

#include "core/value.h"

#include <filesystem>
#include <fstream>
#include <memory>
#include <set>
#include <zip.h>

namespace zolt::import {
namespace {

namespace fs = std::filesystem;

struct ArchiveCloser {
    void operator()(zip_t* archive) const { zip_discard(archive); }
};
struct MemberCloser {
    void operator()(zip_file_t* file) const { zip_fclose(file); }
};
using Archive = std::unique_ptr<zip_t, ArchiveCloser>;
using Member = std::unique_ptr<zip_file_t, MemberCloser>;

constexpr std::uint32_t kUnixTypeMask = 0170000;
constexpr std::uint32_t kUnixSymlink = 0120000;

struct Entry {
    zip_uint64_t index;
    std::string name;
};

// Why a member name is not a plain file name; empty when it is one.
std::string nameFault(const std::string& name) {
    if (name.empty())
        return "a member without a name";
    if (name.find("..") != std::string::npos)
        return "the member '" + name + "', which points outside its folder";
    if (name.front() == '/' || name.front() == '\\')
        return "the member '" + name + "' with an absolute path";
    if (name.size() >= 2 && name[1] == ':')
        return "the member '" + name + "' with a drive letter";
    if (name.find_first_of("/\\:") != std::string::npos)
        return "the member '" + name + "' in a folder";
    return {};
}

std::string sizeText(std::uint64_t bytes) {
    return std::to_string(bytes) + " bytes";
}

// The members as listed, or why the archive is refused.
std::string listMembers(zip_t* zip, const ArchiveLimits& limits, std::vector<Entry>& entries) {
    const zip_int64_t count = zip_get_num_entries(zip, 0);
    if (count < 0)
        return "its table of contents cannot be read";
    if (static_cast<std::uint64_t>(count) > limits.members)
        return "it holds more than " + std::to_string(limits.members) + " members";
    std::set<std::string> seen;
    std::uint64_t total = 0;
    for (zip_uint64_t i = 0; i < static_cast<zip_uint64_t>(count); ++i) {
        zip_stat_t stat;
        zip_stat_init(&stat);
        if (zip_stat_index(zip, i, ZIP_FL_ENC_RAW, &stat) != 0 || !(stat.valid & ZIP_STAT_NAME) ||
            !(stat.valid & ZIP_STAT_SIZE))
            return "its table of contents is damaged";
        const std::string name = stat.name;
        if (const std::string fault = nameFault(name); !fault.empty())
            return "it holds " + fault;
        zip_uint8_t system = 0;
        zip_uint32_t attributes = 0;
        if (zip_file_get_external_attributes(zip, i, 0, &system, &attributes) == 0 &&
            system == ZIP_OPSYS_UNIX && ((attributes >> 16) & kUnixTypeMask) == kUnixSymlink)
            return "it holds the symbolic link '" + name + "'";
        if ((stat.valid & ZIP_STAT_ENCRYPTION_METHOD) && stat.encryption_method != ZIP_EM_NONE)
            return "it holds the encrypted member '" + name + "'";
        if (!seen.insert(vb::UCase(name)).second)
            return "it holds the member '" + name + "' twice";
        if (stat.size > limits.memberBytes)
            return "the member '" + name + "' unpacks to more than " + sizeText(limits.memberBytes);
        total += stat.size;
        if (total > limits.totalBytes)
            return "it unpacks to more than " + sizeText(limits.totalBytes);
        entries.push_back({i, name});
    }
    return {};
}

// Copies one member into `target`, counting the bytes as they come.
std::string unpackMember(zip_t* zip, const Entry& entry, const fs::path& target,
                         const ArchiveLimits& limits, std::uint64_t& total) {
    const Member member(zip_fopen_index(zip, entry.index, 0));
    if (!member)
        return "the member '" + entry.name + "' cannot be read";
    std::ofstream out(target, std::ios::binary | std::ios::trunc);
    if (!out)
        return "the file " + target.string() + " cannot be written";
    char buffer[1 << 15];
    std::uint64_t bytes = 0;
    for (;;) {
        const zip_int64_t got = zip_fread(member.get(), buffer, sizeof buffer);
        if (got < 0)
            return "the member '" + entry.name + "' is damaged";
        if (got == 0)
            break;
        bytes += static_cast<std::uint64_t>(got);
        total += static_cast<std::uint64_t>(got);
        if (bytes > limits.memberBytes)
            return "the member '" + entry.name + "' unpacks to more than " +
                   sizeText(limits.memberBytes);
        if (total > limits.totalBytes)
            return "it unpacks to more than " + sizeText(limits.totalBytes);
        out.write(buffer, got);
    }
    out.close();
    return out ? std::string() : "the file " + target.string() + " cannot be written";
}

} // namespace

UnpackResult UnpackArchive(const std::string& archive, const std::string& folder,
                           const ArchiveLimits& limits) {
    UnpackResult result;
    int error = 0;
    const Archive zip(zip_open(archive.c_str(), ZIP_RDONLY | ZIP_CHECKCONS, &error));
    if (!zip) {
        result.refusal = error == ZIP_ER_OPEN || error == ZIP_ER_NOENT || error == ZIP_ER_READ
                             ? "it cannot be read"
                             : "it is damaged or not a PKZIP archive";
        return result;
    }
    std::vector<Entry> entries;
    result.refusal = listMembers(zip.get(), limits, entries);
    if (!result.refusal.empty())
        return result;
    std::uint64_t total = 0;
    for (const Entry& entry : entries) {
        const fs::path target = fs::path(folder) / entry.name;
        result.refusal = unpackMember(zip.get(), entry, target, limits, total);
        if (!result.refusal.empty())
            break;
        result.files.push_back(entry.name);
    }
    if (!result.refusal.empty()) {
        std::error_code ec;
        for (const std::string& name : result.files)
            fs::remove(fs::path(folder) / name, ec);
        fs::remove(fs::path(folder) / entries[result.files.size()].name, ec);
        result.files.clear();
        return result;
    }
    result.ok = true;
    return result;
}

std::string ZipLibraryVersion() {
    return zip_libzip_version();
}

} // namespace zolt::import
