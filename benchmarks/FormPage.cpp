#include "FormPage.h"

#include "Floor.h"
#include "painter/Canvas.h"
#include "painter/ImageFiles.h"
#include "painter/Typeface.h"

namespace tavrene::bench {
namespace {

constexpr int kDpi = 300;
constexpr int kColumns = 4;
constexpr int kRows = 25;
constexpr int kBoxSize = 36;

profiles::OmrBox BoxAt(int column, int row, int size) {
    const int left = 180 + column * 550;
    const int top = 420 + row * 118;
    profiles::OmrBox box;
    box.Name = "Q" + std::to_string(row + 1) + "." + std::to_string(column + 1);
    box.L = static_cast<std::int16_t>(left);
    box.R = static_cast<std::int16_t>(left + size);
    box.T = static_cast<std::int16_t>(top);
    box.B = static_cast<std::int16_t>(top + size);
    return box;
}

std::vector<profiles::OmrBox> BoxesOf(int boxSize) {
    std::vector<profiles::OmrBox> boxes;
    for (int row = 0; row < kRows; ++row) {
        for (int column = 0; column < kColumns; ++column)
            boxes.push_back(BoxAt(column, row, boxSize));
    }
    return boxes;
}

profiles::ProfileRecord ProfileOf(const std::string& name, const std::vector<profiles::OmrBox>& boxes) {
    profiles::ProfileRecord profile;
    profile.Name = name;
    profile.Active = true;
    profile.Image = ScratchFolder() + "/" + name + "-blank.tif";
    profile.DPI_X = profile.DPI_Y = kDpi;
    for (const profiles::OmrBox& box : boxes)
        profile.Boxes.push_back(profiles::PrintedBoxOf(box));
    return profile;
}

void PaintText(samples::Canvas& canvas) {
    using samples::Typeface;
    Typeface bold(Typeface::Style::SansBold);
    Typeface plain(Typeface::Style::Sans);
    bold.DrawText(canvas, {180, 230}, 20, "Questionnaire for all who were with us");
    plain.DrawText(canvas, {180, 330}, 10,
                   "Please tick one box in every line. Leave a line empty if it is not for you.");
    for (int row = 0; row < kRows; ++row) {
        plain.DrawText(canvas, {180, 400.0 + row * 118}, 9,
                       "How did you like the part that is told of on this line?");
        for (int column = 0; column < kColumns; ++column)
            plain.DrawText(canvas, {230.0 + column * 550, 450.0 + row * 118}, 9, "more or less agreed");
    }
}

void Save(const samples::Canvas& canvas, const std::string& file) {
    samples::SaveImage(samples::ToBilevel(canvas), imaging::ImageFormat::Tiff, file);
}

FormPage Painted() {
    FormPage page;
    page.boxes = BoxesOf(kBoxSize);
    page.profile = ProfileOf("Form", page.boxes);
    page.stranger = ProfileOf("Stranger", BoxesOf(2 * kBoxSize));
    samples::Canvas canvas(2480, 3508, kDpi);
    PaintText(canvas);
    for (const profiles::OmrBox& box : page.boxes)
        canvas.DrawRect(box.L - 1, box.T - 2, kBoxSize + 3, kBoxSize + 3, 3);
    Save(canvas, page.profile.Image);
    for (std::size_t k = 0; k < page.boxes.size(); k += 3) {
        const profiles::OmrBox& box = page.boxes[k];
        canvas.DrawLine({box.L + 8.0, box.T + 8.0}, {box.R - 8.0, box.B - 8.0}, 4);
    }
    page.file = ScratchFolder() + "/page.tif";
    Save(canvas, page.file);
    return page;
}

}  // namespace

const FormPage& TheFormPage() {
    static const FormPage page = Painted();
    return page;
}

Workplace::Workplace(recognition::ReadingOptions options)
    : folders(app::PathsUnder(ScratchFolder())),
      log(files, clock, nobody, folders.Log),
      reading(options),
      reader(files, reading),
      doubts(files, settings, folders, profiles, &reader),
      run({.files = files,
           .log = log,
           .person = nobody,
           .clock = clock,
           .page = nobody,
           .rows = nobody,
           .precise = &reader,
           .look = doubts.Look()},
          settings, folders) {
    settings.FillThreshold = app::kDefaultFillThreshold;
    app::CreateWorkingFolders(files, ScratchFolder());
}

}  // namespace tavrene::bench
