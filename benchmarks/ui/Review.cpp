#include <benchmark/benchmark.h>
#include <unistd.h>

#include <QAction>
#include <QComboBox>
#include <QListView>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <QTreeWidget>
#include <filesystem>
#include <fstream>
#include <utility>

#include "Floor.h"
#include "Window.h"

namespace tavrene::bench {
namespace {

namespace fs = std::filesystem;

std::string TextOf(const app::Bytes& content) {
    return {reinterpret_cast<const char*>(content.data()), content.size()};
}

// A folder with that many processed forms of 100 boxes each; all of them are the same page.
std::string FolderWithForms(int forms) {
    std::string folder = ScratchFolder() + "/review-" + std::to_string(forms);
    const app::WorkingFolders folders = app::PathsUnder(folder);
    Workplace work;
    fs::create_directory(folder);
    app::CreateWorkingFolders(work.files, folder);
    WriteProfile(folders, TheFormPage().boxes);
    fs::copy_file(TheFormPage().file, work.folders.ProcessIn + "page.tif",
                  fs::copy_options::overwrite_existing);
    work.run.Run(std::vector{TheFormPage().profile});
    const std::string result = TextOf(work.files.Read(work.folders.ProcessOut + "page.xml"));
    for (int k = 0; k < forms; ++k) {
        const std::string name = "page" + std::to_string(k);
        std::string text = result;
        text.replace(text.find("page.tif"), 8, name + ".tif");
        work.files.Write(folders.ProcessOut + name + ".xml", app::AsBytes(text), app::Keep::AsScratch);
        fs::create_hard_link(TheFormPage().file, folders.ProcessOut + name + ".tif");
    }
    return folder;
}

// The window in review.
struct ReviewDesk {
    explicit ReviewDesk(int forms) : window(FolderWithForms(forms)) { Toggle(); }

    void Toggle() {
        window.Get<QAction>("Review").trigger();
        QApplication::processEvents();
    }

    // A click on a line; a real one, since doubts are counted while nobody clicks.
    void Open(int line) {
        const QRect place = List().visualRect(List().model()->index(line, 0));
        QTest::mouseClick(List().viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
        QApplication::processEvents();
    }

    QTreeView& List() const { return window.Get<QTreeView>("lvwReview"); }
    int Boxes() const { return window.Get<QTreeWidget>("lvwSettings").topLevelItemCount(); }

    Window window;
};

// Never destroyed, since the application is gone before the static objects are.
ReviewDesk& DeskOf(int forms) {
    static auto* const few = new ReviewDesk(5);
    static auto* const many = new ReviewDesk(5000);
    return forms == 5 ? *few : *many;
}

void BM_EnterReview(benchmark::State& state) {
    const int forms = static_cast<int>(state.range(0));
    ReviewDesk& desk = DeskOf(forms);
    for (auto _ : state) {
        state.PauseTiming();
        desk.Toggle();
        state.ResumeTiming();
        desk.Toggle();
    }
    if (desk.List().model()->rowCount() != forms)
        state.SkipWithError("forms are missing from the list");
}

// One form of many: loaded, measured, drawn and painted, at a zoom that the form before was left at.
void OpenForms(benchmark::State& state, const char* zoom) {
    ReviewDesk& desk = DeskOf(static_cast<int>(state.range(0)));
    int line = 0;
    desk.window.Get<QAction>(zoom).trigger();
    for (auto _ : state)
        desk.Open(line = (line + 3) % 5);
    if (desk.Boxes() != static_cast<int>(TheFormPage().boxes.size()))
        state.SkipWithError("the form was not opened");
}

void BM_OpenForm(benchmark::State& state) {
    OpenForms(state, "ZoomToOrig");
}

void BM_OpenFormAsWideAsTheView(benchmark::State& state) {
    OpenForms(state, "FitWidth");
}

void BM_SelectLine(benchmark::State& state) {
    ReviewDesk& desk = DeskOf(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        QTest::keyClick(&desk.List(), desk.List().currentIndex().row() < 4 ? Qt::Key_Down : Qt::Key_Home);
        QApplication::processEvents();
    }
}

double ResidentMegabytes() {
    std::ifstream statm("/proc/self/statm");
    long pages = 0;
    statm >> pages >> pages;
    return static_cast<double>(pages * sysconf(_SC_PAGESIZE)) / 1e6;
}

// One box of all forms on the sheet, a screen of forty further with each key, painted.
void ScrollSheet(benchmark::State& state, QWidget& sheet) {
    auto& view = *sheet.findChild<QListView*>("lvwSheet");
    sheet.findChild<QComboBox*>("cboSheet")->setCurrentIndex(1);
    while (view.model()->rowCount() < state.range(0))
        QApplication::processEvents();
    state.counters["MB before"] = ResidentMegabytes();
    for (auto _ : state) {
        const bool isAtEnd = view.currentIndex().row() == view.model()->rowCount() - 1;
        QTest::keyClick(&view, isAtEnd ? Qt::Key_Home : Qt::Key_PageDown);
        QApplication::processEvents();
    }
    state.counters["MB after"] = ResidentMegabytes();
}

void BM_ScrollSheet(benchmark::State& state) {
    ReviewDesk& desk = DeskOf(static_cast<int>(state.range(0)));
    QTimer::singleShot(0, &desk.List(), [&] {
        QWidget& sheet = *QApplication::activeModalWidget();
        ScrollSheet(state, sheet);
        sheet.close();
    });
    desk.window.Get<QAction>("DoubtSheet").trigger();
}

BENCHMARK(BM_EnterReview)->Arg(5)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_OpenForm)->Arg(5)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_OpenFormAsWideAsTheView)->Arg(5)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ScrollSheet)->Arg(5)->Arg(5000)->Iterations(250)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SelectLine)->Arg(5)->Arg(5000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tavrene::bench
