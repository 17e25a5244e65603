#pragma once

#include "file/byte_stream.h"
#include "file/program_header.h"
#include "program_session.h"

#include <string>

namespace zolt::test {

// Cells of the file's Integer and Long forms.
inline Value I(int n) {
    return Value(static_cast<std::int16_t>(n));
}
inline Value L(int n) {
    return Value(static_cast<std::int32_t>(n));
}

// A project with rows in every table, two netlists besides MAIN, parameters that
// differ from their defaults and the lists of the assembly feature family;
// `padding` more rows in each netlist make it large.
void FillProject(Session& s, int padding = 0);

// Bytes of a file made by hand, frame by frame.
struct FileBuilder {
    file::ByteWriter out;
    explicit FileBuilder(const std::string& version = "2") {
        file::FileHeader header;
        header.Version = version;
        file::WriteHeader(out, header);
    }
    FileBuilder& frame(int type, int version, int count, int netlist = 0) {
        file::WriteFrame(out, file::Frame{static_cast<std::int16_t>(type),
                                          static_cast<std::int16_t>(version),
                                          0,
                                          static_cast<std::int16_t>(count),
                                          static_cast<std::int16_t>(netlist),
                                          {}});
        return *this;
    }
    FileBuilder& end() { return frame(999, 1, 0); }
    // Fields in the file's forms: an int as Long, a std::int16_t as Integer, text as String.
    template <typename... Fields> FileBuilder& put(const Fields&... fields) {
        (field(fields), ...);
        return *this;
    }
    void field(int n) { out.Long(n); }
    void field(std::int16_t n) { out.Integer(n); }
    void field(const std::string& text) { out.String(text); }
    const std::string& bytes() const { return out.bytes(); }
};

} // namespace zolt::test
