#include "file/byte_stream.h"

#include "core/cp1252.h"

#include <bit>
#include <cstring>
#include <limits>

namespace zolt::file {
namespace {

template <typename U> void appendLittleEndian(std::string& out, U value) {
    char bytes[sizeof(U)];
    for (std::size_t i = 0; i < sizeof(U); ++i)
        bytes[i] = static_cast<char>(static_cast<unsigned char>(value >> (8 * i)));
    out.append(bytes, sizeof(U));
}

template <typename U> U readLittleEndian(std::string_view bytes) {
    U value = 0;
    for (std::size_t i = 0; i < sizeof(U); ++i)
        value = static_cast<U>(
            value |
            static_cast<U>(static_cast<U>(static_cast<unsigned char>(bytes[i])) << (8 * i)));
    return value;
}

// Plain ASCII is the same in both encodings and needs no conversion.
bool isAscii(std::string_view text) {
    for (const char c : text)
        if (static_cast<unsigned char>(c) >= 0x80)
            return false;
    return true;
}

} // namespace

void ByteWriter::Integer(std::int16_t n) {
    appendLittleEndian(bytes_, static_cast<std::uint16_t>(n));
}

void ByteWriter::Long(std::int32_t n) {
    appendLittleEndian(bytes_, static_cast<std::uint32_t>(n));
}

void ByteWriter::Double(double n) {
    appendLittleEndian(bytes_, std::bit_cast<std::uint64_t>(n));
}

void ByteWriter::String(const std::string& utf8) {
    const bool ascii = isAscii(utf8);
    const std::string encoded = ascii ? std::string() : cp1252::fromUtf8(utf8);
    const std::string& bytes = ascii ? utf8 : encoded;
    if (bytes.size() > std::numeric_limits<std::uint16_t>::max())
        throw FormatError("string too long");
    appendLittleEndian(bytes_, static_cast<std::uint16_t>(bytes.size()));
    bytes_.append(bytes);
}

std::string_view ByteReader::take(std::size_t n) {
    if (remaining() < n)
        throw FormatError("unexpected end of file");
    const std::string_view part = bytes_.substr(pos_, n);
    pos_ += n;
    return part;
}

std::int16_t ByteReader::Integer() {
    return static_cast<std::int16_t>(readLittleEndian<std::uint16_t>(take(2)));
}

std::int32_t ByteReader::Long() {
    return static_cast<std::int32_t>(readLittleEndian<std::uint32_t>(take(4)));
}

double ByteReader::Double() {
    return std::bit_cast<double>(readLittleEndian<std::uint64_t>(take(8)));
}

std::string_view ByteReader::stringBytes() {
    const std::uint16_t length = readLittleEndian<std::uint16_t>(take(2));
    return take(length);
}

std::string ByteReader::String() {
    const std::string_view bytes = stringBytes();
    return isAscii(bytes) ? std::string(bytes) : cp1252::toUtf8(bytes);
}

void ByteReader::AppendString(std::vector<Value>& cells) {
    const std::string_view bytes = stringBytes();
    if (isAscii(bytes))
        cells.emplace_back(bytes);
    else
        cells.emplace_back(cp1252::toUtf8(bytes));
}

std::string_view ByteReader::Rest() {
    return take(remaining());
}

} // namespace zolt::file
