#include "recognition/precise/PreciseReading.h"

#include <benchmark/benchmark.h>

#include <variant>
#include <vector>

#include "Floor.h"
#include "FormPage.h"
#include "app/Files.h"
#include "painter/Canvas.h"
#include "painter/ImageFiles.h"
#include "recognition/Classification.h"

namespace tavrene::bench {
namespace {

constexpr std::int16_t kThreshold = 8;

const imaging::Page& ThePage() {
    static const auto read =
        imaging::ReadPage(app::DiskFiles(), TheFormPage().file, imaging::ImageFormat::Tiff);
    return std::get<imaging::Page>(read);
}

// The form's profile behind others with boxes of the same size, all elsewhere: candidates abound, and none
// fits.
std::vector<profiles::ProfileRecord> AmongStrangers(int strangers) {
    std::vector<profiles::ProfileRecord> profiles;
    for (int k = 0; k < strangers; ++k) {
        profiles::ProfileRecord stranger = TheFormPage().profile;
        for (std::size_t box = 0; box < stranger.Boxes.size(); ++box) {
            profiles::PrintedBox& moved = stranger.Boxes[box];
            const int dx = static_cast<int>((box * 37 + static_cast<std::size_t>(k) * 101) % 400);
            const int dy = static_cast<int>((box * 53 + static_cast<std::size_t>(k) * 67) % 90);
            moved.L = static_cast<std::int16_t>(moved.L + dx);
            moved.R = static_cast<std::int16_t>(moved.R + dx);
            moved.lower = static_cast<std::int16_t>(moved.lower + dy);
            moved.upper = static_cast<std::int16_t>(moved.upper + dy);
        }
        profiles.push_back(stranger);
    }
    profiles.push_back(TheFormPage().profile);
    return profiles;
}

// Deciding and reading a page that is in memory, by the plain reading.
void BM_ReadPlainly(benchmark::State& state) {
    const auto profiles = AmongStrangers(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        recognition::Classification found = recognition::ClassifyImage(ThePage(), profiles);
        const auto winner = static_cast<std::size_t>(found.winner);
        recognition::SpreadShifts(profiles[winner], found.matches[winner].shifts);
        benchmark::DoNotOptimize(
            recognition::ReadMarks(ThePage(), profiles[winner], found.matches[winner].shifts, kThreshold));
    }
}

// The same by precise alignment; the prints of the specimens are known.
void BM_ReadPrecisely(benchmark::State& state) {
    const auto profiles = AmongStrangers(static_cast<int>(state.range(0)));
    const recognition::SpecimenPrint print = recognition::TakePrint(ThePage(), profiles.back());
    const auto prints = [&print](std::size_t) { return &print; };
    for (auto _ : state) {
        const auto reading = recognition::ReadPrecisely(ThePage(), profiles, prints, kThreshold);
        if (reading.winner != static_cast<int>(profiles.size()) - 1)
            state.SkipWithError("the page was not recognised");
    }
}

// A page ruled like graph paper, with squares of the boxes' size and with as small ones as can be taken for
// their corners: every square is a candidate, and none is the form.
void BM_RefuseRuledPaper(benchmark::State& state) {
    samples::Canvas canvas(2480, 3508, 300);
    for (int row = 60; row < 3450; row += static_cast<int>(state.range(0)))
        canvas.FillRect(60, row, 2360, 3);
    for (int column = 60; column < 2430; column += static_cast<int>(state.range(0)))
        canvas.FillRect(column, 60, 3, 3390);
    const std::string file = ScratchFolder() + "/ruled.tif";
    samples::SaveImage(samples::ToBilevel(canvas), imaging::ImageFormat::Tiff, file);
    const auto read = imaging::ReadPage(app::DiskFiles(), file, imaging::ImageFormat::Tiff);
    const auto& page = std::get<imaging::Page>(read);
    const auto profiles = AmongStrangers(0);
    const recognition::SpecimenPrint print = recognition::TakePrint(ThePage(), profiles.back());
    for (auto _ : state) {
        if (recognition::ReadPrecisely(
                page, profiles, [&print](std::size_t) { return &print; }, kThreshold)
                .winner >= 0)
            state.SkipWithError("ruled paper was taken for a form");
    }
}

// Once a specimen and run, besides loading it.
void BM_TakePrint(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(recognition::TakePrint(ThePage(), TheFormPage().profile));
}

BENCHMARK(BM_ReadPlainly)->Arg(0)->Arg(9)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ReadPrecisely)->Arg(0)->Arg(9)->Arg(99)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_RefuseRuledPaper)->Arg(39)->Arg(18)->Arg(13)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_TakePrint)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tavrene::bench
