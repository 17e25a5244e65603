#include "file/program_header.h"

namespace zolt::file {

void WriteHeader(ByteWriter& out, const FileHeader& header) {
    out.String(header.Title);
    out.String(header.Version);
    out.Integer(header.Reserved1);
    out.Double(header.CompiledDate);
    out.Integer(header.NeedsCompile ? -1 : 0);
    out.String(header.Reserved2);
}

FileHeader ReadHeader(ByteReader& in) {
    FileHeader header;
    header.Title = in.String();
    header.Version = in.String();
    header.Reserved1 = in.Integer();
    header.CompiledDate = in.Double();
    header.NeedsCompile = in.Integer() != 0;
    header.Reserved2 = in.String();
    return header;
}

void WriteFrame(ByteWriter& out, const Frame& frame) {
    out.Integer(frame.RecordType);
    out.Integer(frame.RecordVersion);
    out.Integer(frame.Reserved);
    out.Integer(frame.RecordCount);
    out.Integer(frame.NetlistIndex);
    out.String(frame.FrameText);
}

Frame ReadFrame(ByteReader& in) {
    Frame frame;
    frame.RecordType = in.Integer();
    frame.RecordVersion = in.Integer();
    frame.Reserved = in.Integer();
    frame.RecordCount = in.Integer();
    frame.NetlistIndex = in.Integer();
    frame.FrameText = in.String();
    return frame;
}

} // namespace zolt::file
