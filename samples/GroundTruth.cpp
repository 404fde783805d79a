#include "GroundTruth.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace tavrene::samples {

namespace {

std::vector<std::string> Split(std::string_view text, char separator) {
    std::vector<std::string> parts;
    std::size_t start = 0;
    while (true) {
        const std::size_t end = text.find(separator, start);
        parts.emplace_back(text.substr(start, end - start));
        if (end == std::string_view::npos)
            return parts;
        start = end + 1;
    }
}

GroundTruthRecord ParseLine(const std::string& line) {
    std::vector<std::string> columns = Split(line, '\t');
    if (columns.size() != 4 || columns[0].empty() || columns[1].empty())
        throw std::runtime_error("The truth line \"" + line + "\" has not the four columns of a scan.");
    GroundTruthRecord record;
    record.Image = columns[0];
    record.BeyondRules = columns[3];
    if (columns[1] == "unclassified")
        record.Expected = GroundTruthRecord::Outcome::Unclassified;
    else if (columns[1] == "unreadable")
        record.Expected = GroundTruthRecord::Outcome::Unreadable;
    else
        record.Profile = columns[1];
    if (!columns[2].empty())
        record.CheckedBoxes = Split(columns[2], ',');
    return record;
}

}  // namespace

std::vector<GroundTruthRecord> ParseGroundTruth(std::string_view text) {
    std::vector<GroundTruthRecord> records;
    for (const std::string& line : Split(text, '\n'))
        if (!line.empty() && line.front() != '#')
            records.push_back(ParseLine(line));
    return records;
}

std::vector<GroundTruthRecord> ReadGroundTruth(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error("The truth file " + path + " cannot be read.");
    std::ostringstream text;
    text << file.rdbuf();
    return ParseGroundTruth(text.str());
}

}  // namespace tavrene::samples
