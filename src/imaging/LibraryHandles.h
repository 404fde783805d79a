#pragma once

#include <memory>
#include <span>

#include "app/Files.h"

struct FIMEMORY;
struct FIMULTIBITMAP;

namespace tavrene::imaging {

struct CloseHandle {
    void operator()(FIMEMORY* memory) const;
    void operator()(FIMULTIBITMAP* document) const;
};

/// The image library's files in memory, and its documents of several pages.
using MemoryHandle = std::unique_ptr<FIMEMORY, CloseHandle>;
using DocumentHandle = std::unique_ptr<FIMULTIBITMAP, CloseHandle>;

/// A file in memory to be written to.
MemoryHandle NewMemory();

/// `content` as a file to be read; it must outlive the handle.
MemoryHandle MemoryOver(std::span<const std::byte> content);

/// A copy of what was written.
app::Bytes BytesOf(const MemoryHandle& memory);

}  // namespace tavrene::imaging
