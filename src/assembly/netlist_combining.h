#pragma once

#include "core/assembly_lists.h"

#include <optional>
#include <string>
#include <vector>

namespace zolt {

class CompileProgress;
class ProgramState;

// The pattern texts of the sequence's PBEGIN lines: the first one's parameter
// only. nullopt (after the invalid pattern box) when any PBEGIN is outside 1 to 50.
std::optional<std::vector<std::string>> CheckPatternNumbers(const ProgramState& state);

// True when a row of the Code table of "MANUAL NETLISTS" names the netlist.
bool IsManualNetlist(const ProgramState& state, const std::string& name);
// True when the document has a netlist named exactly "MANUAL NETLISTS".
bool HasManualNetlists(const ProgramState& state);

// Appends the tables of the PartOfMain netlists of `ordered` to MAIN's, in
// assembly order. Only a sequence whose first PBEGIN is pattern 1 combines;
// false when a pattern number is invalid (nothing is touched then).
bool CombineNetlists(ProgramState& state, const std::vector<CNetlistInfo>& ordered,
                     CompileProgress& progress);
void CombineForPattern(ProgramState& state, int pattern, const std::vector<CNetlistInfo>& ordered,
                       CompileProgress& progress);

} // namespace zolt
