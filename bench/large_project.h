#pragma once

#include "bench_tables.h"
#include "core/headless/headless_frame.h"
#include "core/headless/memory_settings_store.h"
#include "core/headless/scripted_ui.h"
#include "core/netlist_operations.h"
#include "core/program_state.h"
#include "core/table_kinds.h"
#include "file/table_factory.h"

#include <string>
#include <vector>

namespace zolt::bench {

inline Value I(int n) {
    return Value(static_cast<std::int16_t>(n));
}
inline Value L(int n) {
    return Value(static_cast<std::int32_t>(n));
}
// A name with a number behind it.
inline std::string named(std::string prefix, int n) {
    prefix += std::to_string(n);
    return prefix;
}

struct HeadlessProgram {
    ScriptedUi ui;
    MemorySettingsStore settings;
    HeadlessFrame frame;
    ProgramState state{Ports{ui, settings, frame, frame}, MakeTable};
};

// A project at the format's limits: eight netlists of a few thousand rows per
// table, a full sequence, all messages.
inline void buildLargeProject(ProgramState& state, int rowsPerTable) {
    NewProject(state);
    for (int n = 1; n <= 7; ++n)
        AddNetlist(state, named("HARNESS ", n));
    std::int32_t nl = 0;
    state.project().NetlistCollection.ForEach([&](const std::unique_ptr<CNetList>& netlist) {
        const std::string tag = std::to_string(nl);
        fill(*netlist->GetTable(table::Connector), rowsPerTable / 10, [&](int r) {
            return std::vector<Value>{named("J", r), I(20),     I(0), I(0),
                                      I(0),          "A" + tag, L(r), L(nl)};
        });
        fill(*netlist->GetTable(table::Pin), rowsPerTable, [&](int r) {
            return std::vector<Value>{named("J", r / 20 + 1), named("", r % 20 + 1), named("W", r),
                                      L(r), L(nl)};
        });
        fill(*netlist->GetTable(table::Wire), rowsPerTable, [&](int r) {
            return std::vector<Value>{named("W", r), "RED", "WHT", L(r), L(nl)};
        });
        fill(*netlist->GetTable(table::Fixture), rowsPerTable, [&](int r) {
            return std::vector<Value>{named(std::to_string(r / 128 % 16) + "-", 100 + r % 28),
                                      named("J", r / 20 + 1), named("", r % 20 + 1), L(r), L(nl)};
        });
        fill(*netlist->GetTable(table::Component), rowsPerTable / 10, [&](int r) {
            return std::vector<Value>{
                "RES", I(r), named("W", r), named("W", r + 1), I(100), I(5), I(5), "", L(r), L(nl)};
        });
        ++nl;
    });
    Table& sequence = *state.project().MainNetlist->GetTable(table::Sequence);
    fill(sequence, 1024,
         [](int r) { return std::vector<Value>{I(r), "CONT", "MAIN", "", "", L(r), L(0)}; });
    fill(*state.project().MainNetlist->GetTable(table::Message), 1024, [](int r) {
        return std::vector<Value>{I(r), named("MESSAGE NUMBER ", r), L(r), L(0)};
    });
}

} // namespace zolt::bench
