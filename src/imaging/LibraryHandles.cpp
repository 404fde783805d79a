#include "imaging/LibraryHandles.h"

#include <stdexcept>

#include "imaging/ImageLibrary.h"

namespace tavrene::imaging {

void CloseHandle::operator()(FIMEMORY* memory) const {
    Library().CloseMemory(memory);
}

void CloseHandle::operator()(FIBITMAP* bitmap) const {
    Library().Unload(bitmap);
}

void CloseHandle::operator()(FITAG* tag) const {
    Library().DeleteTag(tag);
}

void CloseHandle::operator()(FIMULTIBITMAP* document) const {
    Library().CloseMultiBitmap(document, 0);
}

MemoryHandle NewMemory() {
    return MemoryHandle(Library().OpenMemory(nullptr, 0));
}

MemoryHandle MemoryOver(std::span<const std::byte> content) {
    // The library does not write to the memory that it reads from.
    auto* const bytes = const_cast<BYTE*>(reinterpret_cast<const BYTE*>(content.data()));
    return MemoryHandle(Library().OpenMemory(bytes, static_cast<DWORD>(content.size())));
}

app::Bytes BytesOf(const MemoryHandle& memory) {
    BYTE* data = nullptr;
    DWORD size = 0;
    if (!Library().AcquireMemory(memory.get(), &data, &size))
        throw std::runtime_error("There is not enough memory for an image file.");
    const auto bytes = std::as_bytes(std::span(data, size));
    return {bytes.begin(), bytes.end()};
}

}  // namespace tavrene::imaging
