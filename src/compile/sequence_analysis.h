#pragma once

#include "compile/diagnostics.h"
#include "compile/program_image.h"

#include <set>
#include <string>
#include <vector>

namespace zolt::compile {

struct SequenceContext {
    const std::vector<ImageCommand>* commands = nullptr;
    const std::vector<ImageMacroLine>* macros = nullptr;
    std::set<std::string> netlists; // upper case
    std::set<long> messageIds;
};

// Checks the test sequence against the dictionary, the netlists, the messages
// and the macro bodies it was given.
std::vector<Diagnostic> AnalyseSequence(const std::vector<ImageSequenceLine>& lines,
                                        const SequenceContext& context);

} // namespace zolt::compile
