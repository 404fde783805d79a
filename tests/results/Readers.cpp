#include "results/Readers.h"

#include <cstdio>
#include <sstream>
#include <stdexcept>

#include "support/SourceFolder.h"

namespace tavrene::test {
namespace {

std::vector<std::string> Split(const std::string& text, char separator) {
    std::vector<std::string> parts(1);
    for (const char c : text)
        c == separator ? parts.emplace_back() : parts.back() += c;
    return parts;
}

std::map<std::string, Lines> ReadTables(const std::string& arguments) {
    std::FILE* const reader =
        ::popen((SourceFolder() + "/tests/results/read-tables " + arguments).c_str(), "r");
    std::string text;
    for (int c = std::fgetc(reader); c != EOF; c = std::fgetc(reader))
        text += static_cast<char>(c);
    if (::pclose(reader) != 0)
        throw std::runtime_error("the tables cannot be read");
    std::map<std::string, Lines> sheets;
    std::istringstream stream(text);
    for (std::string sheet; std::getline(stream, sheet, '\x1d');) {
        const std::vector<std::string> rows = Split(sheet, '\x1e');
        Lines& lines = sheets[rows[0]];
        for (std::size_t k = 1; k < rows.size(); ++k)
            lines.push_back(Split(rows[k], '\x1f'));
    }
    return sheets;
}

}  // namespace

Lines ReadCsv(const std::string& path, char separator) {
    return ReadTables("'" + path + "' '" + separator + "'").at("");
}

std::map<std::string, Lines> ReadXlsx(const std::string& path) {
    return ReadTables("'" + path + "'");
}

}  // namespace tavrene::test
