#include "support/TestForm.h"

#include <algorithm>
#include <sstream>
#include <utility>

#include "painter/ImageFiles.h"

namespace tavrene::test {
namespace {

std::int16_t Ordinate(int value) {
    return static_cast<std::int16_t>(value);
}

}  // namespace

TestForm TestForm::Grid(int columns, int rows, int size, int firstX, int firstY) {
    TestForm form;
    for (int k = 0; k < columns * rows; ++k) {
        const int left = firstX + k % columns * (size + 30);
        const int top = firstY + k / columns * (size + 30);
        const profiles::OmrBox box = {"Q" + std::to_string(k + 1), Ordinate(left), Ordinate(top),
                                      Ordinate(left + size), Ordinate(top + size)};
        form.boxes.push_back(box);
    }
    return form;
}

samples::Canvas TestForm::Paint(const Filling& filling) const {
    samples::Canvas canvas(width, height, dpi);
    int number = 0;
    for (const profiles::OmrBox& box : boxes) {
        ++number;
        if (filling.missing.contains(number))
            continue;
        // The ordinate T stands for scan line T - 1 counted from the top.
        const int across = box.R - box.L + 1;
        const int down = box.B - box.T + 1;
        int x = box.L + filling.dx;
        int y = box.T - 1 - filling.dy;
        if (filling.upsideDown) {
            x = width - x - across;
            y = height - y - down;
        }
        canvas.DrawRect(x, y, across, down, 1);
        if (filling.checked.contains(number))
            canvas.FillRect(x + 4, y + 4, across - 8, down - 8);
    }
    return canvas;
}

imaging::Page TestForm::PageOf(const Filling& filling) const {
    imaging::Page page;
    page.bitmap = samples::ToBilevel(Paint(filling));
    page.DPI_X = page.DPI_Y = Ordinate(dpi);
    page.grid = imaging::WorkGrid(width, page.bitmap.Pitch() * 8, height);
    for (int row = 0; row < height; ++row)
        page.grid.UnpackScanLine(row, page.bitmap.ScanLine(row));
    return page;
}

void TestForm::SaveScan(const std::string& path, const Filling& filling) const {
    samples::SaveImage(samples::ToBilevel(Paint(filling)), imaging::ImageFormat::Tiff, path);
}

std::string TestForm::ProfileText(const std::string& name, bool active) const {
    std::ostringstream text;
    text << "<Tavrene Profile=\"" << name << "\" Image=\"" << name << ".tif\" DPI_X=\"" << dpi
         << "\" DPI_Y=\"" << dpi << "\" Active=\"" << (active ? 1 : 0) << "\"><OMRs Count=\"" << boxes.size()
         << "\">";
    int id = 0;
    for (const profiles::OmrBox& box : boxes)
        text << "<OMR ID=\"" << ++id << "\" L=\"" << box.L << "\" T=\"" << box.T << "\" R=\"" << box.R
             << "\" B=\"" << box.B << "\" Name=\"" << box.Name << "\"/>";
    text << "</OMRs></Tavrene>";
    return text.str();
}

profiles::ProfileRecord TestForm::Record(const std::string& name, bool active) const {
    profiles::ProfileRecord record;
    record.Name = name;
    record.Active = active;
    record.DPI_X = record.DPI_Y = Ordinate(dpi);
    for (const profiles::OmrBox& box : boxes)
        record.Boxes.push_back(
            {box.Name, box.L, box.R, box.B, box.T, Ordinate(2 * ((box.R - box.L) + (box.B - box.T)) - 4)});
    return record;
}

}  // namespace tavrene::test
