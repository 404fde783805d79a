#pragma once

#include <memory>
#include <span>

#include "app/Files.h"

struct FIBITMAP;
struct FIMEMORY;
struct FIMULTIBITMAP;
struct FITAG;

namespace tavrene::imaging {

struct CloseHandle {
    void operator()(FIMEMORY* memory) const;
    void operator()(FIMULTIBITMAP* document) const;
    void operator()(FIBITMAP* bitmap) const;
    void operator()(FITAG* tag) const;
};

/// The image library's bitmaps, tags, files in memory and documents of several pages.
using BitmapHandle = std::unique_ptr<FIBITMAP, CloseHandle>;
using TagHandle = std::unique_ptr<FITAG, CloseHandle>;
using MemoryHandle = std::unique_ptr<FIMEMORY, CloseHandle>;
using DocumentHandle = std::unique_ptr<FIMULTIBITMAP, CloseHandle>;

/// A file in memory to be written to.
MemoryHandle NewMemory();

/// `content` as a file to be read; it must outlive the handle.
MemoryHandle MemoryOver(std::span<const std::byte> content);

/// A copy of what was written.
app::Bytes BytesOf(const MemoryHandle& memory);

}  // namespace tavrene::imaging
