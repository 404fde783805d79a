#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <vector>

#include "Floor.h"
#include "FormPage.h"
#include "imaging/ImageDecoder.h"
#include "intake/BringIn.h"
#include "painter/PdfFile.h"

namespace tavrene::bench {
namespace {

constexpr int kPages = 50;

// A PDF as a scanner makes it: 300 dpi pages in Group 4.
std::string ScannedPdf() {
    std::string path = ScratchFolder() + "/batch.pdf";
    app::DiskFiles files;
    const imaging::Bitmap page =
        imaging::DecodeImage(files.Read(TheFormPage().file), imaging::ImageFormat::Tiff);
    const std::vector<samples::PdfPage> pages(kPages, samples::ScannedPage(page));
    files.Write(path, app::AsBytes(samples::PdfOf(pages)), app::Keep::AsScratch);
    return path;
}

const std::string& ThePdf() {
    static const std::string path = ScannedPdf();
    return path;
}

std::string EmptyFolder(const std::string& name) {
    std::string folder = ScratchFolder() + "/" + name;
    std::filesystem::remove_all(folder);
    std::filesystem::create_directory(folder);
    return folder;
}

// The floor: the PDF library's own program drawing the same pages, black and white, at the same resolution.
void BM_PdfFloor(benchmark::State& state) {
    const std::string command = "pdftoppm -r 300 -mono " + ThePdf() + " ";
    for (auto _ : state) {
        state.PauseTiming();
        const std::string folder = EmptyFolder("drawn");
        state.ResumeTiming();
        if (std::system((command + folder + "/page").c_str()) != 0)
            state.SkipWithError("there is no pdftoppm");
    }
}

void BM_BringInPdf(benchmark::State& state) {
    ThePdf();
    for (auto _ : state) {
        state.PauseTiming();
        const std::string folder = EmptyFolder("intake");
        app::DiskFiles files;
        app::CreateWorkingFolders(files, folder);
        const std::vector<intake::Source> sources = {{ThePdf()}};
        state.ResumeTiming();
        const intake::Report report = intake::BringIn(files, app::PathsUnder(folder), sources,
                                                      [](const intake::Progress&) { return true; });
        if (report.files.at(0).images.size() != kPages)
            state.SkipWithError("pages are missing");
    }
}

// Real time, since the floor is another process.
BENCHMARK(BM_PdfFloor)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);
BENCHMARK(BM_BringInPdf)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);

}  // namespace
}  // namespace tavrene::bench
