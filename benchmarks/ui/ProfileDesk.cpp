#include <benchmark/benchmark.h>

#include <QAction>
#include <QGraphicsView>
#include <QKeyEvent>
#include <QListView>
#include <QTreeWidget>

#include "Floor.h"
#include "Window.h"

namespace tavrene::bench {
namespace {

constexpr int kColumns = 25;
constexpr int kRows = 40;

std::string FolderWith1000Boxes() {
    std::vector<profiles::OmrBox> boxes;
    for (int i = 0; i < kColumns * kRows; ++i) {
        profiles::OmrBox box;
        box.Name = "Box " + std::to_string(i + 1);
        box.L = static_cast<std::int16_t>(100 + 90 * (i % kColumns));
        box.T = static_cast<std::int16_t>(100 + 80 * (i / kColumns));
        box.R = static_cast<std::int16_t>(box.L + 36);
        box.B = static_cast<std::int16_t>(box.T + 36);
        boxes.push_back(box);
    }
    const Workplace work;
    WriteProfile(work.folders, boxes);
    return ScratchFolder();
}

struct Desk {
    Desk() {
        OpenProfile();
        if (Rows().topLevelItemCount() != kColumns * kRows)
            throw std::runtime_error("the profile is not open");
    }

    void OpenProfile() {
        auto& strip = window.Get<QListView>("ImgThumbnail1");
        strip.clicked(strip.model()->index(0, 0));
        QApplication::processEvents();
    }
    QTreeWidget& Rows() const { return window.Get<QTreeWidget>("lvwSettings"); }

    Window window{FolderWith1000Boxes()};
};

// Never destroyed, since the application is gone before the static objects are.
Desk& TheDesk() {
    static auto* const desk = new Desk;
    return *desk;
}

void BM_WindowFloor(benchmark::State& state) {
    const std::string copy = ScratchFolder() + "/floor.tif";
    for (auto _ : state)
        LoadAndSave(TheFormPage().file, copy);
}

void BM_OpenProfileOf1000Boxes(benchmark::State& state) {
    Desk& desk = TheDesk();
    for (auto _ : state)
        desk.OpenProfile();
}

// A click on a row: both views select the box, scroll to it and are painted.
void BM_SelectRowAmong1000(benchmark::State& state) {
    Desk& desk = TheDesk();
    int row = 0;
    for (auto _ : state) {
        row = (row + 37) % (kColumns * kRows);
        desk.Rows().itemClicked(desk.Rows().topLevelItem(row), 0);
        QApplication::processEvents();
    }
}

// All boxes are selected, and a key moves them: one step of the history, and both views are painted.
void BM_SelectAllAndNudge1000(benchmark::State& state) {
    Desk& desk = TheDesk();
    desk.Rows().itemClicked(desk.Rows().topLevelItem(0), 0);
    auto& page = desk.window.Get<QGraphicsView>("ImgEdit1");
    Qt::Key key = Qt::Key_Right;
    for (auto _ : state) {
        desk.window.Get<QAction>("SelectAllBoxes").trigger();
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&page, &press);
        QApplication::processEvents();
        key = key == Qt::Key_Right ? Qt::Key_Left : Qt::Key_Right;
    }
    if (desk.Rows().selectedItems().size() != kColumns * kRows)
        state.SkipWithError("not all boxes are selected");
}

BENCHMARK(BM_WindowFloor)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_OpenProfileOf1000Boxes)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SelectRowAmong1000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SelectAllAndNudge1000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tavrene::bench
