// zolt-analyzer: the receiving side of the analyzer's serial line, for trying a
// download without hardware and for checking what arrived.

#include "cli/analyzer_commands.h"
#include "cli/image_json.h"
#include "cli/json_writer.h"
#include "compile/program_image.h"
#include "core/headless/memory_settings_store.h"
#include "download/line_receiver.h"
#include "download/posix_serial_port.h"
#include "file/data_directory.h"
#include "file/file_bytes.h"
#include "platform/executable_path.h"

#include <charconv>
#include <cstdio>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <unistd.h>

namespace {

using namespace zolt;

void usage(std::ostream& out) {
    out << "usage: zolt-analyzer run IMAGE [--harness FILE] [--fault F]... [--keys K,...] "
           "[--steps N] [--json]\n"
           "       zolt-analyzer receive --port DEV [--baud N] [--idle-ms N] [--save FILE] "
           "[--json]\n"
           "       zolt-analyzer pty [--baud N] [--idle-ms N] [--save FILE] [--json]\n"
           "  receive reads one image from DEV until the line is idle and checks it;\n"
           "  pty makes a pseudo-terminal pair, prints the device to send to, and\n"
           "  receives on the other side. --baud paces the reads to that line rate.\n"
           "  run runs IMAGE's sequence on a simulated harness: the one IMAGE designs,\n"
           "  or FILE's (a program, compiled on the fly, or a .bin), with the faults F\n"
           "  (open:J1-2, short:J1-2,J2-7, swap:J1-2,J1-3, reverse:D1, ...) built in.\n";
}

struct Options {
    std::string port;
    int baud = 0;
    int idleMs = 1000;
    std::string save;
    bool json = false;
};

std::optional<int> Positive(std::string_view text) {
    int value = 0;
    const auto [rest, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (ec != std::errc() || rest != text.data() + text.size() || value <= 0)
        return std::nullopt;
    return value;
}

std::optional<Options> Parse(int argc, char** argv) {
    Options options;
    for (int i = 2; i < argc; ++i) {
        const std::string_view option = argv[i];
        if (option == "--json") {
            options.json = true;
            continue;
        }
        if (i + 1 >= argc)
            return std::nullopt;
        const std::string value = argv[++i];
        if (option == "--port") {
            options.port = value;
        } else if (option == "--save") {
            options.save = value;
        } else if (option == "--baud" || option == "--idle-ms") {
            const auto number = Positive(value);
            if (!number)
                return std::nullopt;
            (option == "--baud" ? options.baud : options.idleMs) = *number;
        } else {
            return std::nullopt;
        }
    }
    return options;
}

// What arrived, checked as the analyzer would: exit 0 for a valid image.
int Report(const std::vector<std::uint8_t>& bytes, const Options& options) {
    if (!options.save.empty() &&
        !file::WriteFileBytes(options.save,
                              {reinterpret_cast<const char*>(bytes.data()), bytes.size()})) {
        std::cerr << "ERROR: cannot write '" << options.save << "'\n";
        return 2;
    }
    const auto read = compile::ReadImage(bytes);
    const std::string crc = compile::PayloadCrcText(bytes);
    if (options.json) {
        std::cout << "{\"bytes\": " << bytes.size() << ", \"crc32\": " << cli::JsonString(crc)
                  << ", \"valid\": " << (read.image ? "true" : "false");
        if (read.image)
            std::cout << ", \"image\": " << cli::ImageJson(*read.image, read.version);
        else
            std::cout << ", \"error\": " << cli::JsonString(read.error);
        std::cout << "}\n";
        return read.image ? 0 : 1;
    }
    std::cout << "Received " << bytes.size() << " bytes"
              << (crc.empty() ? std::string() : " (CRC-32 " + crc + ")") << '\n';
    if (!read.image) {
        std::cout << "Not a valid image: " << read.error << '\n';
        return 1;
    }
    const auto& image = *read.image;
    std::cout << "Image version: " << read.version << '\n'
              << "ProgramId: " << image.header.programId << '\n'
              << "Program: " << image.header.programName << '\n'
              << "Netlists: " << image.netlists.size() << '\n';
    for (const auto& netlist : image.netlists)
        std::cout << "  " << netlist.name << ": " << netlist.nets.size() << " nets, "
                  << netlist.connectors.size() << " connectors, " << netlist.wires.size()
                  << " wires, " << netlist.switches.size() << " switches\n";
    std::cout << "Sequence lines: " << image.sequence.size() << '\n';
    for (const auto& line : image.sequence)
        std::cout << "  " << line.command << (line.parameter.empty() ? "" : " ") << line.parameter
                  << '\n';
    return 0;
}

download::ReceiveOptions ReceiveOptionsOf(const Options& options) {
    return {options.baud, std::chrono::milliseconds{options.idleMs}};
}

} // namespace

int main(int argc, char** argv) {
    const std::string command = argc > 1 ? argv[1] : "";
    if (command == "run") {
        // The analyzer has no settings of its own: a program compiled on the fly
        // takes the default folders.
        MemorySettingsStore settings;
        return cli::AnalyzerRunCommand({argv + 2, argv + argc},
                                       file::DataDirectoryOf(ExecutableDirectory(argv[0])),
                                       settings, std::cout, std::cerr);
    }
    const auto options = Parse(argc, argv);
    if (command == "receive" && options && !options->port.empty()) {
        download::PosixSerialPort port;
        download::LineSettings line;
        if (options->baud > 0)
            line.baud = options->baud;
        std::string error;
        if (!port.Open(options->port, line, error)) {
            std::cerr << "ERROR: " << error << '\n';
            return 2;
        }
        return Report(download::Receive(port, ReceiveOptionsOf(*options)), *options);
    }
    if (command == "pty" && options && options->port.empty()) {
        std::string error;
        const auto pair = download::OpenPseudoTerminal(error);
        if (!pair) {
            std::cerr << "ERROR: " << error << '\n';
            return 2;
        }
        std::cout << pair->slaveName << std::endl;
        download::PosixSerialPort port(pair->master);
        const int status = Report(download::Receive(port, ReceiveOptionsOf(*options)), *options);
        ::close(pair->slave);
        return status;
    }
    const bool asked = command.empty() || command == "--help";
    usage(asked ? std::cout : std::cerr);
    return asked ? 0 : 2;
}
