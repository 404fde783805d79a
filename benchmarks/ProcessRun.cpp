#include "recognition/ProcessRun.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <vector>

#include "Floor.h"
#include "FormPage.h"

namespace tavrene::bench {
namespace {

void BM_Floor(benchmark::State& state) {
    const std::string copy = ScratchFolder() + "/copy.tif";
    for (auto _ : state)
        LoadAndSave(TheFormPage().file, copy);
}

// One page from the incoming folder to its result document, with one profile that matches at once and the
// given number that never do.
void ProcessPage(benchmark::State& state, const recognition::ReadingOptions& options) {
    Workplace work(options);
    std::vector<profiles::ProfileRecord>& profiles = work.profiles;
    profiles = {TheFormPage().profile};
    profiles.resize(1 + static_cast<std::size_t>(state.range(0)), TheFormPage().stranger);
    const std::string waiting = work.folders.ProcessIn + "page.tif";
    const auto place = [&] {
        std::filesystem::copy_file(TheFormPage().file, waiting,
                                   std::filesystem::copy_options::overwrite_existing);
        std::filesystem::remove(work.folders.ProcessOut + "page.xml");
    };
    // The specimen is read with the first page and known from then on.
    place();
    work.doubts.Begin();
    work.run.Run(profiles);
    for (auto _ : state) {
        state.PauseTiming();
        place();
        state.ResumeTiming();
        work.run.Run(profiles);
        if (!work.run.Opinions().unread.empty() || !work.run.Opinions().specimens.unreadable.empty())
            state.SkipWithError("the second opinion differs");
    }
    if (!work.files.FileExists(work.folders.ProcessOut + "page.xml"))
        state.SkipWithError("the page was not read");
}

void BM_ProcessPage(benchmark::State& state) {
    ProcessPage(state, {});
}

void BM_ProcessPageWithOpinion(benchmark::State& state) {
    ProcessPage(state, {.preciseAlignment = false, .secondOpinion = true});
}

void BM_ProcessPagePrecisely(benchmark::State& state) {
    ProcessPage(state, {.preciseAlignment = true, .secondOpinion = false});
}

BENCHMARK(BM_Floor)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ProcessPage)->Arg(0)->Arg(9)->Arg(19)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ProcessPageWithOpinion)->Arg(0)->Arg(9)->Arg(99)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ProcessPagePrecisely)->Arg(0)->Arg(9)->Arg(99)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tavrene::bench
