#include "compile/compile_driver.h"

#include "core/ports/clock.h"
#include "core/ports/frame_controls.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/table_kinds.h"
#include "file/file_bytes.h"
#include "tables/message_table.h"

#include <filesystem>

namespace zolt::compile {

CompileDriver::CompileDriver(ProgramState& state, const Clock& clock)
    : state_(state), clock_(clock) {}

void CompileDriver::Load() {
    std::error_code ignored;
    std::filesystem::remove(
        std::filesystem::path(state_.document().CurrentFile).replace_extension(".bin"), ignored);
    state_.frame().CommandsChanged();
}

CompileRequest CompileDriver::Request() const {
    CompileRequest request;
    request.programFile = state_.document().CurrentFile;
    request.settings = CompileSettingsOf(state_.params());
    request.now = clock_.Now();
    return request;
}

CompileEnd CompileDriver::Run() {
    return Run(state_.project(), Request());
}

CompileEnd CompileDriver::Run(const Project& program, CompileRequest request) {
    Ui& ui = state_.ui();
    request.resultsChanged = resultsChanged;
    request.trace = request.trace || static_cast<bool>(traced);
    ui.SetBusy(true);
    result_ = Compile(program, request);
    const std::size_t traceAsked = showTrace(0);
    if (result_.end == CompileEnd::Asking) {
        // The compile made again with the answer runs as far as the first did.
        request.useStoredLabels = ui.Show(*result_.question) != Answer::Cancel;
        result_ = Compile(program, request);
    }
    showTrace(traceAsked);
    ui.SetBusy(false);
    if (result_.box)
        ui.Show(*result_.box);
    writeFiles();
    apply(program);
    // Download follows the image the compile wrote.
    state_.frame().CommandsChanged();
    return result_.end;
}

std::size_t CompileDriver::showTrace(std::size_t from) const {
    for (std::size_t i = from; traced && i < result_.trace.size(); ++i)
        traced(result_.trace[i]);
    return result_.trace.size();
}

// A failed write of the image is a finding of the compile, as any other.
void CompileDriver::writeFiles() {
    for (const auto& [path, bytes] : result_.files)
        if (!file::WriteFileBytes(path, bytes) && path.ends_with(".bin")) {
            std::error_code ignored;
            std::filesystem::remove(path, ignored);
            ReportUnwrittenImage(result_, path);
        }
}

// A variant is no part of its family: the family keeps its tables as they
// are and takes only a finished compile's facts.
void CompileDriver::apply(const Project& program) {
    Project& project = state_.project();
    const bool own = &program == &project;
    if (!own && result_.end != CompileEnd::Finished)
        return;
    auto* messages = project.MainNetlist->TableAs<CMessageTable>(table::Message);
    for (int label = 1; label <= 2; ++label)
        if (messages && result_.labelData[label - 1])
            (label == 1 ? messages->PLabelData() : messages->PLabel2Data()) =
                *result_.labelData[label - 1];
    if (own)
        for (const WireOrder& order : result_.wireOrders)
            if (const CNetList* netlist = project.FindNetlist(order.netlist))
                if (Table* wires = netlist->GetTable(table::Wire))
                    wires->gridarray() = order.wires;
    if (result_.compiledDate) {
        state_.SetDirty(true);
        project.NeedsCompile = false;
        project.CompiledDate = *result_.compiledDate;
    }
}

} // namespace zolt::compile
