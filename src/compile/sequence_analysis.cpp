#include "compile/sequence_analysis.h"

#include "core/value.h"

#include <map>
#include <vector>

namespace zolt::compile {
namespace {

// Argument kinds of the dictionary's type column.
constexpr int kNumber = 1;
constexpr int kNetlist = 2;
constexpr int kLineNumber = 3;
constexpr int kMessage = 4;
constexpr int kUncheckedNetlist = 5; // not checked before the compile; the compile does
constexpr int kMacro = 6;
constexpr int kMacroWithText = 7;

} // namespace

std::vector<Diagnostic> AnalyseSequence(const std::vector<ImageSequenceLine>& lines,
                                        const SequenceContext& context) {
    std::vector<Diagnostic> found;
    auto report = [&](Code code, int row, std::string text) {
        found.push_back({code, "MAIN", "Sequence", row, std::move(text)});
    };
    std::map<std::string, const ImageCommand*> dictionary;
    for (const auto& c : *context.commands)
        dictionary.emplace(vb::UCase(vb::Trim(c.name)), &c);
    std::map<std::string, std::vector<const ImageMacroLine*>> macroSteps;
    for (const auto& m : *context.macros)
        macroSteps[vb::UCase(vb::Trim(m.macro))].push_back(&m);
    auto typeOf = [&](const std::string& command) {
        const auto entry = dictionary.find(vb::UCase(vb::Trim(command)));
        return entry == dictionary.end() ? 0 : entry->second->type;
    };
    auto isMessage = [&](const std::string& id) {
        return vb::IsNumeric(std::string_view(id)) &&
               context.messageIds.contains(static_cast<long>(vb::Val(id)));
    };

    bool hasEnd = false;
    int row = 0;
    for (const auto& line : lines) {
        ++row;
        const std::string name = vb::UCase(vb::Trim(line.command));
        const std::string& p = line.parameter;
        if (name == "END")
            hasEnd = true;
        if (name == "PBEGIN" || name == "PEND") {
            report(Code::PatternBlockLeft, row,
                   name + " is left in the sequence: run the pre-compile first");
            continue;
        }
        const auto entry = dictionary.find(name);
        if (entry == dictionary.end()) {
            report(Code::UnknownCommand, row,
                   "command '" + line.command + "' is not in the dictionary");
            continue;
        }
        const ImageCommand& command = *entry->second;
        switch (command.type) {
        case kNumber:
            if ((command.low != 0 || command.high != 0) &&
                (!vb::IsNumeric(std::string_view(p)) || vb::Val(p) < command.low ||
                 vb::Val(p) > command.high))
                report(Code::ParameterOutOfRange, row,
                       name + " takes " + std::to_string(command.low) + " to " +
                           std::to_string(command.high) + ", not '" + p + "'");
            break;
        case kLineNumber:
            if (!vb::IsNumeric(std::string_view(p)) || vb::Val(p) < 1 ||
                vb::Val(p) > static_cast<double>(lines.size()))
                report(Code::BranchPastEnd, row,
                       name + " " + p + " branches past the end of the sequence (" +
                           std::to_string(lines.size()) + " lines)");
            break;
        case kNetlist:
        case kUncheckedNetlist:
            if (!context.netlists.contains(vb::UCase(vb::Trim(p))))
                report(Code::UnknownNetlist, row,
                       name + " names netlist '" + p + "', which does not exist");
            break;
        case kMessage:
            if (!isMessage(p))
                report(Code::UnknownMessage, row,
                       name + " shows message '" + p + "', which does not exist");
            break;
        case kMacro:
        case kMacroWithText: {
            const auto body = macroSteps.find(name);
            if (body == macroSteps.end()) {
                report(Code::MacroWithoutBody, row, "macro " + name + " has no body in ZOLT.MAC");
                break;
            }
            // A label macro prints the fields its label file gave; an empty file gives none.
            for (const ImageMacroLine* step : body->second)
                if (typeOf(step->command) == kMessage && !isMessage(step->parameter))
                    report(Code::UnknownMessage, row,
                           name + " shows message '" + step->parameter + "' (its step " +
                               step->command + " " + step->parameter + "), which does not exist");
            break;
        }
        default:
            break;
        }
    }
    if (!lines.empty() && !hasEnd)
        report(Code::NoEnd, 0, "the sequence has no END line");
    return found;
}

} // namespace zolt::compile
