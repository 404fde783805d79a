#pragma once

#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace tavrene::review {

/// Why a person should look at a box.
enum class DoubtReason {
    Contradiction,  ///< Its ink says otherwise than its mark.
    OtherForm,      ///< A second look takes the page for another form, or for none.
    ReadOtherwise,  ///< A second look reads the box otherwise.
    NearThreshold,
    OverFull,     ///< Much fuller than the other marks: blacked out perhaps.
    InkBeside,    ///< Empty, with ink close outside.
    NoneOfGroup,  ///< Its question has no mark and takes one.
    ManyOfGroup   ///< Its question has more than the one mark that it takes.
};

/// The reason as a sentence.
std::string_view TextOf(DoubtReason reason);

/// What a page tells of one box.
struct BoxEvidence {
    bool isChecked = false;      ///< In the document.
    std::optional<double> fill;  ///< Percent of ink; none for a box that the page does not tell of.
    /// The least that it comes to a pixel or two aside, where the printed line stays out of it; none where it
    /// was not looked for.
    std::optional<double> least = std::nullopt;
    double full = 100;  ///< What a blackened box comes to.
    bool isOtherForm = false;
    bool isReadOtherwise = false;
    double inkBeside = 0;  ///< Percent of a strip close outside that is inked beyond what is printed there.
};

/// The boxes of one form that are in doubt, with the foremost reason.
using BoxDoubts = std::vector<std::optional<DoubtReason>>;

/// What is in doubt of a form's boxes; groups aside. `fillThreshold` in percent, as in reading.
BoxDoubts DoubtsOf(std::span<const BoxEvidence> boxes, double fillThreshold);

/// Where on a page empty boxes end and marks begin, in percent of ink.
struct FillBand {
    double low = 0;   ///< Emptier boxes are empty,
    double high = 0;  ///< fuller ones are marked,
    double mark = 0;  ///< The usual mark; a box that is black all over beside much lighter ones is too full.
};

/// The band of a page whose boxes have these fills. It follows them: a page of clean empty boxes makes a
/// faint mark conspicuous, and a page of bold marks a touch of the pen.
FillBand BandOf(std::span<const double> fills, double fillThreshold);

}  // namespace tavrene::review
