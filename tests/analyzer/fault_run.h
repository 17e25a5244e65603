#pragma once

// A run of a hand-made program on its designed harness with faults put in.

#include "analyzer/fault.h"
#include "analyzer/run.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace zolt::test {

inline analyzer::RunResult RunWithFaults(const compile::ProgramImage& image,
                                         const std::vector<std::string>& faults,
                                         const analyzer::RunOptions& options = {}) {
    const analyzer::PointNames names({&image});
    analyzer::Harness harness = analyzer::DesignedHarness(image);
    for (const auto& text : faults) {
        const auto fault = analyzer::ParseFault(text, names, harness);
        EXPECT_TRUE(fault.fault) << fault.error;
        if (fault.fault)
            harness = analyzer::WithFault(harness, *fault.fault);
    }
    return analyzer::Run(image, harness, names, options);
}

// The texts of transcript or error lines, in order.
template <typename Line> std::vector<std::string> Texts(const std::vector<Line>& lines) {
    std::vector<std::string> texts;
    for (const auto& line : lines)
        texts.push_back(line.text);
    return texts;
}

} // namespace zolt::test
