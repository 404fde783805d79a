#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "recognition/ReadingOptions.h"
#include "recognition/precise/PreciseReading.h"
#include "recognition/precise/SecondOpinion.h"
#include "recognition/precise/SpecimenPrints.h"

namespace tavrene::recognition {

/// Precise alignment as runs and review use it: with the specimens of the loaded profiles, and as far as the
/// person wants it.
class PreciseReader {
  public:
    /// Both must outlive this; the options are asked anew for every page.
    PreciseReader(const app::Files& files, const ReadingOptions& options)
        : options_(options), prints_(files) {}

    bool Reads() const { return options_.preciseAlignment; }
    bool GivesSecondOpinion() const { return !options_.preciseAlignment && options_.secondOpinion; }

    PreciseReading Read(const imaging::Page& page, std::span<const profiles::ProfileRecord> profiles,
                        std::int16_t fillThreshold);

    /// The form of one profile, active or not.
    PreciseReading ReadAs(const imaging::Page& page, const profiles::ProfileRecord& profile,
                          std::int16_t fillThreshold);

    /// What it says to a reading of `page` by the plain reading, as in `CompareReadings`. Where it
    /// knows no form, it does not doubt a profile without a specimen to know it by.
    SecondOpinion OpinionOn(const imaging::Page& page, std::span<const profiles::ProfileRecord> profiles,
                            int winner, std::span<const MarkReading> marks, std::int16_t fillThreshold);

    /// The same on a form that was taken for one profile, active or not.
    SecondOpinion OpinionOn(const imaging::Page& page, const profiles::ProfileRecord& profile,
                            std::span<const MarkReading> marks, std::int16_t fillThreshold);

    /// What is printed on a profile's specimen; null where that is not known, or the boxes do not lie on it.
    /// Holds as long as this object, but not beyond a trial.
    const SpecimenPrint* PrintOf(const profiles::ProfileRecord& profile);

    /// The boxes of a profile at known shifts, one entry a box; the others take their place from these.
    /// Nothing when none is known.
    std::vector<MarkReading> ReadAt(const imaging::Page& page, const profiles::ProfileRecord& profile,
                                    std::span<const std::optional<BoxShift>> known,
                                    std::int16_t fillThreshold);

    /// What was wrong with the specimens that were needed since the last call.
    SpecimenFaults TakeFaults() { return prints_.TakeFaults(); }

    /// After readings that nobody is told of, by profiles as they are being made: nothing of them stays. Not
    /// while anything is read.
    void EndTrial() { prints_.EndTrial(); }

  private:
    const ReadingOptions& options_;
    SpecimenPrints prints_;
};

/// What the second opinion has come to in a run.
struct OpinionTally {
    int boxes = 0;                       ///< Boxes whose state differs,
    std::vector<std::string> otherwise;  ///< in the forms of these image names.
    /// Image names of the forms that look like another one than they were taken for, or like none.
    std::vector<std::string> otherProfile;
    std::vector<std::string> unread;  ///< Image names of the forms that only precise alignment recognises.
    SpecimenFaults specimens;         ///< What was wrong with the specimens that were needed.

    void Add(const std::string& imageName, const SecondOpinion& opinion);
};

/// The tally in sentences; empty when there is nothing to tell.
std::string TextOf(const OpinionTally& tally);

}  // namespace tavrene::recognition
