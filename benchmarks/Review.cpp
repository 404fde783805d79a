#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>
#include <vector>

#include "Floor.h"
#include "FormPage.h"
#include "imaging/ImageLoader.h"
#include "imaging/ScreenCopy.h"
#include "review/FormReview.h"

namespace tavrene::bench {
namespace {

namespace fs = std::filesystem;

// A screen that nobody looks at, but that decodes what it is to show, as the window does.
class ReviewScreen final : public imaging::PageView,
                           public review::ReviewLines,
                           public review::ProfileChoice,
                           public review::ReviewRows,
                           public review::ReviewRects {
  public:
    explicit ReviewScreen(const app::Files& files) : files_(files) {}

    void ShowFile(const std::string& path) override {
        shown_ = imaging::CopyForScreen(
            imaging::DecodeImage(files_.Read(path), *imaging::FormatOfExtension(path)));
    }
    void Clear() override { shown_ = {}; }
    double Zoom() const override { return 100; }
    void SetZoom(double) override {}
    void Refresh() override {}
    void ShowLines(std::span<const review::ReviewLine>) override {}
    void ChangeLine(std::size_t, const review::ReviewLine&) override {}
    void RemoveLine(std::size_t) override {}
    void SelectLine(std::size_t) override {}
    void ShowProfiles(std::span<const std::string>) override {}
    void SetChoice(std::string_view) override {}
    void AddInkColumn() override {}
    void SetInk(int, std::string_view, bool) override {}
    void SetVal(int, std::string_view) override {}
    void SelectRow(int) override {}
    void ChangeRects(int, imaging::RectStyle) override {}
    void EmphasiseRects(int) override {}

  private:
    const app::Files& files_;
    imaging::Bitmap shown_;
};

// A folder of processed forms of 100 boxes each; all of them are the same page.
struct ReviewPlace {
    explicit ReviewPlace(int forms) {
        const std::string folder = ScratchFolder() + "/review-" + std::to_string(forms);
        folders = app::PathsUnder(folder);
        fs::create_directory(folder);
        app::CreateWorkingFolders(work.files, folder);
        fs::copy_file(TheFormPage().file, work.folders.ProcessIn + "page.tif",
                      fs::copy_options::overwrite_existing);
        work.run.Run(profiles);
        for (int k = 0; k < forms; ++k) {
            const std::string name = folders.ProcessOut + "page" + std::to_string(k);
            fs::copy_file(work.folders.ProcessOut + "page.xml", name + ".xml");
            fs::create_hard_link(TheFormPage().file, name + ".tif");
            std::string text = Text(name + ".xml");
            const std::size_t at = text.find("page.tif");
            text.replace(at, 8, "page" + std::to_string(k) + ".tif");
            work.files.Write(name + ".xml", app::AsBytes(text), app::Keep::AsScratch);
        }
    }
    ~ReviewPlace() { fs::remove_all(fs::path(folders.ProcessOut).parent_path().parent_path()); }
    ReviewPlace(const ReviewPlace&) = delete;
    ReviewPlace& operator=(const ReviewPlace&) = delete;

    std::string Text(const std::string& path) const {
        const app::Bytes content = work.files.Read(path);
        return {reinterpret_cast<const char*>(content.data()), content.size()};
    }

    Workplace work;
    app::WorkingFolders folders;
    std::vector<profiles::ProfileRecord> profiles = {TheFormPage().profile};
    ReviewScreen screen{work.files};
    review::ReviewDoors doors{work.files, work.log,    work.nobody, screen, work.nobody,
                              screen,     work.nobody, screen,      screen, screen};
};

void BM_FillReviewList(benchmark::State& state) {
    ReviewPlace place(static_cast<int>(state.range(0)));
    review::ReviewList list(place.doors, place.folders);
    for (auto _ : state)
        list.Fill(place.profiles);
    if (list.Lines().size() != static_cast<std::size_t>(state.range(0)))
        state.SkipWithError("forms are missing from the list");
}

// One form of many: load, measure, draw and show.
void BM_OpenForm(benchmark::State& state) {
    ReviewPlace place(static_cast<int>(state.range(0)));
    review::ReviewList list(place.doors, place.folders);
    review::FormReview form(place.doors, place.work.settings, place.folders, place.profiles, list);
    list.Fill(place.profiles);
    const std::string document = list.Lines().back().Document;
    for (auto _ : state)
        form.Open(document);
    if (form.Form() == nullptr || form.Form()->Marks.size() != place.profiles[0].Boxes.size())
        state.SkipWithError("the form was not opened");
}

BENCHMARK(BM_FillReviewList)->Arg(5)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_OpenForm)->Arg(5)->Arg(5000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tavrene::bench
