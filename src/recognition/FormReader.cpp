#include "recognition/FormReader.h"

#include <utility>
#include <variant>

#include "app/Reason.h"
#include "imaging/TiffHeader.h"
#include "recognition/Classification.h"

namespace tavrene::recognition {

using profiles::ProfileRecord;

FormReading FormReader::Read(const std::string& name, std::span<const ProfileRecord> profiles,
                             bool withPage) const {
    FormReading reading;
    reading.failure = app::FailureOf([&] { Recognise(name, profiles, reading); });
    // Also of a form that the plain reading failed on.
    if (precise_ != nullptr && precise_->GivesSecondOpinion() && reading.page)
        reading.opinionFailure = app::FailureOf([&] {
            reading.opinion = precise_->OpinionOn(*reading.page, profiles, reading.winner, reading.marks,
                                                  settings_.FillThreshold);
        });
    if (!withPage)
        reading.page.reset();
    return reading;
}

void FormReader::Recognise(const std::string& name, std::span<const ProfileRecord> profiles,
                           FormReading& reading) const {
    auto read = imaging::ReadPage(files_, folder_ + name);
    if (const auto* const error = std::get_if<imaging::PageError>(&read)) {
        reading.error = *error;
        return;
    }
    reading.page = std::get<imaging::Page>(std::move(read));
    if (reading.page->format == imaging::ImageFormat::Tiff)
        // The page is there, whatever becomes of the file meanwhile.
        app::FailureOf(
            [&] { reading.furtherPages = imaging::CountTiffPictures(files_.Read(folder_ + name)) - 1; });
    reading.copy = imaging::CopyOf(*reading.page);
    if (precise_ != nullptr && precise_->Reads())
        return RecognisePrecisely(name, profiles, reading);
    Classification classification = ClassifyImage(*reading.page, profiles);
    reading.classification = ClassificationLine(name, classification, profiles);
    if (classification.winner < 0)
        return;
    const auto winner = static_cast<std::size_t>(classification.winner);
    ProfileMatch& match = classification.matches[winner];
    SpreadShifts(profiles[winner], match.shifts);
    reading.marks = ReadMarks(*reading.page, profiles[winner], match.shifts, settings_.FillThreshold);
    reading.winner = classification.winner;
    reading.Confidence = match.Confidence;
}

void FormReader::RecognisePrecisely(const std::string& name, std::span<const ProfileRecord> profiles,
                                    FormReading& reading) const {
    PreciseReading precise = precise_->Read(*reading.page, profiles, settings_.FillThreshold);
    reading.classification = ClassificationLine(name, AsClassification(precise, profiles.size()), profiles);
    reading.marks = std::move(precise.marks);
    reading.turned = precise.turned;
    reading.winner = precise.winner;
    reading.Confidence = precise.Confidence;
}

}  // namespace tavrene::recognition
