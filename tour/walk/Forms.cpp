#include "tour/walk/Forms.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

#include "painter/ImageFiles.h"
#include "profiles/ProfileDocument.h"
#include "reading/FormDesign.h"
#include "recognition/ResultDocument.h"

namespace tavrene::tour {
namespace {

using namespace samples;

constexpr int kForms = 49;
constexpr int kDpi = 200;
constexpr double kMarked = 0.25;  // share of the boxes
constexpr Pen kPen{4, kBlack, 0};

// The forms with boxes that are misread, and how many each has.
constexpr std::array<std::pair<int, int>, 7> kMisread = {
    {{3, 1}, {8, 2}, {15, 1}, {22, 2}, {30, 1}, {37, 2}, {46, 1}}};

int MisreadIn(int form) {
    const auto found = std::ranges::find(kMisread, form, &std::pair<int, int>::first);
    return found == kMisread.end() ? 0 : found->second;
}

std::string NameOf(int form) {
    std::array<char, 16> name{};
    std::snprintf(name.data(), name.size(), "form%02d", form);
    return name.data();
}

void Save(const Canvas& page, const std::string& path) {
    SaveImage(ToBilevel(page), imaging::ImageFormat::Tiff, path);
}

void SaveProfile(const BlankForm& form, app::Files& files, const app::WorkingFolders& folders) {
    std::vector<profiles::OmrBox> boxes;
    for (const profiles::PrintedBox& box : form.Profile.Boxes)
        boxes.push_back({box.Name, box.L, box.upper, box.R, box.lower});
    const std::string specimen = folders.ProfileImages + "Walk.tif";
    Save(form.Page, specimen);
    profiles::SaveProfileDocument(files, folders.Profiles + "Walk.Tvp",
                                  profiles::CreateProfileDocument(
                                      {"Walk", specimen, kDpi, kDpi, true},
                                      profiles::ComposeOmrs(boxes, static_cast<std::int16_t>(boxes.size()))));
}

// A dot of a little less than the threshold's ink where the person meant a mark, of a little more where not.
bool PaintMisread(Canvas& page, const MarkArea& area, bool isMeant) {
    const double side = std::sqrt((isMeant ? 0.05 : 0.075) * area.width * area.height);
    const auto pixels = static_cast<int>(std::lround(side));
    page.FillRect(static_cast<int>(area.x + (area.width - side) / 2),
                  static_cast<int>(area.y + (area.height - side) / 2), pixels, pixels);
    return isMeant;
}

std::vector<std::string> PaintMarks(BlankForm& form, Random& dice, int misread) {
    std::vector<std::string> marked;
    for (std::size_t k = 0; k < form.Areas.size(); ++k) {
        // The misread boxes stand apart, a third of the way down and two.
        const bool isMisread =
            (misread > 0 && k == form.Areas.size() / 3) || (misread > 1 && k == form.Areas.size() * 2 / 3);
        bool isMarked = dice.Chance(kMarked);
        if (isMisread)
            isMarked = PaintMisread(form.Page, form.Areas[k], isMarked || dice.Chance(0.3));
        else if (isMarked)
            DrawCross(form.Page, dice, form.Areas[k], kPen);
        if (isMarked)
            marked.push_back(form.Profile.Boxes[k].Name);
    }
    return marked;
}

std::vector<std::string> Checked(const recognition::ResultDocument& document) {
    std::vector<std::string> names;
    for (const recognition::ResultMark& mark : document.Marks())
        if (mark.Checked)
            names.push_back(mark.Name);
    return names;
}

}  // namespace

FormTruth PaintForms(app::Files& files, const app::WorkingFolders& folders) {
    const FormDesign design{FormKind::Survey, 4713};
    SaveProfile(PaintBlank(design, kDpi), files, folders);
    Random dice(20);
    FormTruth truth;
    for (int form = 1; form <= kForms; ++form) {
        BlankForm page = PaintBlank(design, kDpi);
        truth[NameOf(form)] = PaintMarks(page, dice, MisreadIn(form));
        Save(page.Page, folders.ProcessIn + NameOf(form) + ".tif");
    }
    return truth;
}

std::vector<std::string> DifferencesFrom(const FormTruth& truth, const app::Files& files,
                                         const std::string& folder, bool reviewed) {
    std::vector<std::string> differences;
    for (const auto& [form, meant] : truth) {
        if (!files.FileExists(folder + form + ".xml")) {
            differences.push_back(form + ": no document");
            continue;
        }
        const auto document = recognition::ResultDocument::Load(files, folder + form + ".xml");
        if (reviewed && !document.IsReviewed())
            differences.push_back(form + ": not reviewed");
        std::vector<std::string> read = Checked(document);
        std::vector<std::string> sorted = meant;
        std::ranges::sort(read);
        std::ranges::sort(sorted);
        std::vector<std::string> boxes;
        std::ranges::set_symmetric_difference(read, sorted, std::back_inserter(boxes));
        for (const std::string& box : boxes)
            differences.push_back(form + ": " + box);
    }
    return differences;
}

}  // namespace tavrene::tour
