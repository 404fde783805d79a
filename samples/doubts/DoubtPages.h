#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "imaging/PageReader.h"
#include "reading/ReadingPage.h"

namespace tavrene::samples {

/// How the people of a class of forms mark boxes.
enum class Hand { Clear, Dots, Faint, Sloppy, Touches, Corrections, Rings, Everything };

/// A kind of filled forms that doubts are judged on.
struct DoubtClass {
    std::string Name;
    Hand Marks = Hand::Clear;
};

std::span<const DoubtClass> DoubtClasses();

/// A filled form as scanned, its profile, and of each box whether a person takes it for marked.
struct DoubtPage {
    KnownForm Form;
    imaging::Page Scan;
    std::vector<bool> Marked;
};

/// The same class and seed always give the same page.
DoubtPage PaintDoubtPage(const DoubtClass& kind, std::uint64_t seed);

}  // namespace tavrene::samples
