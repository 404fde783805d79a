#include <QAbstractButton>
#include <QApplication>
#include <array>
#include <exception>
#include <iostream>

#include "driving/Controls.h"
#include "tour/Filling.h"
#include "tour/walk/Walker.h"
#include "ui/shell/Composition.h"

namespace {

using namespace tavrene;

// The walks have to be about this many misread boxes.
constexpr std::size_t kMisread = 10;

// A way through the forms, and what has to come of it.
struct Way {
    const char* name;
    void (tour::Walker::*walk)();
    int mostKeys;
    bool accepts;  // the forms lie in ProcessFinal afterwards; or else they are reviewed
};

constexpr std::array<Way, 2> kWays = {{{"going on", &tour::Walker::GoOnThroughAll, 70, false},
                                       {"sheet and accept all", &tour::Walker::SheetAndAcceptAll, 20, true}}};

// Whether the documents are as they were meant afterwards, and the keys were few enough.
bool Walk(const Way& way, const std::string& folder) {
    app::DiskFiles files;
    if (!files.FolderExists(folder))
        files.CreateFolder(folder);
    if (!app::CreateWorkingFolders(files, folder))
        throw std::runtime_error("The sub-folders of " + folder + " cannot be made.");
    const app::WorkingFolders folders = app::PathsUnder(folder);
    const tour::FormTruth truth = tour::PaintForms(files, folders);
    tour::WriteSettings(folder);
    ui::Composition program;
    if (!program.Start())
        throw std::runtime_error("The program is open already.");
    driving::Button(program.Window(), "MainToolbar", "Process").click();
    const std::size_t misread = tour::DifferencesFrom(truth, files, folders.ProcessOut, false).size();
    tour::Walker walker(program.Window(), truth);
    (walker.*way.walk)();
    const auto left = tour::DifferencesFrom(
        truth, files, way.accepts ? folders.ProcessFinal : folders.ProcessOut, !way.accepts);
    std::cout << truth.size() << " forms, " << misread << " boxes misread; " << walker.Keys() << " keys by "
              << way.name << "; " << left.size() << " differences from the truth afterwards" << std::endl;
    for (const std::string& difference : left)
        std::cout << "  " << difference << '\n';
    return misread == kMisread && left.empty() && walker.Keys() <= way.mostKeys;
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr
            << "Usage: tavrene-review-walk FOLDER\n\n"
               "Paints forms into FOLDER, which must be empty, processes them, goes through them in the\n"
               "program's window by keyboard in two ways, and counts the keys. The exit code is 0 when the "
               "result\n"
               "documents are as the forms were meant and the keys were few enough.\n";
        return 2;
    }
    try {
        const QApplication application(count, arguments);
        ui::PrepareApplication();
        const std::string folder = std::string(arguments[1]) + '/';
        bool isAsMeant = true;
        for (std::size_t k = 0; k < kWays.size(); ++k)
            isAsMeant = Walk(kWays[k], folder + std::to_string(k + 1)) && isAsMeant;
        return isAsMeant ? 0 : 1;
    } catch (const std::exception& failure) {
        std::cerr << "tavrene-review-walk: " << failure.what() << '\n';
        return 2;
    }
}
