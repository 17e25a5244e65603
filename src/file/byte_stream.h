#pragma once

#include "core/value.h"

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zolt::file {

// A field that does not fit its form on writing, or a file that ends before its
// fields do on reading. Never leaves the program file module.
class FormatError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Appends the program file's fields: little-endian, no padding, strings with a
// 2-byte length in Windows-1252.
class ByteWriter {
public:
    void Integer(std::int16_t n);
    void Long(std::int32_t n);
    void Double(double n);
    // `utf8` is converted to the file's code page; more than 65535 bytes fail.
    void String(const std::string& utf8);
    void Raw(std::string_view bytes) { bytes_.append(bytes); }

    const std::string& bytes() const { return bytes_; }
    // The bytes written, handed over; the writer is then empty.
    std::string TakeBytes() { return std::exchange(bytes_, {}); }
    std::size_t size() const { return bytes_.size(); }
    void Reserve(std::size_t n) { bytes_.reserve(n); }

private:
    std::string bytes_;
};

// Reads the same fields back from a byte buffer; any field that runs past the
// end throws FormatError.
class ByteReader {
public:
    explicit ByteReader(std::string_view bytes) : bytes_(bytes) {}

    std::int16_t Integer();
    std::int32_t Long();
    double Double();
    // The string converted from the file's code page to UTF-8.
    std::string String();
    // The same appended to `cells`, made in its place.
    void AppendString(std::vector<Value>& cells);
    // Everything from the current position to the end.
    std::string_view Rest();

    std::size_t position() const { return pos_; }
    std::size_t remaining() const { return bytes_.size() - pos_; }

private:
    std::string_view take(std::size_t n);
    // A string's bytes in the file's code page.
    std::string_view stringBytes();

    std::string_view bytes_;
    std::size_t pos_ = 0;
};

} // namespace zolt::file
