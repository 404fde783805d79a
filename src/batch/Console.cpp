#include "batch/Console.h"

#include <array>
#include <cstdio>
#include <numeric>
#include <ostream>
#include <string>
#include <utility>

#include "app/Utf8.h"

namespace tavrene::batch {
namespace {

using recognition::FileEnd;

constexpr std::array kEnds = {
    std::pair{FileEnd::Read, "read"}, std::pair{FileEnd::NotRecognised, "not recognised"},
    std::pair{FileEnd::Refused, "refused"}, std::pair{FileEnd::NotWritten, "not written"}};

// As RFC 8259 has it.
std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char character : app::ValidUtf8(text)) {
        if (character == '"' || character == '\\') {
            quoted.append("\\").append(1, character);
        } else if (static_cast<unsigned char>(character) < 0x20) {
            std::array<char, 8> code{};
            std::snprintf(code.data(), code.size(), "\\u%04x", static_cast<unsigned>(character));
            quoted += code.data();
        } else {
            quoted += character;
        }
    }
    return quoted + "\"";
}

}  // namespace

void ConsoleOperator::ShowMessage(std::string_view /*title*/, std::string_view text) {
    messages_ << "tavrene-batch: " << text << std::endl;
}

void ConsoleOperator::ReportFile(std::string_view fileName, std::string_view text) {
    messages_ << fileName << ": " << text << std::endl;
}

app::Answer ConsoleOperator::AskYesNo(std::string_view text, app::Answer /*preset*/) {
    messages_ << "tavrene-batch: " << text << " Answered No." << std::endl;
    return app::Answer::No;
}

app::Answer ConsoleOperator::AskYesNoCancel(std::string_view text, app::Answer /*preset*/) {
    messages_ << "tavrene-batch: " << text << " Answered Cancel." << std::endl;
    return app::Answer::Cancel;
}

void ConsoleOperator::ShowNotices(std::span<const app::Notice> notices) {
    for (const app::Notice& notice : notices)
        ShowMessage("", notice.text);
}

// A run lists its files more than once.
void Progress::Begin(int files) {
    if (std::exchange(isNew_, false))
        counts_ = {};
    if (asJson_)
        out_ << R"({"event":"begin","files":)" << files << '}' << std::endl;
}

void Progress::Add(std::span<const recognition::FileReport> files) {
    for (const recognition::FileReport& file : files) {
        ++counts_.at(static_cast<std::size_t>(file.end));
        if (asJson_)
            out_ << R"({"event":"file","name":)" << Quoted(file.name) << R"(,"outcome":)"
                 << Quoted(kEnds.at(static_cast<std::size_t>(file.end)).second) << R"(,"reason":)"
                 << Quoted(file.reason) << R"(,"further pages":)" << file.furtherPages << '}' << std::endl;
    }
}

void Progress::End(long seconds, bool isStopped) {
    isNew_ = true;
    const std::size_t files = std::accumulate(counts_.begin(), counts_.end(), std::size_t{0});
    if (asJson_)
        out_ << R"({"event":"end","files":)" << files << R"(,"seconds":)" << seconds;
    else
        out_ << files << " Files, " << seconds << " Sec.";
    for (const auto& [end, name] : kEnds) {
        if (asJson_)
            out_ << ',' << Quoted(name) << ':' << Count(end);
        else
            out_ << (end == FileEnd::Read ? " " : ", ") << Count(end) << ' ' << name;
    }
    if (asJson_)
        out_ << R"(,"stopped":)" << (isStopped ? "true}" : "false}");
    out_ << std::endl;
}

}  // namespace tavrene::batch
