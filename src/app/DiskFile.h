#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace tavrene::app::disk {

/// An open file descriptor that is closed on every way out.
class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor();
    int Number() const { return number_; }

    /// False when the system refuses; that can be the moment at which a full disk shows.
    bool Close();

  private:
    int number_;
};

/// Throws `FileError`: "Cannot <action> <path>: <the system's words for `error`>".
[[noreturn]] void Refuse(std::string_view action, std::string_view path, int error);

bool WriteAll(int descriptor, std::span<const std::byte> content);

/// A hidden, short name beside `path` that is this process's alone: no pattern lists it, and a long file name
/// leaves room for it.
std::string TemporaryNeighbour(const std::string& path);

/// Gives a finished temporary file its name; one that cannot have it is deleted.
void RenameOver(const std::string& from, const std::string& to, std::string_view action);

/// A rename is on the disk when its folder is. Some file systems refuse to flush a folder; the file is in its
/// place all the same, so that is no failure.
void FlushFolderOf(const std::string& path);

}  // namespace tavrene::app::disk
