#pragma once

#include "tables/data_table.h"

#include <string>
#include <string_view>
#include <vector>

namespace zolt {

// The drop-downs' entry for no color, number 0.
inline constexpr const char* kNoColor = "(none)";

// The text of a color cell being typed, with its selection.
struct ColorCell {
    std::string text;
    int selStart = 0;
    int selLength = 0;
};

// The project's wire and group colors: numbers and their base/stripe texts.
// Wires and groups store a number; this table turns numbers into text and back.
class CColorTable final : public DataTable {
public:
    static constexpr int kMaxColors = KindOf(table::Color).recordLimit;

    explicit CColorTable(ProgramState& state);

    int GetNextColorID() const;
    // A row from the file: fields number, base, stripe, netlist. False (after
    // its box) when the row lies beyond the limit.
    bool AddColorRecord(int row, const std::vector<Value>& fields);
    void AddRecord_v1(int row, const std::vector<Value>& fields) override {
        AddColorRecord(row, fields);
    }
    bool PlacesRecordsOnly() const override { return false; }
    // False when a color had to be added and the table had no room (after its box).
    bool AddSpecialRecord(const std::string& first, const std::string& second);
    // Appends `text` ("base/stripe") under the next free number; that number,
    // or 0 (after the box) when the table is full.
    int AddNewColor(const std::string& text);
    // False, after the box, when the table holds its 128 colors already.
    bool HasRoomForColor() const;
    int GetColorID(const std::string& text) const;
    std::string GetDisplayColor(int number) const;
    std::string GetColors(int number) const;
    bool IsColorText(const std::string& text) const;
    // Lets "/" and blank pass, makes any other character upper case.
    void KeyPress(char32_t& key) const;
    // "(none)" and every color text, for drop-downs.
    std::vector<std::string> ValueItems() const;
    // Completes `text` to the first color (alphabetical) that starts with it.
    void FindClosest(std::string& text, int& matched, int& found) const;
    // The type-ahead after a key in a color cell.
    void ProcessKeyPress(ColorCell& cell, bool& backspacePressed, bool& slashPressed) const;

    int KeyPress(int column, char32_t& key, std::string_view text) override;
    bool CanCommitNewRow() override;
    // A typed color belongs to the netlist being worked on, as an added one does.
    void AfterCommit(int gridRow, const EditRow& row) override;
    ConfirmTexts Confirmations() const override;

protected:
    ErrorCode FieldRule(int column, std::string& value, const EditRow& row) override;
    int OwnerIndexForNewRows() const;
};

// A column of wires and groups that stores a color number and is typed as a
// color name.
ColumnSpec ColorColumn();

// The key filter of a color cell: blanks and "/" pass, letters become upper
// case, "~" and anything past `maxLength` characters are refused (kKeyRefused).
int ColorCellKeyPress(char32_t& key, std::string_view text, int maxLength);

// The box of color records past the limit, from record `first` to `last`.
std::string TooManyColorsText(int first, int last);

// What a color cell shows: the color its number stands for ("(none)" for a
// number without one); a cell without a number, or without `colors`, as it is.
std::string ShownColor(const CColorTable* colors, const std::string& cell);

// Base and stripe as one text: "" without a base, the base alone without a stripe.
std::string FormatColor(const std::string& base, const std::string& stripe);

} // namespace zolt
