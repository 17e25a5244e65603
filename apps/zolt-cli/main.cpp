#include "cli/analyzer_commands.h"
#include "cli/assembly_commands.h"
#include "cli/batch_session.h"
#include "cli/command_listing.h"
#include "cli/compile_commands.h"
#include "cli/diff_command.h"
#include "cli/download_command.h"
#include "cli/import_files.h"
#include "cli/interchange_commands.h"
#include "cli/program_files.h"
#include "cli/report_command.h"
#include "cli/verify_command.h"
#include "core/app_info.h"
#include "core/headless/memory_settings_store.h"
#include "core/heap_policy.h"
#include "file/data_directory.h"
#include "platform/executable_path.h"

#ifdef ZOLT_WITH_QT_SETTINGS
#include "platform/qt_settings_store.h"
#endif
#ifdef ZOLT_WITH_PDF
#include "platform/report_painter.h"

#include <QGuiApplication>
#endif

#include <fstream>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace {

void usage(std::ostream& out) {
    out << "usage: zolt-cli [--settings FILE] COMMAND ...\n"
           "                                 (ZOLT Settings from FILE, not the desktop's)\n"
           "       zolt-cli --version\n"
           "       zolt-cli batch SCRIPT     (SCRIPT '-' reads standard input)\n"
           "       zolt-cli commands [--grv] (the sequence commands a program knows)\n"
           "       zolt-cli commands --html (the same as the help page of ZOLT Help)\n"
           "       zolt-cli dump FILE        (the program file's project as JSON)\n"
           "       zolt-cli convert IN OUT   (read IN, write it as OUT)\n"
           "       zolt-cli import IN OUT.zlf (a new program from a drawing (.yml, .net,\n"
           "                                 .csv), a PID file, a .zos or a program)\n"
           "       zolt-cli import-pid IN.pid OUT.zlf (a new program from a PID file)\n"
           "       zolt-cli import-zos IN.zos         (a legacy archive as a .zlf beside it)\n"
           "       zolt-cli report FILE [--netlist NAME] [--tables A,B,...]\n"
           "                [--summary wire|group] (--pdf OUT.pdf | --text)\n"
           "       zolt-cli grv-compile FILE.grv --features A,B -o OUT.zlf [--overwrite]\n"
           "                                 (the plain program for those feature codes)\n"
           "       zolt-cli compile FILE [--trace] (compile FILE into FILE.bin)\n"
           "       zolt-cli image FILE.bin   (a compiled program as JSON)\n"
           "       zolt-cli coverage FILE [--classes open,short,soft,swap,component,switch]\n"
           "                [--json | --pdf OUT.pdf]\n"
           "                                 (which single faults the program catches)\n"
           "       zolt-cli download FILE --port DEV [--baud N] [--yes]\n"
           "                                 (send FILE's .bin to the analyzer)\n"
           "       zolt-cli diff A B [--json] (what changed in the harness from A to B)\n"
           "       zolt-cli verify FILE [--netlist NAME] --against DOC\n"
           "                                 (the netlist against a drawing: .csv, .yml, .net)\n"
           "       zolt-cli export FILE [--netlist NAME] (--wireviz OUT.yml | --fromto OUT.csv)\n"
           "                                 (the netlist as a drawing other tools read)\n";
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

// Without Qt's PDF engine the report commands say that they cannot print to a file.
zolt::cli::PdfWriter BuiltPdfWriter() {
#ifdef ZOLT_WITH_PDF
    return WritePdf;
#else
    return {};
#endif
}

// Beside the executable in a build tree, under ../share/zolt once installed.
std::string DataDirectory(const char* argv0) {
    return zolt::file::DataDirectoryOf(zolt::ExecutableDirectory(argv0));
}

// The desktop's settings, or those of an INI file; a build without the desktop
// keeps them for one run only.
std::unique_ptr<zolt::SettingsStore> OpenSettings(const std::string& file) {
#ifdef ZOLT_WITH_QT_SETTINGS
    if (!file.empty())
        return std::make_unique<zolt::QtSettingsStore>(QString::fromStdString(file));
    return std::make_unique<zolt::QtSettingsStore>();
#else
    if (!file.empty())
        return nullptr;
    return std::make_unique<zolt::MemorySettingsStore>();
#endif
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
    std::string settingsFile;
    if (argc > 2 && std::string(argv[1]) == "--settings") {
        settingsFile = argv[2];
        // The commands below read their words from argv[1] on.
        argv[2] = argv[0];
        argv += 2;
        argc -= 2;
    }
    const std::unique_ptr<zolt::SettingsStore> settings = OpenSettings(settingsFile);
    if (!settings) {
        std::cerr << "ERROR: this zolt-cli keeps no settings file\n";
        return 2;
    }
    const std::string command = argc > 1 ? argv[1] : "";
    if (command == "--version") {
        std::cout << zolt::kAppTitle << '.' << zolt::kVersionRevision << " (Build "
                  << zolt::kBuildNumber << ")\n";
        return 0;
    }
    if (command == "batch" && argc == 3) {
        const std::string path = argv[2];
        zolt::cli::BatchSession session(std::cout, *settings);
        session.setDataDirectory(DataDirectory(argv[0]));
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
        return zolt::cli::DumpProgramFile(argv[2], DataDirectory(argv[0]), *settings, std::cout,
                                          std::cerr);
    if (command == "convert" && argc == 4)
        return zolt::cli::ConvertProgramFile(argv[2], argv[3], DataDirectory(argv[0]), *settings,
                                             std::cout, std::cerr);
    if (command == "import-pid" && argc == 4)
        return zolt::cli::ImportPidToFile(argv[2], argv[3], DataDirectory(argv[0]), *settings,
                                          std::cout, std::cerr);
    if (command == "import" && argc == 4)
        return zolt::cli::ImportToFile(argv[2], argv[3], DataDirectory(argv[0]), *settings,
                                       std::cout, std::cerr);
    if (command == "export")
        return zolt::cli::ExportCommand({argv + 2, argv + argc}, DataDirectory(argv[0]), *settings,
                                        std::cout, std::cerr);
    if (command == "import-zos" && argc == 3)
        return zolt::cli::ImportZosFile(argv[2], DataDirectory(argv[0]), *settings, std::cout,
                                        std::cerr);
    if (command == "report")
        return zolt::cli::ReportCommand({argv + 2, argv + argc}, DataDirectory(argv[0]), *settings,
                                        BuiltPdfWriter(), std::cout, std::cerr);
    if (command == "grv-compile" && argc >= 7) {
        std::string features, out;
        bool overwrite = false, known = true;
        for (int i = 3; i < argc; ++i) {
            const std::string option = argv[i];
            if (option == "--overwrite")
                overwrite = true;
            else if (option == "--features" && i + 1 < argc)
                features = argv[++i];
            else if (option == "-o" && i + 1 < argc)
                out = argv[++i];
            else
                known = false;
        }
        if (known && !features.empty() && !out.empty())
            return zolt::cli::GrvCompileProgramFile(argv[2], SplitAtCommas(features), out,
                                                    overwrite, DataDirectory(argv[0]), *settings,
                                                    std::cout, std::cerr);
    }
    if (command == "compile" && (argc == 3 || (argc == 4 && std::string(argv[3]) == "--trace")))
        return zolt::cli::CompileProgramFile(argv[2], DataDirectory(argv[0]), argc == 4, *settings,
                                             std::cout, std::cerr);
    if (command == "image" && argc == 3)
        return zolt::cli::PrintImageFile(argv[2], std::cout, std::cerr);
    if (command == "coverage")
        return zolt::cli::CoverageCommand({argv + 2, argv + argc}, DataDirectory(argv[0]),
                                          *settings, BuiltPdfWriter(), std::cout, std::cerr);
    if (command == "diff")
        return zolt::cli::DiffCommand({argv + 2, argv + argc}, DataDirectory(argv[0]), *settings,
                                      std::cout, std::cerr);
    if (command == "verify")
        return zolt::cli::VerifyCommand({argv + 2, argv + argc}, DataDirectory(argv[0]), *settings,
                                        std::cout, std::cerr);
    if (command == "download")
        return zolt::cli::DownloadCommand({argv + 2, argv + argc}, std::cout, std::cerr);
    usage(command.empty() || command == "--help" ? std::cout : std::cerr);
    return command.empty() || command == "--help" ? 0 : 2;
}
