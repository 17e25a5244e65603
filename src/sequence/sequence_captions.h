#pragma once

#include <array>

namespace zolt {

// Column captions of the sequence window ("Sequence"), columns 0 to 4.
inline constexpr std::array<const char*, 5> kSequenceCaptions = {"Sequence", "Command", "Parameter",
                                                                 "Desc/Notes/Mess", "Version"};

// The read-only view of the dictionary ("Sequence Instruction List"): every
// column's caption and the data field it shows. No cell of it can be edited.
struct SequenceListColumn {
    const char* caption;
    const char* dataField;
};
inline constexpr std::array<SequenceListColumn, 7> kSequenceListColumns = {{
    {"Command", "Command"},
    {"Type1", "Unknown"},
    {"Type2", "Type"},
    {"Low Value", "Low Value"},
    {"High Value", "High Value"},
    {"Description", "Description"},
    {"Version", "Version"},
}};

// Captions of the drop-down list of the sequence's command column.
inline constexpr std::array<const char*, 2> kCommandListCaptions = {"Command", "Desription"};

} // namespace zolt
