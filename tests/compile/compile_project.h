#pragma once

#include "compile/compile_driver.h"
#include "core/ports/clock.h"
#include "core/table_kinds.h"
#include "sequence/load_system_sequence_table.h"
#include "support/test_program.h"

#include <filesystem>
#include <initializer_list>
#include <string>
#include <unistd.h>
#include <vector>

namespace zolt::test {

class FixedClock final : public Clock {
public:
    LocalTime Now() const override { return {2026, 11, 23, 12, 0, 0}; }
};

// A project with the program's dictionary, devices and one macro, whose file
// lies in a scratch folder, and the user's compile of it with every control
// call traced.
struct CompileProject : TestProgram {
    std::filesystem::path folder;
    FixedClock clock;
    std::vector<std::string> calls;

    CompileProject() {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "zolt-compile-XXXXXX").string();
        folder = mkdtemp(pattern.data());
        state.document().CurrentFile = (folder / "door test.zlf").string();
        state.params().LoadDirectoryParameters(false);
        LoadSystemSequenceTable(state, state.document().CurrentFile);
        for (const char* kind : {"DIODE", "RESISTOR", "P_CAPACITOR", "K_RESISTOR", "KG_RESISTOR",
                                 "CAPACITOR", "UNET", "LED"})
            state.project().DeviceList.Add(CComponent{kind, "A", "B", std::string(kind) + " part"});
        for (const char* label : {"PLABEL", "PLABEL2"}) {
            state.project().MacroList.Add(CMacro{label, 1, "SERIAL2", ""});
            state.project().MacroList.Add(CMacro{label, 2, "PMESSAGE", label[6] ? "100" : "80"});
        }
    }
    ~CompileProject() {
        std::error_code ec;
        std::filesystem::remove_all(folder, ec);
    }

    Table& table(TableId number, const std::string& netlist = "MAIN") {
        return *state.project().FindNetlist(netlist)->GetTable(number);
    }
    // Replaces a table's rows; cells left out stay empty.
    void fill(TableId number, std::initializer_list<std::vector<Value>> rows,
              const std::string& netlist = "MAIN") {
        Table& t = table(number, netlist);
        t.ReDimGrid(0, t.gridColumns());
        t.ReDimGrid(static_cast<int>(rows.size()), t.gridColumns());
        int r = 0;
        for (const auto& row : rows) {
            ++r;
            for (std::size_t c = 0; c < row.size(); ++c)
                t.gridarray().Set(r, static_cast<int>(c), row[c]);
        }
    }
    void sequence(std::initializer_list<std::pair<const char*, const char*>> lines) {
        Table& t = table(table::Sequence);
        t.ReDimGrid(0, t.gridColumns());
        t.ReDimGrid(static_cast<int>(lines.size()), t.gridColumns());
        int r = 0;
        for (const auto& [command, parameter] : lines) {
            ++r;
            t.gridarray().Set(r, 0, Value(std::int16_t(r)));
            t.gridarray().Set(r, 1, Value(command));
            t.gridarray().Set(r, 2, Value(parameter));
        }
    }

    compile::CompileEnd run() {
        compile::CompileDriver driver(state, clock);
        driver.traced = [this](const std::string& line) { calls.push_back(line); };
        driver.Load();
        const compile::CompileEnd end = driver.Run();
        result = driver.Result();
        results = result.results;
        return end;
    }
    std::filesystem::path bin() const { return folder / "door test.bin"; }
    std::filesystem::path dgn() const { return folder / "door test.dgn"; }

    compile::CompileResult result;
    std::string results;
};

} // namespace zolt::test
