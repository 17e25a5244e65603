#pragma once

#include "assembly/pattern_compile.h"
#include "file/project_copy.h"

#include <memory>
#include <optional>
#include <string>
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

// The chosen variant pre-compiled into a copy of the family for one compile:
// the family itself is never touched by the pre-compile, so it stays as the
// user left it whichever way the compile ends. Only the compile's own results
// (date, wire order, label data, the download) are carried back to it.
class VariantCompile {
public:
    VariantCompile(ProgramState& family, CompileProgress& progress);
    ~VariantCompile();
    VariantCompile(const VariantCompile&) = delete;
    VariantCompile& operator=(const VariantCompile&) = delete;

    // Copies, checks, combines, expands and filters; false (after its box)
    // when the compile must not run.
    bool Prepare();
    // The program to compile: the variant after Prepare.
    ProgramState& Program();
    // Carries what the compile of the variant changed back to the family.
    void KeepCompileResults();

    // The variant's netlists before the filter: the manual-netlist lookup of
    // the compile walks these.
    const std::vector<const CNetList*>& Netlists() const { return netlists_; }
    // "Feature Codes: Base, LeftHand": which variant the results are of.
    std::string Description() const;

private:
    ProgramState& family_;
    CompileProgress& progress_;
    std::unique_ptr<file::ProjectCopy> copy_;
    std::optional<PatternCompile> run_; // on the copy: declared after it, gone before it
    std::vector<const CNetList*> netlists_;
};

} // namespace zolt
