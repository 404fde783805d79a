#include <benchmark/benchmark.h>

#include <filesystem>

#include "Floor.h"
#include "FormPage.h"
#include "recognition/ResultDocument.h"
#include "results/CsvExport.h"
#include "results/XlsxExport.h"

namespace tavrene::bench {
namespace {

constexpr int kForms = 5000;

bool GoOn(std::size_t, std::size_t) {
    return true;
}

// A folder of results of 100 boxes each; every form is filled in another way.
std::string FolderOfResults() {
    std::string folder = ScratchFolder() + "/results/";
    std::filesystem::create_directory(folder);
    app::DiskFiles files;
    std::vector<recognition::MarkReading> readings;
    for (const profiles::PrintedBox& box : TheFormPage().profile.Boxes)
        readings.push_back({box.Name, {}, {}, 0, false});
    for (int k = 0; k < kForms; ++k) {
        for (std::size_t box = 0; box < readings.size(); ++box)
            readings[box].Checked = (box + static_cast<std::size_t>(k)) % 7 == 0;
        const std::string name = "page" + std::to_string(k);
        recognition::SaveResultDocument(files, folder + name + ".xml", {"Form", name + ".tif", "0", 100},
                                        readings);
    }
    return folder;
}

const std::string& TheResults() {
    static const std::string folder = FolderOfResults();
    return folder;
}

// From the documents to the written files.
void BM_ExportCsv(benchmark::State& state) {
    app::DiskFiles files;
    TheResults();
    for (auto _ : state) {
        const auto results = results::ReadResults(files, TheResults(), GoOn);
        results::ExportCsv(files, results->Tables, {}, ScratchFolder() + "/", {}, GoOn);
    }
}

void BM_ExportXlsx(benchmark::State& state) {
    app::DiskFiles files;
    TheResults();
    for (auto _ : state) {
        const auto results = results::ReadResults(files, TheResults(), GoOn);
        results::ExportXlsx(files, results->Tables, {}, ScratchFolder() + "/results.xlsx", GoOn);
    }
}

BENCHMARK(BM_ExportCsv)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ExportXlsx)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tavrene::bench
