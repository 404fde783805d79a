#include <QAbstractButton>
#include <QApplication>
#include <exception>
#include <iostream>

#include "driving/Controls.h"
#include "tour/Filling.h"
#include "tour/walk/Walker.h"
#include "ui/shell/Composition.h"

namespace {

using namespace tavrene;

// The walks have to be about this many misread boxes, and may take this many keys.
constexpr std::size_t kMisread = 10;
constexpr int kMostKeys = 70;

int Walk(const std::string& folder) {
    app::DiskFiles files;
    if (!app::CreateWorkingFolders(files, folder))
        throw std::runtime_error("The sub-folders of " + folder + " cannot be made.");
    const app::WorkingFolders folders = app::PathsUnder(folder);
    const tour::FormTruth truth = tour::PaintForms(files, folders);
    tour::WriteSettings(folder);
    ui::Composition program;
    if (!program.Start()) {
        std::cerr << "The program is open already.\n";
        return 2;
    }
    driving::Button(program.Window(), "MainToolbar", "Process").click();
    const std::size_t misread = tour::DifferencesFrom(truth, files, folders, false).size();
    tour::Walker walker(program.Window(), truth);
    walker.GoOnThroughAll();
    const auto left = tour::DifferencesFrom(truth, files, folders, true);
    std::cout << truth.size() << " forms, " << misread << " boxes misread; " << walker.Keys()
              << " keys by going on; " << left.size() << " differences from the truth afterwards\n";
    for (const std::string& difference : left)
        std::cout << "  " << difference << '\n';
    return misread == kMisread && left.empty() && walker.Keys() <= kMostKeys ? 0 : 1;
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr
            << "Usage: tavrene-review-walk FOLDER\n\n"
               "Paints forms into FOLDER, which must be empty, processes them, goes through them in the\n"
               "program's window by keyboard, and counts the keys. The exit code is 0 when the result\n"
               "documents are as the forms were meant and the keys were few enough.\n";
        return 2;
    }
    try {
        const QApplication application(count, arguments);
        ui::PrepareApplication();
        return Walk(arguments[1]);
    } catch (const std::exception& failure) {
        std::cerr << "tavrene-review-walk: " << failure.what() << '\n';
        return 2;
    }
}
