#pragma once

#include <optional>
#include <string>
#include <vector>

namespace zolt {

// One box of a detail dialog: its label, the text it starts with and ends
// with, the longest text it takes, and the list it offers (a color list).
// A field that is not shown keeps its starting text.
struct DetailField {
    std::string label;
    std::string text;
    int maxLength = 0;
    bool shown = true;
    std::vector<std::string> options;
};

// A dialog that fills the fields of one new record ("Add New Connector").
struct DetailForm {
    std::string caption;
    std::vector<DetailField> fields;
};

// The dialogs the tables open while a cell is being checked. The desktop
// shows forms; without a screen every field is asked in turn.
class DetailDialogs {
public:
    virtual ~DetailDialogs() = default;
    // Lets the user fill the form; false when cancelled.
    virtual bool Fill(DetailForm& form) = 0;
    // The "Delete Wire" dialog: nullopt when cancelled, true when the wire's
    // uses go with it.
    virtual std::optional<bool> AskWireDelete(const std::string& wire) = 0;
};

} // namespace zolt
