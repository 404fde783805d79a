#include "imaging/LibraryHandles.h"

#include <FreeImage.h>

#include <stdexcept>

namespace tavrene::imaging {

void CloseHandle::operator()(FIMEMORY* memory) const {
    FreeImage_CloseMemory(memory);
}

void CloseHandle::operator()(FIMULTIBITMAP* document) const {
    FreeImage_CloseMultiBitmap(document, 0);
}

MemoryHandle NewMemory() {
    return MemoryHandle(FreeImage_OpenMemory());
}

MemoryHandle MemoryOver(std::span<const std::byte> content) {
    // The library does not write to the memory that it reads from.
    auto* const bytes = const_cast<BYTE*>(reinterpret_cast<const BYTE*>(content.data()));
    return MemoryHandle(FreeImage_OpenMemory(bytes, static_cast<DWORD>(content.size())));
}

app::Bytes BytesOf(const MemoryHandle& memory) {
    BYTE* data = nullptr;
    DWORD size = 0;
    if (!FreeImage_AcquireMemory(memory.get(), &data, &size))
        throw std::runtime_error("There is not enough memory for an image file.");
    const auto bytes = std::as_bytes(std::span(data, size));
    return {bytes.begin(), bytes.end()};
}

}  // namespace tavrene::imaging
