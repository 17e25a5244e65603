#pragma once

#include "tables/data_table.h"
#include "tables/data_validation.h"

#include <string>

namespace zolt {

// Extra mode bit of the message table's CheckRecord: check every stored row.
namespace check_mode {
inline constexpr int AllRows = 4;
}

// The numbered texts that sequence steps show or print, with the two hidden
// stores of the label printing commands.
class CMessageTable final : public DataTable, private TableListener {
public:
    static constexpr int kMaxMessages = 1024;

    explicit CMessageTable(ProgramState& state);
    ~CMessageTable() override;

    // Fields: number, text, sequence, netlist. False (after its box) when the
    // row or the number lies beyond the limit.
    bool AddMessageRecord(int row, const std::vector<Value>& fields);
    void AddRecord_v1(int row, const std::vector<Value>& fields) override {
        AddMessageRecord(row, fields);
    }
    bool PlacesRecordsOnly() const override { return false; }
    void AddPLabelRecord_V1(int row, const std::vector<Value>& fields);
    void AddPLabel2Record_V1(int row, const std::vector<Value>& fields);
    Grid& PLabelData() { return plabel_; }
    Grid& PLabel2Data() { return plabel2_; }
    const Grid& PLabelData() const { return plabel_; }
    const Grid& PLabel2Data() const { return plabel2_; }

    std::string GetMessage(int number) const;

    // With check_mode::AllRows every stored row is checked; the first faulty
    // row goes to `row.row`.
    ErrorCode CheckRecord(int& column, int mode, EditRow& row) override;
    // Message texts are sentences: blanks pass, "~" and overlength do not.
    int KeyPress(int column, char32_t& key, std::string_view text) override;
    ErrorCode BeforeLeaveNewCell(int column, EditRow& row) override;
    ConfirmTexts Confirmations() const override;
    void Destroy() override;

private:
    // Whatever changed the texts (typing, paste, undo, a file), the sequence
    // lines that show them follow.
    void TableChanged(const GridChange& change) override;

    Grid plabel_{0, 4};
    Grid plabel2_{0, 4};
};

} // namespace zolt
