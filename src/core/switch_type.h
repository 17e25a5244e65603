#pragma once

namespace zolt {

class CParamList;

// How the switches of the connectors share their commons: the "SwitchType" parameter.
enum class SwitchType : int {
    OneCommonForAll = 1,
    OneCommonPerConnector = 2,
    OneCommonPerSwitch = 3,
};

// The parameter as what it means; a stored value outside 1 to 3 keeps its number.
SwitchType GetSwitchType(CParamList& params);

} // namespace zolt
