#pragma once

#include <optional>
#include <string>

namespace zolt {
class Ui;
}

namespace zolt::import {

// A program file path whose name the program accepts: no ":" from the third
// character on; a file name shorter than 216 characters, without ? * \ / : < > |.
bool IsValidProgramLabel(const std::string& path);

// `dlgEditProgramLabel`: asks for a label until it names a valid `<folder>/<label>.zlf`;
// nullopt when the user cancelled.
std::optional<std::string> EditProgramLabel(Ui& ui, const std::string& folder,
                                            const std::string& label);

} // namespace zolt::import
