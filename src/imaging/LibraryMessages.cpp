#include "imaging/LibraryMessages.h"

#include <tiffio.h>

#include <algorithm>
#include <array>
#include <cstdarg>
#include <cstdio>
#include <mutex>
#include <span>
#include <string_view>

#include "imaging/ImageLibrary.h"

namespace tavrene::imaging {
namespace {

// A picture is decoded, and its trouble told, within one thread.
thread_local bool damageWasMet = false;

// The parts of the TIFF library that read tags, not pictures. A tag that they give up is as if it were not
// there, and where the picture cannot be read without it, its decoder says so.
constexpr std::array<std::string_view, 6> kTagReaders = {
    "TIFFFieldWithTag",   "_TIFFVSetField",          "TIFFFetchNormalTag",
    "TIFFFetchDirectory", "TIFFReadCustomDirectory", "TIFFReadDirectoryCheckOrder"};

// Without these a picture is read in a wrong way, not in none.
constexpr std::array<std::string_view, 2> kDecisiveTags = {"\"FillOrder\"", "\"PhotometricInterpretation\""};

// A file that was cut short behind its picture may have lost these alone; the page would be taken for one
// without a resolution.
constexpr std::array<std::string_view, 2> kResolutionTags = {"\"XResolution\"", "\"YResolution\""};

bool Contains(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

template <std::size_t Size>
bool NamesOneOf(std::string_view text, const std::array<std::string_view, Size>& parts) {
    return std::any_of(parts.begin(), parts.end(),
                       [text](std::string_view part) { return Contains(text, part); });
}

[[gnu::format(printf, 2, 0)]] std::string_view TextOf(std::span<char> buffer, const char* format,
                                                      va_list values) {
    std::vsnprintf(buffer.data(), buffer.size(), format, values);
    return buffer.data();
}

bool IsTagReader(std::string_view module) {
    return std::find(kTagReaders.begin(), kTagReaders.end(), module) != kTagReaders.end();
}

bool SpoilsPage(std::string_view text) {
    return NamesOneOf(text, kDecisiveTags) ||
           (Contains(text, "IO error") && NamesOneOf(text, kResolutionTags));
}

[[gnu::format(printf, 2, 0)]] void NoteTiffError(const char* module, const char* format, va_list values) {
    std::array<char, 512> buffer{};
    if (module == nullptr || !IsTagReader(module) || SpoilsPage(TextOf(buffer, format, values)))
        damageWasMet = true;
}

// In a Group 4 page every line builds on the one before, so a line of the wrong length spoils the rest.
[[gnu::format(printf, 2, 0)]] void NoteTiffWarning(const char* module, const char* format, va_list values) {
    std::array<char, 512> buffer{};
    if ((module != nullptr && std::string_view(module) == "Fax4Decode") ||
        SpoilsPage(TextOf(buffer, format, values)))
        damageWasMet = true;
}

// Of a JPEG picture only its first trouble is told. Stray bytes before the end marker come after the whole
// picture.
void NoteMessage(FREE_IMAGE_FORMAT format, const char* message) {
    if (format == FIF_JPEG && !Contains(message, "extraneous bytes before marker 0xd9"))
        damageWasMet = true;
}

}  // namespace

void ListenToLibraries() {
    damageWasMet = false;
    // The listeners are the libraries' own state, and other threads may be decoding already.
    static std::once_flag listening;
    std::call_once(listening, [] {
        const bool hasLibrary = HasImageLibrary();
        TIFFSetErrorHandler(NoteTiffError);
        TIFFSetWarningHandler(NoteTiffWarning);
        if (hasLibrary)
            Library().SetOutputMessage(NoteMessage);
    });
}

bool DamageWasMet() {
    return damageWasMet;
}

}  // namespace tavrene::imaging
