#include "review/doubts/DoubtCache.h"

#include <algorithm>
#include <charconv>
#include <string_view>
#include <utility>

namespace tavrene::review {
namespace {

// The first line; a file of another version holds nothing.
constexpr std::string_view kTitle = "Doubts about processed forms, 1";

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
        text += std::to_string(box.row) + kLetters[static_cast<std::size_t>(box.reason)];
    return text;
}

// "3T17F"; nothing for any other text.
std::optional<FormDoubts> DoubtsFrom(std::string_view text) {
    FormDoubts doubts;
    while (!text.empty()) {
        int row = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), row);
        if (error != std::errc() || row < 1 || end == text.data() + text.size() ||
            kLetters.find(*end) == std::string_view::npos)
            return std::nullopt;
        doubts.push_back({row, static_cast<DoubtReason>(kLetters.find(*end))});
        text.remove_prefix(static_cast<std::size_t>(end - text.data()) + 1);
    }
    return doubts;
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
    std::string_view text = content;
    if (TakeUpTo(text, '\n') != kTitle)
        return;
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

void DoubtCache::Save() {
    if (!std::exchange(isChanged_, false))
        return;
    std::string text(kTitle);
    text += '\n';
    for (const auto& [form, entry] : entries_)
        if (entry.isAlive && FitsOnALine(form) && FitsOnALine(entry.stamp))
            text += form + '\t' + entry.stamp + '\t' + TextOf(entry.doubts) + '\n';
    try {
        files_.Write(path_, app::AsBytes(text), app::Keep::AsScratch);
    } catch (const app::FileError&) {
        return;
    }
}

}  // namespace tavrene::review
