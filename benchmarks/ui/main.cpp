#include <benchmark/benchmark.h>

#include <QApplication>
#include <QListView>
#include <QTreeWidget>
#include <filesystem>
#include <stdexcept>

#include "Floor.h"
#include "FormPage.h"
#include "profiles/ProfileDocument.h"
#include "profiles/XmlFile.h"
#include "ui/Composition.h"
#include "ui/QtText.h"

namespace tavrene::bench {
namespace {

constexpr int kColumns = 25;
constexpr int kRows = 40;

// A profile of 1,000 boxes on the form page.
void AddProfile(const Workplace& work) {
    const std::string image = work.folders.ProfileImages + "Form.tif";
    std::filesystem::copy_file(TheFormPage().file, image);
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
    app::DiskFiles files;
    profiles::SaveProfileDocument(
        files, work.folders.Profiles + "Form.Tvp",
        profiles::CreateProfileDocument({"Form", image, 300, 300, true},
                                        profiles::ComposeOmrs(boxes, kColumns * kRows)));
}

template <typename Control>
Control& Find(const QWidget& window, const char* name) {
    auto* const control = window.findChild<Control*>(name);
    if (control == nullptr)
        throw std::runtime_error(std::string("no control ") + name);
    return *control;
}

// The real window with that profile.
struct Desk {
    Desk() : store(ui::ToQt(ScratchFolder())) {
        AddProfile(work);
        app::Settings settings;
        settings.WorkDir = ScratchFolder();
        window = std::make_unique<ui::MainWindow>(settings, ui::WindowDoors{store, work.files, work.clock});
        window->Load();
        window->resize(1280, 900);
        window->show();
        OpenProfile();
        if (Rows().topLevelItemCount() != kColumns * kRows)
            throw std::runtime_error("the profile is not open");
    }

    void OpenProfile() {
        auto& strip = Find<QListView>(*window, "ImgThumbnail1");
        strip.clicked(strip.model()->index(0, 0));
        QApplication::processEvents();
    }
    QTreeWidget& Rows() const { return Find<QTreeWidget>(*window, "lvwSettings"); }

    Workplace work;
    ui::QtSettingsStore store;
    std::unique_ptr<ui::MainWindow> window;
};

Desk& TheDesk() {
    static Desk desk;
    return desk;
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

BENCHMARK(BM_WindowFloor)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_OpenProfileOf1000Boxes)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SelectRowAmong1000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tavrene::bench

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    tavrene::ui::PrepareApplication();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
