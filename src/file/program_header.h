#pragma once

#include "file/byte_stream.h"

#include <cstdint>
#include <string>

namespace zolt::file {

// The header at offset 0 of every program file.
struct FileHeader {
    std::string Title = "ZOLT";
    std::string Version = "2";
    std::int16_t Reserved1 = 0;
    double CompiledDate = 0.0; // OLE date: days since 30 December 1899
    bool NeedsCompile = false;
    std::string Reserved2;
};

// The 12-byte head of every block of records.
struct Frame {
    std::int16_t RecordType = 0;
    std::int16_t RecordVersion = 1;
    std::int16_t Reserved = 0;
    std::int16_t RecordCount = 0;
    std::int16_t NetlistIndex = 0;
    std::string FrameText;
};

// NetlistIndex of the project-wide lists of the assembly feature family.
inline constexpr std::int16_t kProjectWideIndex = 9999;

void WriteHeader(ByteWriter& out, const FileHeader& header);
FileHeader ReadHeader(ByteReader& in);
void WriteFrame(ByteWriter& out, const Frame& frame);
Frame ReadFrame(ByteReader& in);

} // namespace zolt::file
