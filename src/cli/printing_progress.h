#pragma once

#include "assembly/compile_progress.h"
#include "cli/script_words.h"

#include <ostream>

namespace zolt::cli {

// The progress window of the batch driver: each caption as `PROGRESS "caption"`.
class PrintingProgress final : public CompileProgress {
public:
    explicit PrintingProgress(std::ostream& out) : out_(out) {}
    void Caption(const std::string& text) override { out_ << "PROGRESS " << Quoted(text) << '\n'; }
    void SetRange(int, int) override {}
    void SetPosition(int) override {}
    void Hide() override {}

private:
    std::ostream& out_;
};

} // namespace zolt::cli
