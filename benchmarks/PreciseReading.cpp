#include "recognition/precise/PreciseReading.h"

#include <benchmark/benchmark.h>

#include <variant>
#include <vector>

#include "FormPage.h"
#include "app/Files.h"
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

// Deciding and reading a page that is in memory, as described.
void BM_ReadAsDescribed(benchmark::State& state) {
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

// Once a specimen and run, besides loading it.
void BM_TakePrint(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(recognition::TakePrint(ThePage(), TheFormPage().profile));
}

BENCHMARK(BM_ReadAsDescribed)->Arg(0)->Arg(9)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ReadPrecisely)->Arg(0)->Arg(9)->Arg(99)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_TakePrint)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tavrene::bench
