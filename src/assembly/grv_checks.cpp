#include "assembly/grv_checks.h"

#include "core/app_info.h"
#include "core/ports/ui.h"
#include "core/program_state.h"

namespace zolt {

int CheckFeatureCodes(const ProgramState& state) {
    return state.project().Assembly.FeatureCodeData.empty() ? 5 : 0;
}

int CheckAssemblyOrder(const ProgramState& state) {
    const CAssemblyOrderList& order = state.project().Assembly.AssemblyOrderList;
    if (order.Count() == 0 && state.project().NetlistCollection.Count() > 0)
        return 2;
    bool open = false;
    order.ForEach([&](const CAssemblyRec& rec) { open = open || !rec.Flag; });
    return open ? 2 : 0;
}

int CheckNetlistInfo(const ProgramState& state) {
    bool open = false;
    state.project().Assembly.NetlistInfoList.ForEach(
        [&](const CNetlistInfo& info) { open = open || !info.Ordered; });
    return open ? 1 : 0;
}

int ScoreGRVData(const ProgramState& state) {
    return CheckFeatureCodes(state) + CheckAssemblyOrder(state) + CheckNetlistInfo(state);
}

bool CheckGRVData(const ProgramState& state) {
    const int sum = ScoreGRVData(state);
    const char* text = nullptr;
    switch (sum) {
    case 0:
    case 4:
    case 8:
        return true;
    case 1:
    case 2:
        text = "The order of assembly is not complete.";
        break;
    case 5:
        text = "Feature Code data not present";
        break;
    default:
        text = "All GRV data not present";
        break;
    }
    state.ui().Show(MessageBox{kAppTitle, text, Buttons::Ok, Icon::Warning, 1});
    return false;
}

} // namespace zolt
