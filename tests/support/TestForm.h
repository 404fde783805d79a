#pragma once

#include <set>
#include <string>
#include <vector>

#include "imaging/PageReader.h"
#include "painter/Canvas.h"
#include "profiles/ProfileRecord.h"

namespace tavrene::test {

/// A small form painted in code: box outlines of one pixel exactly where the profile says they are.
struct TestForm {
    int width = 600;
    int height = 500;
    int dpi = 200;
    std::vector<profiles::OmrBox> boxes;  ///< As in a document: `T` < `B`.

    /// `columns` x `rows` boxes of `size` pixels, named "Q1", "Q2", ... row by row.
    static TestForm Grid(int columns, int rows, int size = 24, int firstX = 60, int firstY = 70);

    struct Filling {
        std::set<int> checked = {};  ///< 1-based box numbers whose interior is filled.
        int dx = 0;                  ///< How far the print lies off its place: right,
        int dy = 0;                  ///< and up.
        std::set<int> missing = {};  ///< Boxes that are not printed at all.
        bool upsideDown = false;     ///< All of it is turned by half a turn at last.
    };
    samples::Canvas Paint(const Filling& filling) const;

    /// The binarised page in memory.
    imaging::Page PageOf(const Filling& filling) const;

    /// A one-bit TIFF scan.
    void SaveScan(const std::string& path, const Filling& filling) const;

    /// The profile document; its text is written by the test, not by the program.
    std::string ProfileText(const std::string& name, bool active = true) const;

    /// The profile as recognition loads it.
    profiles::ProfileRecord Record(const std::string& name, bool active = true) const;
};

}  // namespace tavrene::test
