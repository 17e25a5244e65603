#pragma once

#include "core/ports/ui.h"

#include <functional>

namespace zolt {

class CompileProgress;
class ProgramState;

// What the test compile needs of the document and the dialogs around it.
struct TestCompileSteps {
    // The document's save question: Yes saved, No not, Cancel cancelled.
    std::function<Answer()> saveChanges;
    // The Select Feature Codes dialog; false when cancelled.
    std::function<bool()> selectFeatureCodes;
    // Save As of the new plain program; the lock goes with the file.
    std::function<void()> saveAs;
};

// The GRV Test Compile command: turns the open `.grv` program into a plain
// program for the selected feature codes. True when the new program was made;
// when its Save As did not give it a name, it is left unnamed ("New.zlf" in
// the family's folder), so that no Save writes it over the family.
bool RunGRVTestCompile(ProgramState& state, CompileProgress& progress,
                       const TestCompileSteps& steps);

} // namespace zolt
