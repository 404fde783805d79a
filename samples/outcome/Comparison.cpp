#include "outcome/Comparison.h"

#include <algorithm>
#include <iomanip>
#include <sstream>

#include "profiles/XmlFile.h"
#include "recognition/ResultDocument.h"

namespace tavrene::samples {
namespace {

constexpr const char* kUnclassified = "unclassified";
constexpr const char* kUnreadable = "unreadable";

std::string TextOfLogs(const app::Files& files, const std::string& logFolder) {
    std::string text;
    for (const std::string& name : files.List(logFolder, "TavreneBoxes-Process-*.Log")) {
        const app::Bytes content = files.Read(logFolder + name);
        text.append(reinterpret_cast<const char*>(content.data()), content.size());
    }
    return text;
}

void ReadResult(const app::Files& files, const std::string& path, Comparison& comparison) {
    const pugi::xml_document document = profiles::ReadXml(files, path, profiles::Declaration::Allowed);
    comparison.Profile = document.document_element().attribute("Profile").value();
    comparison.Confidence = document.document_element().attribute("Confidence").value();
    for (const recognition::ResultMark& mark : recognition::ReadResultMarks(files, path))
        if (mark.Checked)
            comparison.CheckedBoxes.push_back(mark.Name);
}

std::string ExpectedProfile(const GroundTruthRecord& record) {
    switch (record.Expected) {
        case GroundTruthRecord::Outcome::Unclassified:
            return kUnclassified;
        case GroundTruthRecord::Outcome::Unreadable:
            return kUnreadable;
        case GroundTruthRecord::Outcome::Matched:
            break;
    }
    return record.Profile;
}

std::string NamesMissingFrom(const std::vector<std::string>& names, const std::vector<std::string>& from) {
    std::string missing;
    for (const std::string& name : names)
        if (std::find(from.begin(), from.end(), name) == from.end())
            missing += (missing.empty() ? "" : ", ") + name;
    return missing;
}

std::string DifferenceOf(const Comparison& read, const GroundTruthRecord& truth) {
    if (read.Profile != ExpectedProfile(truth))
        return "is " + ExpectedProfile(truth) + ", was taken for " + read.Profile;
    std::string difference;
    if (const std::string missed = NamesMissingFrom(truth.CheckedBoxes, read.CheckedBoxes); !missed.empty())
        difference = "marks not seen: " + missed;
    if (const std::string added = NamesMissingFrom(read.CheckedBoxes, truth.CheckedBoxes); !added.empty())
        difference += (difference.empty() ? "" : "; ") + ("marks that are none: " + added);
    return difference;
}

const char* ReadWithoutResult(const std::string& log, const std::string& image) {
    const bool classified = log.find("Image [" + image + "] " + kUnclassified) != std::string::npos;
    return classified ? kUnclassified : kUnreadable;
}

Comparison CompareOne(const app::Files& files, const app::WorkingFolders& folders, const std::string& log,
                      const GroundTruthRecord& truth) {
    Comparison comparison;
    comparison.Image = truth.Image;
    const std::string result = recognition::ResultPath(folders.ProcessOut, truth.Image);
    if (!files.FileExists(folders.ProcessOut + truth.Image)) {
        comparison.Difference = "was not processed";
        return comparison;
    }
    if (files.FileExists(result))
        ReadResult(files, result, comparison);
    else
        comparison.Profile = ReadWithoutResult(log, truth.Image);
    comparison.Difference = DifferenceOf(comparison, truth);
    if (comparison.Difference.empty())
        comparison.verdict = Verdict::Right;
    else if (!truth.BeyondRules.empty())
        comparison.verdict = Verdict::BeyondRules;
    return comparison;
}

const char* TextOf(Verdict verdict) {
    switch (verdict) {
        case Verdict::Right:
            return "right";
        case Verdict::BeyondRules:
            return "beyond the rules";
        case Verdict::Wrong:
            break;
    }
    return "WRONG";
}

constexpr const char* kReadingTitle = "confidence checked  against the truth ";

std::string ReadingText(const Comparison& reading) {
    std::ostringstream text;
    text << std::right << std::setw(10) << reading.Confidence << std::setw(8)
         << (reading.Confidence.empty() ? "" : std::to_string(reading.CheckedBoxes.size())) << "  "
         << std::left << std::setw(18) << TextOf(reading.verdict);
    return text.str();
}

void TellDifferences(std::ostream& table, const char* how, const std::vector<Comparison>& readings) {
    for (const Comparison& reading : readings)
        if (!reading.Difference.empty())
            table << '\n' << reading.Image << how << ' ' << reading.Difference;
    table << '\n';
}

}  // namespace

std::vector<Comparison> CompareWithTruth(const app::Files& files, const app::WorkingFolders& folders,
                                         const std::vector<GroundTruthRecord>& truth) {
    const std::string log = TextOfLogs(files, folders.Log);
    std::vector<Comparison> comparisons;
    comparisons.reserve(truth.size());
    for (const GroundTruthRecord& record : truth)
        comparisons.push_back(CompareOne(files, folders, log, record));
    return comparisons;
}

std::string TableOf(const std::vector<Comparison>& plain, const std::vector<Comparison>& precise) {
    std::ostringstream table;
    table << std::left << std::setw(52) << ""
          << "plain reading" << std::setw(25) << ""
          << "precise alignment\n"
          << std::setw(28) << "image" << std::setw(24) << "profile" << kReadingTitle << kReadingTitle << '\n';
    for (std::size_t k = 0; k < plain.size(); ++k) {
        const bool isForm = !plain[k].Confidence.empty();
        table << std::left << std::setw(28) << plain[k].Image << std::setw(24)
              << (isForm ? plain[k] : precise[k]).Profile << ReadingText(plain[k]) << ReadingText(precise[k])
              << '\n';
    }
    TellDifferences(table, "", plain);
    TellDifferences(table, ", by precise alignment,", precise);
    return table.str();
}

}  // namespace tavrene::samples
