// Paints everything under samples/: blank forms, their profiles, filled scans and the truth about them.

#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/Files.h"
#include "forms/Forms.h"
#include "forms/ProfileText.h"
#include "forms/SampleSet.h"

namespace {

namespace samples = tavrene::samples;
namespace fs = std::filesystem;

void WriteText(const fs::path& path, const std::string& text) {
    std::ofstream file(path, std::ios::binary);
    file << text;
    if (!file.flush())
        throw std::runtime_error("The file " + path.string() + " cannot be written.");
}

void PaintBlank(const samples::PrintedForm& form, const fs::path& folder) {
    const std::string blank = form.Name + ".tif";
    samples::SaveImage(ToBilevel(TakeScan(form.Page, {})), tavrene::imaging::ImageFormat::Tiff,
                       (folder / "blanks" / blank).string());
    WriteText(folder / "profiles" / (form.Name + ".Tvp"), ProfileText(form, blank));
}

std::string Joined(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names)
        text += (text.empty() ? "" : ",") + name;
    return text;
}

/// Paints one scan; returns its line of the truth file.
std::string PaintScan(const samples::Sample& sample, const samples::PrintedForm& form,
                      const fs::path& folder) {
    const samples::Filling filling = FillIn(form, sample.Who);
    const fs::path path = folder / "scans" / sample.File;
    samples::SaveImage(PaintSample(sample, form, filling), sample.Picture.Format, path.string(),
                       sample.Picture.Quality);
    if (sample.Picture.KeptShare < 1)
        fs::resize_file(path, static_cast<std::uintmax_t>(static_cast<double>(fs::file_size(path)) *
                                                          sample.Picture.KeptShare));
    const bool read = sample.Outcome.empty();
    return sample.File + '\t' + (read ? form.Name : sample.Outcome) + '\t' +
           (read ? Joined(filling.CheckedBoxes) : "") + '\t' + sample.BeyondRules + '\n';
}

void PaintAll(const fs::path& folder) {
    for (const char* const part : {"profiles", "blanks", "scans"})
        fs::create_directories(folder / part);
    const std::vector<samples::PrintedForm> forms = {samples::PatientQuestionnaire(), samples::StaffSurvey(),
                                                     samples::DeliveryNote(), samples::BlankSheet()};
    PaintBlank(forms[0], folder);
    PaintBlank(forms[1], folder);
    std::string truth = "# image\toutcome\tchecked boxes\twhy it is beyond the rules\n";
    for (const samples::Sample& sample : samples::AllSamples()) {
        const auto form =
            std::find_if(forms.begin(), forms.end(),
                         [&sample](const samples::PrintedForm& each) { return each.Name == sample.Form; });
        truth += PaintScan(sample, *form, folder);
        std::printf("%s\n", sample.File.c_str());
    }
    WriteText(folder / "truth.tsv", truth);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs(
            "paint-samples FOLDER\nPaints the sample forms, profiles, scans and their truth into FOLDER.\n",
            stderr);
        return 2;
    }
    try {
        PaintAll(argv[1]);
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "%s\n", fault.what());
        return 1;
    }
    return 0;
}
