#pragma once

#include <map>
#include <string>
#include <vector>

namespace tavrene::test {

using Lines = std::vector<std::vector<std::string>>;

/// The cells of a CSV file as another program reads them; throws std::runtime_error where it does not follow
/// RFC 4180.
Lines ReadCsv(const std::string& path, char separator);

/// The cells of each sheet of a workbook by its name: texts as "t:...", numbers as they are, and nothing for
/// cells that are not there.
std::map<std::string, Lines> ReadXlsx(const std::string& path);

}  // namespace tavrene::test
