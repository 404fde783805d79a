#include <QApplication>
#include <algorithm>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "app/Files.h"
#include "app/WorkingFolders.h"
#include "samples/GroundTruth.h"
#include "samples/outcome/Comparison.h"
#include "tour/Driver.h"
#include "tour/Filling.h"
#include "ui/base/QtText.h"
#include "ui/shell/Composition.h"

namespace {

using namespace tavrene;

constexpr const char* kUsage =
    "Usage: tavrene-tour --fill SAMPLES FOLDER\n"
    "       tavrene-tour --drive SAMPLES FOLDER SHOTS\n"
    "\n"
    "--fill   makes FOLDER a working folder with the profiles and scans of SAMPLES, and points the\n"
    "         settings below XDG_CONFIG_HOME at it\n"
    "--drive  opens the program's window on FOLDER, presses Process, writes pictures of the window to\n"
    "         SHOTS, lets Precise Alignment read the same scans after that, and compares both with the\n"
    "         truth of SAMPLES; makes a profile of a blank form then, tries it, reviews and exports;\n"
    "         the exit code is 0 when all scans are right, but for those that the truth calls beyond\n"
    "         the rules\n";

std::string FullPath(const std::string& path) {
    std::string full = app::FromPath(std::filesystem::absolute(app::ToPath(path)).lexically_normal());
    while (full.size() > 1 && full.back() == std::filesystem::path::preferred_separator)
        full.pop_back();
    return full;
}

int Fill(const std::string& samples, const std::string& folder) {
    tour::FillWorkingFolder(samples, folder);
    tour::WriteSettings(folder);
    return 0;
}

void PrintPlaces(const app::WorkingFolders& folders, const QStringList& shots) {
    std::cout << "\nResult documents: " << folders.ProcessOut << " (by Precise Alignment)"
              << "\nLogs:             " << folders.Log << "\nScreenshots:\n";
    for (const QString& shot : shots)
        std::cout << "  " << ui::FromQt(shot) << '\n';
}

bool HasWrong(const std::vector<samples::Comparison>& readings) {
    return std::any_of(readings.begin(), readings.end(), [](const samples::Comparison& reading) {
        return reading.verdict == samples::Verdict::Wrong;
    });
}

int Drive(const std::string& samplesFolder, const std::string& folder, const std::string& shotsFolder) {
    const auto truth = samples::ReadGroundTruth(samplesFolder + "/truth.tsv");
    ui::Composition program;
    if (!program.Start()) {
        std::cerr << "The program is open already.\n";
        return 2;
    }
    tour::Driver driver(program.Window(), ui::ToQt(shotsFolder));
    driver.Drive();
    const app::WorkingFolders folders = app::PathsUnder(folder);
    app::DiskFiles files;
    const auto plain = samples::CompareWithTruth(files, folders, truth);
    for (const samples::GroundTruthRecord& scan : truth)
        files.Move(folders.ProcessOut + scan.Image, folders.ProcessIn + scan.Image);
    driver.ReadPrecisely();
    const auto precise = samples::CompareWithTruth(files, folders, truth);
    std::cout << samples::TableOf(plain, precise);
    driver.TellStory(folders);
    PrintPlaces(folders, driver.Shots());
    return HasWrong(plain) || HasWrong(precise) ? 1 : 0;
}

int Run(const std::vector<std::string>& arguments) {
    const std::string mode = arguments.empty() ? "" : arguments[0];
    if (mode == "--fill" && arguments.size() == 3)
        return Fill(FullPath(arguments[1]), FullPath(arguments[2]));
    if (mode == "--drive" && arguments.size() == 4)
        return Drive(FullPath(arguments[1]), FullPath(arguments[2]), FullPath(arguments[3]));
    const bool help = mode == "--help" || mode == "-h";
    (help ? std::cout : std::cerr) << kUsage;
    return help ? 0 : 2;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        const std::vector<std::string> arguments(argv + 1, argv + argc);
        // Filling shows nothing, so it must not need a display.
        if (arguments.empty() || arguments[0] != "--drive")
            return Run(arguments);
        const QApplication application(argc, argv);
        ui::PrepareApplication();
        return Run(arguments);
    } catch (const std::exception& failure) {
        std::cerr << "tavrene-tour: " << failure.what() << '\n';
        return 2;
    }
}
