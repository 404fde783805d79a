#include "ui/commands/CountsPage.h"

#include <algorithm>

namespace tavrene::commands {
namespace {

std::string Escaped(const std::string& text) {
    std::string escaped;
    for (const char c : text) {
        switch (c) {
            case '&':
                escaped += "&amp;";
                break;
            case '<':
                escaped += "&lt;";
                break;
            case '>':
                escaped += "&gt;";
                break;
            default:
                escaped += c;
        }
    }
    return escaped;
}

std::string Cell(const std::string& content, const char* attributes) {
    return std::string("<td ") + attributes + ">" + content + "</td>";
}

// Cells of the full width: a share of nothing would still be drawn as wide as its cell's margins.
std::string Bar(int percent) {
    const auto part = [](int width, const char* color) {
        return width == 0 ? std::string()
                          : "<td width='" + std::to_string(width) + "%' bgcolor='" + color +
                                "'><font size='1'>&nbsp;</font></td>";
    };
    return "<table width='100%' cellspacing='0' cellpadding='0'><tr>" + part(percent, "#0072b2") +
           part(100 - percent, "#e6e6e6") + "</tr></table>";
}

std::string Row(const results::BoxColumn& box, const results::BoxCount& count) {
    const std::string name =
        Escaped(box.Name) + (box.Occurrence > 1 ? " (" + std::to_string(box.Occurrence) + ")" : "");
    const int percent =
        static_cast<int>((200 * count.Checked + count.Read) / (2 * std::max<std::size_t>(count.Read, 1)));
    return "<tr>" + Cell(name, "width='34%'") +
           Cell(std::to_string(count.Checked), "width='8%' align='right'") +
           Cell("of " + std::to_string(count.Read), "width='10%'") +
           Cell(std::to_string(percent) + " %", "width='8%' align='right'") +
           Cell(Bar(percent), "width='40%' valign='middle'") + "</tr>";
}

std::string Section(const results::ResultTable& table) {
    const std::size_t forms = table.Forms.size();
    std::string section = "<h3>" + Escaped(table.Profile) + "</h3><p>" + std::to_string(forms) +
                          (forms == 1 ? " form" : " forms") + "</p><table width='100%' cellpadding='2'>";
    const std::vector<results::BoxCount> counts = results::CountMarks(table);
    for (std::size_t k = 0; k < table.Boxes.size(); ++k)
        section += Row(table.Boxes[k], counts[k]);
    return section + "</table>";
}

}  // namespace

std::string CountsPage(std::span<const results::ResultTable> tables, const std::string& source) {
    std::string page = "<h2>How often each box is checked</h2><p>Forms of " + Escaped(source) + "</p>";
    for (const results::ResultTable& table : tables)
        page += Section(table);
    return page;
}

}  // namespace tavrene::commands
