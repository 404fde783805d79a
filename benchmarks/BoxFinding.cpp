#include <benchmark/benchmark.h>

#include <map>

#include "Floor.h"
#include "FormPage.h"
#include "boxes/BoxAssembly.h"
#include "boxes/BoxLayouts.h"
#include "boxes/ProfileImagePipeline.h"
#include "boxes/second/SecondLook.h"
#include "imaging/PageReader.h"
#include "painter/ImageFiles.h"

namespace tavrene::bench {
namespace {

constexpr boxes::BoxSizes kSizes{16, 38, 16, 34};
constexpr std::size_t kBoxes = 260;

// An A4 page at 300 dots per inch with 260 boxes and so many lines of small print; returns its file.
std::string TextPage(int lines) {
    static std::map<int, std::string> files;
    std::string& file = files[lines];
    if (file.empty()) {
        samples::BoxSheet sheet(2480, 3508, 300, {.Thickness = 2}, 4711);
        sheet.AllowDiagonal();
        samples::PaintDensePage(sheet, {30, 30}, lines);
        file = ScratchFolder() + "/text" + std::to_string(lines) + ".tif";
        samples::SaveImage(samples::ToBilevel(sheet.Page()), imaging::ImageFormat::Tiff, file);
    }
    return file;
}

void BM_TextPageFloor(benchmark::State& state) {
    const std::string page = TextPage(static_cast<int>(state.range(0)));
    const std::string copy = ScratchFolder() + "/text-copy.tif";
    for (auto _ : state)
        LoadAndSave(page, copy);
}

// From the file to the sorted boxes. The counters tell what there was to do.
void BM_FindBoxes(benchmark::State& state) {
    const std::string page = TextPage(static_cast<int>(state.range(0)));
    app::DiskFiles files;
    Nobody person;
    const app::SystemClock clock;
    app::ActivityLog log(files, clock, person, ScratchFolder() + "/");
    const boxes::PipelineContext context{files, person, log, clock};
    std::size_t found = 0;
    for (auto _ : state)
        found = boxes::FindBoxesOnImage(page, "page", kSizes, boxes::ReachFor(kSizes), context)->Boxes.size();
    state.counters["boxes"] = static_cast<double>(found);
    if (found < kBoxes * 9 / 10)
        state.SkipWithError("the boxes were not found");
}

// The steps alone, on the unpacked page; range 0 is the number of lines, range 1 that of steps.
void BM_Steps(benchmark::State& state) {
    const std::string file = TextPage(static_cast<int>(state.range(0)));
    const app::DiskFiles files;
    const auto read = imaging::ReadPage(files, file, imaging::ImageFormat::Tiff);
    const imaging::WorkGrid& grid = std::get<imaging::Page>(read).grid;
    std::size_t segments = 0;
    std::size_t work = 0;
    for (auto _ : state) {
        boxes::BoxAnalysis analysis(grid.Clone(), kSizes, boxes::ReachFor(kSizes));
        for (int step = 0; step < state.range(1); ++step)
            boxes::PipelineSteps()[static_cast<std::size_t>(step)].Run(analysis);
        segments = analysis.Segments.size();
        if (state.range(1) == 11)
            boxes::IdentifyBoxes(analysis);
        work = analysis.Work.Spent();
    }
    state.counters["work"] = static_cast<double>(work);
    state.counters["segments"] = static_cast<double>(segments);
}

// From the file to the candidates, the first look that it begins with included.
void BM_SecondLook(benchmark::State& state) {
    const std::string file = TextPage(static_cast<int>(state.range(0)));
    const app::DiskFiles files;
    std::size_t candidates = 0;
    for (auto _ : state) {
        const auto read = imaging::ReadPage(files, file, imaging::ImageFormat::Tiff);
        const imaging::WorkGrid& grid = std::get<imaging::Page>(read).grid;
        candidates = boxes::LookAgain(grid, {}, kSizes, [](double) { return true; }).Candidates.size();
    }
    state.counters["candidates"] = static_cast<double>(candidates);
    if (candidates < kBoxes * 9 / 10)
        state.SkipWithError("the boxes were not found");
}

BENCHMARK(BM_TextPageFloor)->Arg(40)->Arg(80)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_FindBoxes)->Arg(40)->Arg(80)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SecondLook)->Arg(40)->Arg(80)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Steps)
    ->Args({40, 1})
    ->Args({40, 2})
    ->Args({40, 4})
    ->Args({40, 7})
    ->Args({40, 9})
    ->Args({40, 11})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tavrene::bench
