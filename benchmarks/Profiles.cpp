#include <benchmark/benchmark.h>

#include <filesystem>
#include <stdexcept>

#include "Floor.h"
#include "FormPage.h"
#include "profiles/ProfileSession.h"
#include "recognition/ProfileAdvice.h"

namespace tavrene::bench {
namespace {

class NobodysStrip final : public profiles::ThumbnailStrip {
  public:
    void ShowThumbnails(std::span<const profiles::StripThumbnail>) override {}
    void SelectThumbnail(int) override {}
};

// A folder of profiles, each with a specimen file of its own, and the store over it.
struct Desk {
    explicit Desk(int count) {
        for (int number = 0; number < count; ++number)
            AddProfile("Form " + std::to_string(1000 + number));
        session.FillStrip();
        session.Open(session.PathOf((count + 1) / 2));
        if (!session.IsOpen())
            throw std::runtime_error("no profile could be opened");
    }
    void AddProfile(const std::string& name) {
        const std::string image = work.folders.ProfileImages + name + ".tif";
        std::filesystem::copy_file(TheFormPage().file, image);
        const std::vector<profiles::OmrBox>& boxes = TheFormPage().boxes;
        const auto found = static_cast<std::int16_t>(boxes.size());
        profiles::SaveProfileDocument(
            work.files, work.folders.Profiles + name + ".Tvp",
            profiles::CreateProfileDocument({name, image, 300, 300, true}, ComposeOmrs(boxes, found)));
    }

    Workplace work;
    NobodysStrip strip;
    std::vector<profiles::ProfileRecord> records;
    profiles::ProfileSession session{
        {work.files, work.nobody, work.nobody, work.log, work.clock, work.folders,
         [](const auto& profile) { return recognition::AdviseOn(profile); }},
        records,
        {work.nobody, work.nobody, strip}};
};

constexpr int kProfiles = 500;

// Made once, as making five hundred thumbnails takes its time.
Desk& FullDesk() {
    static Desk desk(kProfiles);
    return desk;
}

// An edit is saved and the strip rebuilt; the specimens are as they were.
void BM_SaveAmong500Profiles(benchmark::State& state) {
    Desk& desk = FullDesk();
    for (auto _ : state) {
        desk.session.Editor().RowRenamed(1, desk.session.Profile().BoxList[0].Name + "x");
        if (!desk.session.Save())
            state.SkipWithError("nothing was saved");
    }
}

// The same after the open profile's specimen was scanned anew, so that one page is made and the file written.
void BM_SaveNewSpecimenAmong500(benchmark::State& state) {
    Desk& desk = FullDesk();
    for (auto _ : state) {
        state.PauseTiming();
        std::filesystem::remove(desk.session.Profile().Image);
        std::filesystem::copy_file(TheFormPage().file, desk.session.Profile().Image);
        state.ResumeTiming();
        if (!desk.session.Save())
            state.SkipWithError("nothing was saved");
    }
}

BENCHMARK(BM_SaveAmong500Profiles)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SaveNewSpecimenAmong500)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tavrene::bench
