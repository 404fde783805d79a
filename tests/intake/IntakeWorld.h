#pragma once

#include <FreeImage.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "imaging/ImageDecoder.h"
#include "imaging/ScanPicture.h"
#include "intake/BringIn.h"
#include "painter/Canvas.h"
#include "painter/ImageFiles.h"
#include "painter/PdfFile.h"
#include "support/FaultyFiles.h"
#include "support/TempFolder.h"

namespace tavrene::test {

/// A working folder, and a folder of files to be brought in.
class IntakeWorld : public ::testing::Test {
  protected:
    IntakeWorld() { EXPECT_TRUE(app::CreateWorkingFolders(files_, work_.Path())); }

    static bool GoOn(const intake::Progress&) { return true; }

    intake::Report BringIn(const std::vector<intake::Source>& sources, const intake::Watch& watch = GoOn) {
        return intake::BringIn(files_, folders_, sources, watch);
    }
    /// Brings in one file and gives what became of it.
    intake::Outcome BringInFile(const std::string& name) { return BringIn({{From(name)}}).files.at(0); }

    std::string From(const std::string& name) const { return from_.File(name); }
    std::vector<std::string> In(const std::string& folder) const { return files_.List(folder, "*"); }

    /// A page unlike that of any other number.
    static samples::Canvas Page(int number) {
        samples::Canvas page(397, 561, 100);
        for (int k = 0; k < 20; ++k)
            page.DrawRect(10 + (number * 37 + k * 61) % 330, 10 + (number * 53 + k * 47) % 500, 30, 20, 2);
        page.FillRect(5, 5, 1 + number % 100, 4);
        return page;
    }

    /// The same with a grey patch.
    static samples::Canvas Shaded(int number) {
        samples::Canvas page = Page(number);
        page.FillRect(50, 50, 80, 80, 128);
        return page;
    }

    imaging::Bitmap Incoming(const std::string& name) const {
        const app::Bytes content = files_.Read(folders_.ProcessIn + name);
        return imaging::DecodeImage(content, imaging::FormatOfContent(content).value());
    }

    /// Every pixel of both as red, green and blue.
    static void ExpectSame(const imaging::Bitmap& got, const imaging::Bitmap& wanted,
                           const std::string& what) {
        ASSERT_TRUE(got) << what;
        ASSERT_EQ(got.Width(), wanted.Width()) << what;
        ASSERT_EQ(got.Height(), wanted.Height()) << what;
        const imaging::Bitmap a(FreeImage_ConvertTo24Bits(got.Get()));
        const imaging::Bitmap b(FreeImage_ConvertTo24Bits(wanted.Get()));
        int different = 0;
        const auto size = 3 * static_cast<std::size_t>(a.Width());
        for (int row = 0; row < a.Height(); ++row)
            different += std::ranges::equal(a.ScanLine(row).first(size), b.ScanLine(row).first(size)) ? 0 : 1;
        EXPECT_EQ(different, 0) << what << ": lines that differ";
    }

    static int DpiOf(const imaging::Bitmap& picture) {
        return static_cast<int>(std::lround(FreeImage_GetDotsPerMeterX(picture.Get()) * 0.0254));
    }

    TempFolder work_;
    TempFolder from_;
    FaultyFiles files_;
    app::WorkingFolders folders_ = app::PathsUnder(work_.Path());
};

}  // namespace tavrene::test
