#pragma once

#include "assembly/pattern_compile.h"
#include "core/grid.h"
#include "core/table_kinds.h"

#include <string>
#include <utility>
#include <vector>

namespace zolt {

class CNetList;
class CompileProgress;
class ProgramState;

// How the Compile command takes the open program.
enum class CompileRoute {
    Refused,    // family data but no variant chosen yet; the box has been shown
    AsItStands, // a plain program
    Variant,    // the variant chosen by the last test compile is pre-compiled first
};

// The Compile command's gate. A program that holds assembly data compiles the
// variant whose feature codes the last test compile ticked (as those codes read
// now); without one it is refused with its box.
CompileRoute ChooseCompileRoute(ProgramState& state);

// The chosen variant pre-compiled into the document for one compile, and taken
// back afterwards: MAIN's tables and the netlists are put back as they were, so
// that the family program stays as the user left it whichever way the compile
// ends. The compile's own results (date, the `.bin`) stay.
class VariantCompile {
public:
    VariantCompile(ProgramState& state, CompileProgress& progress);
    ~VariantCompile();
    VariantCompile(const VariantCompile&) = delete;
    VariantCompile& operator=(const VariantCompile&) = delete;

    // Checks, combines, expands and filters; false (after its box, with
    // everything put back) when the compile must not run.
    bool Prepare();
    // Idempotent; the destructor calls it too.
    void Restore();

    // The program's netlists before the filter: the manual-netlist lookup of
    // the compile walks these.
    const std::vector<const CNetList*>& Netlists() const { return netlists_; }
    // "Feature Codes: Base, LeftHand": which variant the results are of.
    std::string Description() const;

private:
    ProgramState& state_;
    CompileProgress& progress_;
    PatternCompile run_;
    std::vector<std::pair<TableId, Grid>> saved_;
    std::vector<const CNetList*> netlists_;
    bool filtered_ = false;
};

} // namespace zolt
