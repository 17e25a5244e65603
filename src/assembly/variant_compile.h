#pragma once

#include "assembly/pattern_compile.h"
#include "compile/program_compile.h"
#include "file/project_copy.h"

#include <memory>
#include <string>
#include <vector>

namespace zolt {

class CNetList;
class CompileProgress;
class ProgramState;
class Ui;

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

// One build of a family: the feature code lines it is made of.
struct Variant {
    std::vector<std::string> featureCodes;
};

// "Feature Codes: Base, LeftHand": which variant a compile's results are of.
std::string DescriptionOf(const Variant& variant);

// A variant pre-compiled on a copy of its family: the family is never touched.
class VariantProgram {
public:
    // Copies, checks, combines, expands and filters; nullptr (after its box,
    // shown through `ui`) when the variant cannot be compiled.
    static std::unique_ptr<VariantProgram> Of(const Project& family, const Variant& variant, Ui& ui,
                                              CompileProgress& progress);

    // The program to compile.
    const Project& project() const { return copy_->project(); }
    // The variant's netlists before the filter: the manual-netlist lookup of
    // the compile walks these.
    const std::vector<const CNetList*>& Netlists() const { return netlists_; }
    // The compile request of the variant: its description ahead of the results.
    compile::CompileRequest Request(compile::CompileRequest request) const;

    VariantProgram(std::unique_ptr<file::ProjectCopy> copy, CompileProgress& progress,
                   const Variant& variant);

private:
    bool prepare();

    std::unique_ptr<file::ProjectCopy> copy_;
    CompileProgress& progress_;
    PatternCompile run_; // on the copy: declared after it, gone before it
    Variant variant_;
    std::vector<const CNetList*> netlists_;
};

// A family's variant compiled, touching neither the family nor any file. A
// variant the pre-compile refuses ends `Aborted` with the pre-compile's box.
compile::CompileResult CompileVariant(const Project& family, const Variant& variant,
                                      const compile::CompileRequest& request,
                                      CompileProgress& progress);

} // namespace zolt
