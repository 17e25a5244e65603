#include "download/download_request.h"

#include "core/program_state.h"
#include "core/value.h"

#include <filesystem>

namespace zolt::download {

std::string CommDeviceName(const std::string& commDevice, int commPort) {
    const std::string device = vb::Trim(commDevice);
    if (!device.empty())
        return device;
#ifdef _WIN32
    return "COM" + std::to_string(commPort);
#else
    // COM1 is the first serial port, ttyS0.
    return "/dev/ttyS" + std::to_string(commPort > 0 ? commPort - 1 : 0);
#endif
}

DownloadRequest RequestFor(ProgramState& state) {
    CParamList& params = state.params();
    DownloadRequest request;
    request.programPath = state.document().CurrentFile;
    request.programName = std::filesystem::path(state.document().CurrentFile).stem().string();
    request.device = CommDeviceName(params.Text(param::CommDevice),
                                    static_cast<int>(params.Number(param::CommPort)));
    request.line = LineFromParameters(params.Text(param::Baud), params.Text(param::Parity),
                                      params.Text(param::DataBits), params.Text(param::StopBits));
    return request;
}

} // namespace zolt::download
