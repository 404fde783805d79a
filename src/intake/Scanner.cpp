#include "intake/Scanner.h"

#include <sane/saneopts.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <span>
#include <stdexcept>
#include <string_view>

#include "app/Files.h"
#include "imaging/ScanPicture.h"

namespace tavrene::intake {
namespace {

using imaging::Bitmap;

bool HasOneOf(const std::string& text, std::initializer_list<const char*> pieces) {
    const std::string lower = app::LowerCase(text);
    return std::ranges::any_of(pieces, [&](const char* piece) { return lower.find(piece) != lower.npos; });
}

bool CanBeSet(const SANE_Option_Descriptor* option) {
    return option != nullptr && SANE_OPTION_IS_ACTIVE(option->cap) && SANE_OPTION_IS_SETTABLE(option->cap);
}

std::vector<std::string> TextsOf(const SANE_Option_Descriptor* option) {
    std::vector<std::string> texts;
    if (CanBeSet(option) && option->constraint_type == SANE_CONSTRAINT_STRING_LIST)
        for (const SANE_String_Const* text = option->constraint.string_list; *text != nullptr; ++text)
            texts.emplace_back(*text);
    return texts;
}

double NumberOf(const SANE_Option_Descriptor& option, SANE_Word word) {
    return option.type == SANE_TYPE_FIXED ? SANE_UNFIX(word) : word;
}

// Of a range those of `usual` that lie in it.
std::vector<double> NumbersOf(const SANE_Option_Descriptor* option, std::span<const int> usual) {
    std::vector<double> numbers;
    if (!CanBeSet(option))
        return numbers;
    if (option->constraint_type == SANE_CONSTRAINT_WORD_LIST) {
        const SANE_Word* const list = option->constraint.word_list;
        for (int k = 1; k <= list[0]; ++k)
            numbers.push_back(NumberOf(*option, list[k]));
    } else if (option->constraint_type == SANE_CONSTRAINT_RANGE) {
        const SANE_Range& range = *option->constraint.range;
        for (const int number : usual)
            if (number >= NumberOf(*option, range.min) && number <= NumberOf(*option, range.max))
                numbers.push_back(number);
    }
    return numbers;
}

// One line of the device's as one of a bitmap's.
void CopyLine(std::span<const SANE_Byte> from, std::span<std::uint8_t> to, const SANE_Parameters& kind) {
    const auto width = static_cast<std::size_t>(kind.pixels_per_line);
    if (kind.depth == 1) {
        const std::size_t bytes = (width + 7) / 8;
        std::ranges::copy(from.first(bytes), to.begin());
        // The rest of the last byte is what the device happens to leave there.
        to[bytes - 1] = static_cast<std::uint8_t>(to[bytes - 1] & 0xFFU << (bytes * 8 - width));
        return;
    }
    const std::size_t channels = kind.format == SANE_FRAME_RGB ? 3 : 1;
    const std::size_t bytes = kind.depth == 16 ? 2 : 1;
    // The more significant byte, as the machine has it.
    const std::size_t high = bytes == 2 && std::endian::native == std::endian::little ? 1 : 0;
    for (std::size_t x = 0; x < width; ++x)
        for (std::size_t channel = 0; channel < channels; ++channel)
            to[x * channels + channels - 1 - channel] = from[(x * channels + channel) * bytes + high];
}

std::variant<Bitmap, Reason> PictureOf(std::span<const SANE_Byte> data, const SANE_Parameters& kind,
                                       int resolution) {
    const auto pitch = static_cast<std::size_t>(std::max(kind.bytes_per_line, 1));
    const std::size_t lines = data.size() / pitch;
    if (lines == 0 || kind.pixels_per_line <= 0)
        return Reason{"The scanner gave an empty page."};
    const int channels = kind.format == SANE_FRAME_RGB ? 3 : 1;
    const int bits = kind.depth == 1 ? 1 : 8 * channels;
    Bitmap picture = imaging::NewPicture(kind.pixels_per_line, static_cast<int>(lines), bits);
    imaging::SetResolution(picture, resolution, resolution);
    for (std::size_t line = 0; line < lines; ++line)
        CopyLine(data.subspan(line * pitch, pitch), picture.ScanLine(static_cast<int>(lines - 1 - line)),
                 kind);
    return picture;
}

// A page that is put together of several frames, or of samples of another size, is none that can be taken,
// nor one whose lines are shorter than its width.
bool CanBeTaken(const SANE_Parameters& kind) {
    const bool isWhole = kind.format == SANE_FRAME_GRAY || kind.format == SANE_FRAME_RGB;
    const bool isBits = kind.format == SANE_FRAME_GRAY && kind.depth == 1;
    const std::int64_t samples = kind.format == SANE_FRAME_RGB ? 3 : 1;
    const std::int64_t bits = samples * kind.pixels_per_line * kind.depth;
    return isWhole && kind.last_frame && (isBits || kind.depth == 8 || kind.depth == 16) &&
           kind.bytes_per_line >= (bits + 7) / 8;
}

std::string_view WhatItMeans(SANE_Status status) {
    switch (status) {
        case SANE_STATUS_CANCELLED:
            return "It was cancelled at the scanner.";
        case SANE_STATUS_DEVICE_BUSY:
            return "The scanner is busy. Another program may be using it.";
        case SANE_STATUS_JAMMED:
            return "The paper is jammed, or the feeder has drawn in two sheets at once.";
        case SANE_STATUS_NO_DOCS:
            return "The feeder is empty.";
        case SANE_STATUS_COVER_OPEN:
            return "The cover of the scanner is open.";
        case SANE_STATUS_IO_ERROR:
            return "The scanner does not answer as it should. Is it switched on and connected?";
        case SANE_STATUS_NO_MEM:
            return "There is not enough memory for the page.";
        case SANE_STATUS_ACCESS_DENIED:
            return "This account may not use the scanner.";
        default:
            return "The scanner does not do what it was asked for.";
    }
}

Reason ReasonOf(SANE_Status status) {
    return {std::string(WhatItMeans(status))};
}

// With what it has instead, the pages would be others than the person means.
void Demand(const std::string& what, SANE_Status status) {
    if (status == SANE_STATUS_INVAL || status == SANE_STATUS_UNSUPPORTED)
        throw std::runtime_error("The scanner refuses the " + what + " that was chosen.");
    if (status != SANE_STATUS_GOOD)
        throw std::runtime_error(ReasonOf(status).text);
}

}  // namespace

Scanners::Scanners(const SaneLibrary& sane) : sane_(sane) {
    SANE_Int version = 0;
    sane_.Init(&version, nullptr);
}

Scanners::~Scanners() {
    sane_.Exit();
}

std::vector<ScanDevice> Scanners::Find() {
    std::vector<ScanDevice> devices;
    const SANE_Device** list = nullptr;
    if (sane_.GetDevices(&list, SANE_FALSE) != SANE_STATUS_GOOD || list == nullptr)
        return devices;
    // Cameras come with the scanners.
    for (; *list != nullptr; ++list)
        if (!HasOneOf((*list)->type, {"camera"}))
            devices.push_back(
                {(*list)->name,
                 std::string((*list)->vendor) + " " + (*list)->model + " (" + (*list)->name + ")",
                 HasOneOf((*list)->type, {"sheetfed"})});
    return devices;
}

Scanner::Scanner(const SaneLibrary& sane, const ScanDevice& device)
    : sane_(sane), isNothingButFeeder_(device.isNothingButFeeder) {
    if (const SANE_Status status = sane_.Open(device.name.c_str(), &handle_); status != SANE_STATUS_GOOD)
        throw std::runtime_error(ReasonOf(status).text);
}

Scanner::~Scanner() {
    sane_.Close(handle_);
}

bool Scanner::FeedsFrom(const std::string& source) const {
    return source.empty() ? isNothingButFeeder_ : HasOneOf(source, {"adf", "feeder", "duplex"});
}

Scanner::Option Scanner::Find(const char* name) const {
    // Option 0 tells how many there are.
    for (SANE_Int k = 1;; ++k) {
        const SANE_Option_Descriptor* const option = sane_.GetOption(handle_, k);
        if (option == nullptr)
            return {};
        if (option->name != nullptr && std::string_view(option->name) == name)
            return {k, option};
    }
}

SANE_Status Scanner::Choose(const char* name, const std::string& value) {
    const Option option = Find(name);
    if (!CanBeSet(option.descriptor) || option.descriptor->type != SANE_TYPE_STRING || value.empty())
        return SANE_STATUS_GOOD;
    std::string text = value;
    text.resize(std::max(text.size() + 1, static_cast<std::size_t>(option.descriptor->size)));
    return sane_.ControlOption(handle_, option.index, SANE_ACTION_SET_VALUE, text.data(), nullptr);
}

SANE_Status Scanner::Choose(const char* name, double value) {
    const Option option = Find(name);
    if (!CanBeSet(option.descriptor) || option.descriptor->size != sizeof(SANE_Word))
        return SANE_STATUS_GOOD;
    if (option.descriptor->constraint_type == SANE_CONSTRAINT_RANGE) {
        const SANE_Range& range = *option.descriptor->constraint.range;
        value = std::clamp(value, NumberOf(*option.descriptor, range.min),
                           NumberOf(*option.descriptor, range.max));
    }
    SANE_Word word =
        option.descriptor->type == SANE_TYPE_FIXED ? SANE_FIX(value) : static_cast<SANE_Word>(value);
    return sane_.ControlOption(handle_, option.index, SANE_ACTION_SET_VALUE, &word, nullptr);
}

// Devices may round what they are told, and have a value where there is no choice.
int Scanner::Resolution(int chosen) const {
    const Option option = Find(SANE_NAME_SCAN_RESOLUTION);
    SANE_Word word = 0;
    const bool isTold =
        option.descriptor != nullptr && SANE_OPTION_IS_ACTIVE(option.descriptor->cap) &&
        option.descriptor->size == sizeof word &&
        sane_.ControlOption(handle_, option.index, SANE_ACTION_GET_VALUE, &word, nullptr) == SANE_STATUS_GOOD;
    return isTold ? static_cast<int>(std::lround(NumberOf(*option.descriptor, word))) : chosen;
}

// One for each kind of page, by whatever name the device has for it; some make black and white of grey.
std::vector<ScanMode> Scanner::Modes() const {
    constexpr std::array kDepths = {1, 8};
    const std::vector<std::string> names = TextsOf(Find(SANE_NAME_SCAN_MODE).descriptor);
    const std::vector<double> depths = NumbersOf(Find(SANE_NAME_BIT_DEPTH).descriptor, kDepths);
    const auto named = [&](std::initializer_list<const char*> pieces) {
        const auto name =
            std::ranges::find_if(names, [&](const auto& each) { return HasOneOf(each, pieces); });
        return name == names.end() ? std::string() : *name;
    };
    const bool hasBits = std::ranges::count(depths, 1) > 0;
    std::string lines = named({"lineart", "binary", "black"});
    const std::string grey = named({"gray", "grey"});
    const std::string colour = named({"color", "colour"});
    if (lines.empty() && hasBits)
        lines = grey;
    std::vector<ScanMode> modes;
    if (!lines.empty())
        modes.push_back({"Black and white", lines, 1});
    if (!grey.empty())
        modes.push_back({"Grey", grey, 8});
    if (!colour.empty())
        modes.push_back({"Colour", colour, 8});
    return modes;
}

ScanChoices Scanner::Choices() {
    constexpr std::array kUsual = {100, 150, 200, 240, 300, 400, 600};
    ScanChoices choices{TextsOf(Find(SANE_NAME_SCAN_SOURCE).descriptor), Modes(), {}};
    for (const double number : NumbersOf(Find(SANE_NAME_SCAN_RESOLUTION).descriptor, kUsual))
        if (number >= kUsual.front() && number <= kUsual.back())
            choices.resolutions.push_back(static_cast<int>(number));
    std::ranges::sort(choices.resolutions);
    return choices;
}

void Scanner::SetPaper(const ScanSettings& settings) {
    constexpr double kAll = 10'000;
    const Option right = Find(SANE_NAME_SCAN_BR_X);
    const bool inMillimetres = right.descriptor != nullptr && right.descriptor->unit == SANE_UNIT_MM;
    const bool isWhole = settings.paperWidth <= 0 || !inMillimetres;
    const double width = isWhole ? kAll : settings.paperWidth;
    const double height = isWhole ? kAll : settings.paperHeight;
    // Feeders guide the paper by these before the edges of the picture may lie there.
    Choose("page-width", width);
    Choose("page-height", height);
    Choose(SANE_NAME_SCAN_TL_X, 0.0);
    Choose(SANE_NAME_SCAN_TL_Y, 0.0);
    Choose(SANE_NAME_SCAN_BR_X, width);
    Choose(SANE_NAME_SCAN_BR_Y, height);
}

void Scanner::Set(const ScanSettings& settings) {
    Demand("source", Choose(SANE_NAME_SCAN_SOURCE, settings.source));
    Demand("mode", Choose(SANE_NAME_SCAN_MODE, settings.mode.mode));
    if (settings.mode.depth > 0)
        Choose(SANE_NAME_BIT_DEPTH, settings.mode.depth);
    if (settings.resolution > 0)
        Demand("resolution", Choose(SANE_NAME_SCAN_RESOLUTION, settings.resolution));
    SetPaper(settings);
    resolution_ = Resolution(settings.resolution);
    // Some devices have to be told what to do about a double feed before they look for any.
    Choose("df-action", std::string("Stop"));
    for (const char* const look : {"df-thickness", "double-feed"})
        Choose(look, SANE_TRUE);
}

SANE_Status Scanner::ReadAll(std::vector<SANE_Byte>& data, const std::function<bool()>& goOn) {
    constexpr std::size_t kMostBytes = std::size_t{1} << 30;
    std::array<SANE_Byte, 32'768> piece{};
    while (goOn()) {
        SANE_Int length = 0;
        const SANE_Status status =
            sane_.Read(handle_, piece.data(), static_cast<SANE_Int>(piece.size()), &length);
        if (status != SANE_STATUS_GOOD)
            return status;
        if (data.size() > kMostBytes)
            return SANE_STATUS_NO_MEM;
        data.insert(data.end(), piece.begin(), piece.begin() + length);
    }
    return SANE_STATUS_CANCELLED;
}

Scanner::Page Scanner::Next(const std::function<bool()>& goOn) {
    if (!goOn())
        return Cancelled{};
    SANE_Status status = sane_.Start(handle_);
    if (status == SANE_STATUS_NO_DOCS)
        return NoMore{};
    SANE_Parameters kind{};
    if (status == SANE_STATUS_GOOD)
        status = sane_.GetParameters(handle_, &kind);
    if (status != SANE_STATUS_GOOD)
        return ReasonOf(status);
    if (!CanBeTaken(kind))
        return Reason{
            "The scanner gives pages of this kind in a way that is not known here. Choose another."};
    std::vector<SANE_Byte> data;
    status = ReadAll(data, goOn);
    if (status == SANE_STATUS_CANCELLED && !goOn())
        return Cancelled{};
    if (status == SANE_STATUS_NO_DOCS && data.empty())
        return NoMore{};
    if (status != SANE_STATUS_EOF)
        return ReasonOf(status);
    auto picture = PictureOf(data, kind, resolution_);
    if (Reason* const reason = std::get_if<Reason>(&picture))
        return std::move(*reason);
    return std::get<Bitmap>(std::move(picture));
}

}  // namespace tavrene::intake
