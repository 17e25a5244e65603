#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>
#include <zip.h>

namespace zolt::test {

// One member of a test archive.
struct ZipMember {
    std::string name;
    std::string bytes;
    bool symlink = false;
    bool encrypted = false;
};

inline std::string dataFile(const std::string& name) {
    std::ifstream in(std::string(ZOLT_TEST_DATA_DIR) + "/zos/" + name, std::ios::binary);
    if (!in)
        throw std::runtime_error("no test data file " + name);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

// The members kept in tests/data/zos whose names start with `base` and a dot.
inline std::vector<ZipMember> dataMembers(const std::string& base) {
    std::vector<ZipMember> members;
    for (const auto& entry :
         std::filesystem::directory_iterator(std::string(ZOLT_TEST_DATA_DIR) + "/zos")) {
        const std::string name = entry.path().filename().string();
        if (name.rfind(base + ".", 0) == 0)
            members.push_back({name, dataFile(name)});
    }
    return members;
}

// Writes a PKZIP archive with libzip.
inline void writeArchive(const std::string& path, const std::vector<ZipMember>& members) {
    int error = 0;
    zip_t* zip = zip_open(path.c_str(), ZIP_CREATE | ZIP_TRUNCATE, &error);
    if (!zip)
        throw std::runtime_error("cannot create " + path);
    for (const ZipMember& m : members) {
        zip_source_t* source = zip_source_buffer(zip, m.bytes.data(), m.bytes.size(), 0);
        const zip_int64_t index = zip_file_add(zip, m.name.c_str(), source, ZIP_FL_ENC_RAW);
        if (index < 0) {
            zip_source_free(source);
            zip_discard(zip);
            throw std::runtime_error("cannot add " + m.name);
        }
        const auto i = static_cast<zip_uint64_t>(index);
        if (m.symlink)
            zip_file_set_external_attributes(zip, i, 0, ZIP_OPSYS_UNIX, 0120777u << 16);
        if (m.encrypted && zip_file_set_encryption(zip, i, ZIP_EM_AES_256, "secret") != 0 &&
            zip_file_set_encryption(zip, i, ZIP_EM_TRAD_PKWARE, "secret") != 0)
            throw std::runtime_error("this libzip cannot encrypt");
    }
    if (zip_close(zip) != 0) {
        zip_discard(zip);
        throw std::runtime_error("cannot write " + path);
    }
}

} // namespace zolt::test
