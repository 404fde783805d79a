#include "review/doubts/DoubtCache.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <string_view>
#include <utility>

namespace tavrene::review {
namespace {

// The first line; a file of another version holds nothing.
constexpr std::string_view kTitle = "Doubts about processed forms, 2";

// One letter a reason, in their order.
constexpr std::string_view kLetters = "CORTFBNM";

std::string_view TakeUpTo(std::string_view& text, char end) {
    const std::string_view taken = text.substr(0, text.find(end));
    text.remove_prefix(std::min(taken.size() + 1, text.size()));
    return taken;
}

std::string TextOf(const FormDoubts& doubts) {
    std::string text;
    for (const DoubtfulBox& box : doubts)
        text += std::to_string(box.row) + kLetters[static_cast<std::size_t>(box.reason)] +
                (box.isChecked ? '+' : '-') + std::to_string(box.ink) + ' ';
    return text;
}

std::optional<int> NumberFrom(std::string_view text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

// "3T-75"; nothing for any other text.
std::optional<DoubtfulBox> DoubtFrom(std::string_view text) {
    const std::size_t at = std::min(text.find_first_of(kLetters), text.size());
    const std::optional<int> row = NumberFrom(text.substr(0, at));
    const std::string_view rest = text.substr(at);
    if (!row || *row < 1 || rest.size() < 3 || (rest[1] != '+' && rest[1] != '-'))
        return std::nullopt;
    const std::optional<int> ink = NumberFrom(rest.substr(2));
    if (!ink)
        return std::nullopt;
    return DoubtfulBox{*row, static_cast<DoubtReason>(kLetters.find(rest[0])), rest[1] == '+', *ink};
}

std::optional<FormDoubts> DoubtsFrom(std::string_view text) {
    FormDoubts doubts;
    while (!text.empty()) {
        const std::optional<DoubtfulBox> doubt = DoubtFrom(TakeUpTo(text, ' '));
        if (!doubt)
            return std::nullopt;
        doubts.push_back(*doubt);
    }
    return doubts;
}

// The last line: a file that was cut short, or mended by hand, is not believed. FNV-1a of 64 bits
// (datatracker.ietf.org/doc/html/draft-eastlake-fnv).
std::string EndOf(std::string_view text) {
    std::uint64_t sum = 0xcbf29ce484222325U;
    for (const char each : text)
        sum = (sum ^ static_cast<unsigned char>(each)) * 0x100000001b3U;
    std::array<char, 24> end{};
    std::snprintf(end.data(), end.size(), "end %016llx\n", static_cast<unsigned long long>(sum));
    return end.data();
}

// What stands between title and end; nothing when the text is not whole.
std::string_view BodyOf(std::string_view text) {
    const std::size_t endSize = EndOf({}).size();
    if (text.size() < endSize)
        return {};
    const std::string_view signedText = text.substr(0, text.size() - endSize);
    if (text.substr(signedText.size()) != EndOf(signedText))
        return {};
    std::string_view body = signedText;
    return TakeUpTo(body, '\n') == kTitle ? body : std::string_view();
}

bool FitsOnALine(const std::string& text) {
    return text.find_first_of("\t\n") == std::string::npos;
}

}  // namespace

void DoubtCache::Load() {
    entries_.clear();
    isChanged_ = false;
    if (!files_.FileExists(path_))
        return;
    app::Bytes bytes;
    try {
        bytes = files_.Read(path_);
    } catch (const app::FileError&) {
        return;
    }
    std::string content(bytes.size(), ' ');
    std::ranges::transform(bytes, content.begin(), [](std::byte byte) { return static_cast<char>(byte); });
    std::string_view text = BodyOf(content);
    while (!text.empty()) {
        std::string_view line = TakeUpTo(text, '\n');
        const std::string form(TakeUpTo(line, '\t'));
        const std::string stamp(TakeUpTo(line, '\t'));
        if (std::optional<FormDoubts> doubts = DoubtsFrom(line))
            entries_[form] = {stamp, *std::move(doubts)};
    }
}

const FormDoubts* DoubtCache::Find(const std::string& form, const std::string& stamp) {
    const auto found = entries_.find(form);
    if (found == entries_.end() || found->second.stamp != stamp)
        return nullptr;
    found->second.isAlive = true;
    return &found->second.doubts;
}

void DoubtCache::Put(const std::string& form, const std::string& stamp, FormDoubts doubts) {
    entries_[form] = {stamp, std::move(doubts), true};
    isChanged_ = true;
}

void DoubtCache::AddToFile(const std::function<bool(const std::string& form)>& isThere) {
    if (!isChanged_)
        return;
    std::map<std::string, Entry> found = std::exchange(entries_, {});
    Load();
    for (auto& [form, entry] : entries_)
        entry.isAlive = isThere(form);
    found.merge(entries_);
    entries_.swap(found);
    isChanged_ = true;
    Save();
    entries_.clear();
}

void DoubtCache::Save() {
    if (!std::exchange(isChanged_, false))
        return;
    std::string text(kTitle);
    text += '\n';
    for (const auto& [form, entry] : entries_)
        if (entry.isAlive && FitsOnALine(form) && FitsOnALine(entry.stamp))
            text += form + '\t' + entry.stamp + '\t' + TextOf(entry.doubts) + '\n';
    text += EndOf(text);
    try {
        files_.Write(path_, app::AsBytes(text), app::Keep::AsScratch);
    } catch (const app::FileError&) {
        return;
    }
}

}  // namespace tavrene::review
