#pragma once

#include "core/headless/headless_frame.h"
#include "core/headless/memory_settings_store.h"
#include "core/headless/scripted_ui.h"
#include "core/netlist_operations.h"
#include "core/program_state.h"
#include "core/table_kinds.h"
#include "file/table_factory.h"
#include "tables/table_editor.h"

#include <gtest/gtest.h>

namespace zolt::testing {

// A project with MAIN, made by the real table factory, answering boxes from a script.
class TableTest : public ::testing::Test {
protected:
    TableTest() : state_(Ports{ui_, settings_, frame_, frame_}, MakeTable) { NewProject(state_); }

    CNetList& main() { return *state_.MainNetlist; }
    template <typename T> T& table(int number) { return *main().TableAs<T>(number); }
    DataTable& data(int number) { return table<DataTable>(number); }
    TableEditor editor(int number) { return TableEditor(data(number)); }
    std::string lastBox() const {
        const auto& boxes = ui_.ShownBoxes();
        return boxes.empty() ? std::string() : boxes.back().text;
    }
    std::string lastCaption() const {
        const auto& boxes = ui_.ShownBoxes();
        return boxes.empty() ? std::string() : boxes.back().caption;
    }

    ScriptedUi ui_;
    MemorySettingsStore settings_;
    HeadlessFrame frame_;
    ProgramState state_;
};

} // namespace zolt::testing
