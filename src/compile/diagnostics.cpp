#include "compile/diagnostics.h"

#include <cstdio>

namespace zolt::compile {

Severity SeverityOf(Code code) {
    switch (code) {
    case Code::WireWithoutEnds:
    case Code::WireOneEnd:
    case Code::SpliceOneWire:
    case Code::FixtureUnknownConnector:
    case Code::NoEnd:
        return Severity::Warning;
    default:
        return Severity::Error;
    }
}

int MaskBitOf(Code code) {
    switch (code) {
    case Code::WireWithoutEnds:
    case Code::WireOneEnd:
    case Code::SpliceOneWire:
        return mask_bit::WiringWarning;
    case Code::FixtureUnknownConnector:
        return mask_bit::FixtureWarning;
    case Code::NoEnd:
        return mask_bit::SequenceWarning;
    case Code::PinWithoutTestPoint:
    case Code::TestPointShared:
    case Code::TestPointOutOfRange:
    case Code::PinOnTwoTestPoints:
        return mask_bit::FixtureError;
    case Code::ComponentUnknownKind:
    case Code::ComponentNoTestParameter:
        return mask_bit::DeviceError;
    case Code::CodeNotInDictionary:
    case Code::UnknownNetlist:
    case Code::NetlistNameRepeated:
        return mask_bit::ReferenceError;
    case Code::UnknownMessage:
    case Code::LabelFileUnreadable:
    case Code::LabelFileTooLong:
        return mask_bit::MessageError;
    case Code::ImageNotWritten:
        return -1;
    case Code::BranchPastEnd:
    case Code::MacroWithoutBody:
    case Code::PatternBlockLeft:
    case Code::ParameterOutOfRange:
    case Code::UnknownCommand:
        return mask_bit::SequenceError;
    default:
        return mask_bit::WiringError;
    }
}

std::string FormatDiagnostic(const Diagnostic& d) {
    std::string line = SeverityOf(d.code) == Severity::Error ? "E" : "W";
    line += std::to_string(static_cast<int>(d.code)) + ' ' + d.netlist + ' ' + d.table;
    if (d.row > 0)
        line += " row " + std::to_string(d.row);
    return line + ": " + d.text;
}

std::string TestPointText(int board, int point) {
    char text[32];
    std::snprintf(text, sizeof text, "%d-%03d", board, point);
    return text;
}

} // namespace zolt::compile
