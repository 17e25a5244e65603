#include "cli/assembly_commands.h"
#include "cli/batch_session.h"
#include "cli/command_listing.h"
#include "cli/compile_commands.h"
#include "cli/diff_command.h"
#include "cli/download_command.h"
#include "cli/import_files.h"
#include "cli/program_files.h"
#include "cli/report_command.h"
#include "cli/verify_command.h"
#include "core/app_info.h"
#include "core/heap_policy.h"

#ifdef ZOLT_WITH_PDF
#include "platform/report_painter.h"

#include <QGuiApplication>
#endif

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

namespace {

void usage(std::ostream& out) {
    out << "usage: zolt-cli --version\n"
           "       zolt-cli batch SCRIPT     (SCRIPT '-' reads standard input)\n"
           "       zolt-cli commands [--grv] (the sequence commands a program knows)\n"
           "       zolt-cli commands --html (the same as the help page of ZOLT Help)\n"
           "       zolt-cli dump FILE        (the program file's project as JSON)\n"
           "       zolt-cli convert IN OUT   (read IN, write it as OUT)\n"
           "       zolt-cli import-pid IN.pid OUT.zlf (a new program from a PID file)\n"
           "       zolt-cli import-zos IN.zos         (a legacy archive as a .zlf beside it)\n"
           "       zolt-cli report FILE [--netlist NAME] [--tables A,B,...]\n"
           "                [--summary wire|group] (--pdf OUT.pdf | --text)\n"
           "       zolt-cli grv-compile FILE.grv --features A,B -o OUT.zlf\n"
           "                                 (the plain program for those feature codes)\n"
           "       zolt-cli compile FILE [--trace] (compile FILE into FILE.bin)\n"
           "       zolt-cli image FILE.bin   (a compiled program as JSON)\n"
           "       zolt-cli download FILE --port DEV [--baud N]\n"
           "                                 (send FILE's .bin to the analyzer)\n"
           "       zolt-cli diff A B [--json] (what changed in the harness from A to B)\n"
           "       zolt-cli verify FILE [--netlist NAME] --against DOC.csv\n"
           "                                 (the netlist against a drawing's from/to list)\n";
}

#ifdef ZOLT_WITH_PDF
// Fonts and the PDF engine need a GUI application; no screen is needed.
bool WritePdf(const std::vector<zolt::reports::Report>& reports, const std::string& path,
              std::string& error) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    int argc = 1;
    char name[] = "zolt-cli";
    char* argv[] = {name, nullptr};
    const QGuiApplication app(argc, argv);
    QString reason;
    const bool written = zolt::WriteReportsPdf(reports, QString::fromStdString(path), &reason);
    error = reason.toStdString();
    return written;
}
#endif

// The program's data files lie beside its executable.
std::string ExecutableDirectory(const char* argv0) {
    std::error_code ec;
    auto self = std::filesystem::read_symlink("/proc/self/exe", ec);
    if (ec)
        self = std::filesystem::absolute(argv0, ec);
    return self.parent_path().string();
}

std::vector<std::string> SplitAtCommas(const std::string& text) {
    std::vector<std::string> parts;
    std::string part;
    std::istringstream in(text);
    while (std::getline(in, part, ','))
        parts.push_back(part);
    return parts;
}

} // namespace

int main(int argc, char** argv) {
    zolt::KeepFreedHeapForReuse();
    const std::string command = argc > 1 ? argv[1] : "";
    if (command == "--version") {
        std::cout << zolt::kAppTitle << '.' << zolt::kVersionRevision << " (Build "
                  << zolt::kBuildNumber << ")\n";
        return 0;
    }
    if (command == "batch" && argc == 3) {
        const std::string path = argv[2];
        zolt::cli::BatchSession session(std::cout);
        session.setDataDirectory(ExecutableDirectory(argv[0]));
        if (path == "-")
            return session.Run(std::cin, std::cerr);
        std::ifstream script(path);
        if (!script) {
            std::cerr << "ERROR: cannot read '" << path << "'\n";
            return 2;
        }
        return session.Run(script, std::cerr);
    }
    if (command == "commands" && argc == 3 && std::string(argv[2]) == "--html") {
        zolt::cli::PrintCommandDictionaryPage(std::cout);
        return 0;
    }
    if (command == "commands" && (argc == 2 || (argc == 3 && std::string(argv[2]) == "--grv"))) {
        zolt::cli::PrintCommandDictionary(std::cout, argc == 3);
        return 0;
    }
    if (command == "dump" && argc == 3)
        return zolt::cli::DumpProgramFile(argv[2], ExecutableDirectory(argv[0]), std::cout,
                                          std::cerr);
    if (command == "convert" && argc == 4)
        return zolt::cli::ConvertProgramFile(argv[2], argv[3], ExecutableDirectory(argv[0]),
                                             std::cout, std::cerr);
    if (command == "import-pid" && argc == 4)
        return zolt::cli::ImportPidToFile(argv[2], argv[3], ExecutableDirectory(argv[0]), std::cout,
                                          std::cerr);
    if (command == "import-zos" && argc == 3)
        return zolt::cli::ImportZosFile(argv[2], ExecutableDirectory(argv[0]), std::cout,
                                        std::cerr);
    if (command == "report") {
        zolt::cli::PdfWriter pdf;
#ifdef ZOLT_WITH_PDF
        pdf = WritePdf;
#endif
        return zolt::cli::ReportCommand({argv + 2, argv + argc}, ExecutableDirectory(argv[0]), pdf,
                                        std::cout, std::cerr);
    }
    if (command == "grv-compile" && argc == 7) {
        std::string features, out;
        for (int i = 3; i + 1 < argc; i += 2) {
            const std::string option = argv[i];
            if (option == "--features")
                features = argv[i + 1];
            else if (option == "-o")
                out = argv[i + 1];
        }
        if (!features.empty() && !out.empty())
            return zolt::cli::GrvCompileProgramFile(argv[2], SplitAtCommas(features), out,
                                                    ExecutableDirectory(argv[0]), std::cout,
                                                    std::cerr);
    }
    if (command == "compile" && (argc == 3 || (argc == 4 && std::string(argv[3]) == "--trace")))
        return zolt::cli::CompileProgramFile(argv[2], ExecutableDirectory(argv[0]), argc == 4,
                                             std::cout, std::cerr);
    if (command == "image" && argc == 3)
        return zolt::cli::PrintImageFile(argv[2], std::cout, std::cerr);
    if (command == "diff")
        return zolt::cli::DiffCommand({argv + 2, argv + argc}, ExecutableDirectory(argv[0]),
                                      std::cout, std::cerr);
    if (command == "verify")
        return zolt::cli::VerifyCommand({argv + 2, argv + argc}, ExecutableDirectory(argv[0]),
                                        std::cout, std::cerr);
    if (command == "download")
        return zolt::cli::DownloadCommand({argv + 2, argv + argc}, std::cout, std::cerr);
    usage(command.empty() || command == "--help" ? std::cout : std::cerr);
    return command.empty() || command == "--help" ? 0 : 2;
}
