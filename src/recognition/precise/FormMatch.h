#pragma once

#include <optional>
#include <span>
#include <vector>

#include "recognition/FormScale.h"
#include "recognition/precise/Alignment.h"
#include "recognition/precise/CellPage.h"
#include "recognition/precise/PreciseReading.h"

namespace tavrene::recognition::precise {

/// One profile laid on one page.
struct FormMatch {
    int profile = -1;
    bool turned = false;
    bool accepted = false;
    double print = 0;  ///< How far the print of its specimen agrees, 1 is wholly; 0 without one.
    Alignment alignment;
    std::vector<SoughtBox> boxes;
    CellPage* page = nullptr;
};

/// Finds the profile that a page is a form of.
class FormMatcher {
  public:
    /// Everything must outlive this.
    FormMatcher(const imaging::Page& page, CellPages& cells,
                std::span<const profiles::ProfileRecord> profiles, const PrintSource& prints)
        : page_(page), cells_(cells), profiles_(profiles), prints_(prints) {}

    /// The best match, upside down only when there is none upright; the nearest one, not accepted, when there
    /// is none at all.
    FormMatch Match();

  private:
    FormMatch MatchOneWay(bool turned);
    void Lay(std::size_t index, bool turned, std::vector<FormMatch>& matches);
    void Judge(FormMatch& match, double bestPrint);
    void JudgeByPrint(FormMatch& match, const SpecimenPrint& print, double bestPrint);

    const imaging::Page& page_;
    CellPages& cells_;
    std::span<const profiles::ProfileRecord> profiles_;
    const PrintSource& prints_;
};

/// A place of the profile (pixels of its specimen, page frame) on the page as the profile alone has it:
/// pixels, grid frame.
CellPoint NominalPlace(const imaging::Page& page, const FormScale& scale, double x, double y, bool turned);

/// The same of the middle of a box.
CellPoint NominalPlace(const imaging::Page& page, const FormScale& scale, const profiles::PrintedBox& box,
                       bool turned);

/// The page's resolution; where it tells none, that of the profile.
double DpiOf(const imaging::Page& page, const profiles::ProfileRecord& profile);

}  // namespace tavrene::recognition::precise
