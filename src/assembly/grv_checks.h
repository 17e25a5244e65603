#pragma once

namespace zolt {

class ProgramState;

// The completeness checks of the assembly data before a test compile. Each
// part check returns its weight when its part is missing, 0 when it is there.
int CheckFeatureCodes(const ProgramState& state);  // 5 or 0
int CheckAssemblyOrder(const ProgramState& state); // 2 or 0
int CheckNetlistInfo(const ProgramState& state);   // 1 or 0
int ScoreGRVData(const ProgramState& state);
// The sum with its message; true lets the test compile go on. A sum of 8, all
// parts missing at once, passes without a word: old programs rely on it.
bool CheckGRVData(const ProgramState& state);

} // namespace zolt
