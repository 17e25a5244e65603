#pragma once

#include "download/download.h"

#include <string>

namespace zolt {
class ProgramState;
}

namespace zolt::download {

// The device of the Comm settings: `CommDevice` when it is set, else the
// platform's name of port number `CommPort` (COM3; /dev/ttyS2 elsewhere).
std::string CommDeviceName(const std::string& commDevice, int commPort);

// The download of the open program with the stored Comm settings.
DownloadRequest RequestFor(ProgramState& state);

} // namespace zolt::download
