#pragma once

// The words an operator reads for the device kinds of the image.

#include <string>
#include <string_view>

namespace zolt::analyzer {

// "DIODE" for DIOM, "RESISTOR" for RESM, KEL and KELG, "CAPACITOR" for CAP and PCAP,
// "NETWORK" for UNET; any other kind reads as its code.
std::string ComponentWord(std::string_view kind);
// "D1", "R3", "C2", "U1"; a kind without a letter keeps its code: "XYZ4".
std::string ComponentName(std::string_view kind, int number);
// Kinds that conduct one way, so can be fitted the wrong way round.
bool IsPolarised(std::string_view kind);
// Kinds the check reads as a resistance.
bool IsResistive(std::string_view kind);

} // namespace zolt::analyzer
