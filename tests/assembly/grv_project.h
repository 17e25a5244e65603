#pragma once

#include "assembly/compile_progress.h"
#include "core/table_kinds.h"
#include "sequence/load_system_sequence_table.h"
#include "sequence/sequence_lines.h"
#include "sequence/sequence_table.h"
#include "support/test_program.h"
#include "tables/message_table.h"

#include <string>
#include <vector>

namespace zolt::test {

// Writes the captions down, in order.
class RecordingProgress final : public CompileProgress {
public:
    void Caption(const std::string& text) override { captions.push_back(text); }
    void SetRange(int, int maximum) override { this->maximum = maximum; }
    void SetPosition(int position) override { this->position = position; }
    void Hide() override { hidden = true; }

    std::vector<std::string> captions;
    int maximum = 0;
    int position = 0;
    bool hidden = false;
};

// A `.grv` project: the pattern commands in the dictionary, helpers for the
// sequence, the messages and the assembly lists.
struct GrvProject : TestProgram {
    GrvProject() {
        state.document().CurrentFile = "/tmp/family.grv";
        LoadSystemSequenceTable(state, state.document().CurrentFile);
    }

    CSequenceTable& sequence() {
        return *state.project().MainNetlist->TableAs<CSequenceTable>(table::Sequence);
    }
    CMessageTable& messages() {
        return *state.project().MainNetlist->TableAs<CMessageTable>(table::Message);
    }

    // Rows from 1, as SequenceLines reads them.
    void setSequence(std::string_view lines) {
        CSequenceTable& table = sequence();
        table.ReDimGrid(0, table.gridColumns());
        int row = 0;
        for (const auto& [command, parameter] : SequenceLines(lines)) {
            ++row;
            table.AddRecord_v1(row, static_cast<std::int16_t>(row), command, parameter, "", "", 0,
                               0);
        }
    }
    // `count` filler lines.
    static std::string beeps(int count) {
        std::string lines;
        for (int i = 0; i < count; ++i)
            lines += "BEEP; ";
        return lines;
    }
    void addMessage(int number, const std::string& text) {
        const int row = messages().gridarray().Rows() + 1;
        messages().AddMessageRecord(row, {Value(static_cast<std::int16_t>(number)), Value(text),
                                          Value(std::int32_t{row}), Value(std::int32_t{0})});
    }
    std::string param(int row) { return sequence().gridarray().Text(row, 2); }
    std::string command(int row) { return sequence().gridarray().Text(row, 1); }
    int rows() { return sequence().gridarray().Rows(); }

    // A netlist placed on the line: it joins the assembly order (settled) and
    // the netlist information.
    void place(const std::string& name, const std::string& station, int pattern,
               const std::string& description = {}, bool partOfMain = false) {
        if (!state.project().FindNetlist(name))
            addNetlist(name);
        state.project().Assembly.AssemblyOrderList.Add(CAssemblyRec{name, true}, name);
        state.project().Assembly.NetlistInfoList.Add(
            CNetlistInfo{name, description, station, static_cast<std::int16_t>(pattern), true,
                         partOfMain},
            name);
    }
    // One feature code of all the given netlists, selected.
    void select(const std::vector<std::string>& netlists) {
        std::string line =
            "Code" + std::to_string(state.project().Assembly.FeatureCodeData.size() + 1);
        for (const auto& n : netlists)
            line += "," + n;
        state.project().Assembly.FeatureCodeData.push_back(line);
        state.project().SelectedFeatureCodes.push_back(line);
    }
};

} // namespace zolt::test
