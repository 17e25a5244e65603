#pragma once

#include "core/table_kinds.h"
#include "support/test_program.h"
#include "tables/table_editor.h"

#include <gtest/gtest.h>

namespace zolt::testing {

// A project with MAIN, made by the real table factory, answering boxes from a script.
class TableTest : public ::testing::Test {
protected:
    CNetList& main() { return *state_.project().MainNetlist; }
    template <typename T> T& table(TableId number) { return *main().TableAs<T>(number); }
    DataTable& data(TableId number) { return table<DataTable>(number); }
    TableEditor editor(TableId number) { return TableEditor(data(number)); }
    std::string lastBox() const {
        const auto& boxes = ui_.ShownBoxes();
        return boxes.empty() ? std::string() : boxes.back().text;
    }
    std::string lastCaption() const {
        const auto& boxes = ui_.ShownBoxes();
        return boxes.empty() ? std::string() : boxes.back().caption;
    }

    zolt::test::TestProgram program_;
    ScriptedUi& ui_ = program_.ui;
    MemorySettingsStore& settings_ = program_.settings;
    HeadlessFrame& frame_ = program_.frame;
    ProgramState& state_ = program_.state;
};

} // namespace zolt::testing
