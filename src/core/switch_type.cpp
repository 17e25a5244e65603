#include "core/switch_type.h"

#include "core/parameters.h"

namespace zolt {

SwitchType GetSwitchType(CParamList& params) {
    return static_cast<SwitchType>(params.Number(param::SwitchType));
}

} // namespace zolt
