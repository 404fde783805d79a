#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "app/Clock.h"

namespace tavrene::app {

using Bytes = std::vector<std::byte>;

/// A file operation that the system refused; `what()` is a plain sentence that names the file and the reason.
class FileError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// A move between file systems that copied the file but could not delete the source: both are there.
class SourceRemains : public FileError {
  public:
    using FileError::FileError;
};

/// Whether a written or moved file must outlive a power cut. A scratch file is made anew with every image
/// anyway. `WithNext` leaves the flush of the folder, which takes as long as all the rest, to the next file
/// that comes to the same folder at once: what is lost then is lost together.
enum class Keep { Durably, AsScratch, WithNext };

/// Every file operation of the program. Paths are UTF-8 text. All but the queries throw `FileError` when
/// refused.
class Files {
  public:
    virtual ~Files() = default;

    virtual bool FileExists(const std::string& path) const = 0;
    virtual bool FolderExists(const std::string& path) const = 0;

    /// A short text on one line that is another one after the file was written or replaced; of a folder,
    /// after a name in it came, went or was replaced. The content is not read. Empty when there is neither.
    virtual std::string Fingerprint(const std::string& path) const = 0;

    /// When the file was last written, by the local clock; none when there is no such file.
    virtual std::optional<LocalTime> WrittenAt(const std::string& path) const = 0;

    /// Creates one folder; its parent must exist.
    virtual void CreateFolder(const std::string& path) = 0;

    /// Names of the files of `folder` that match `pattern` ("*.Tvp", "*"; case does not count), ordered by
    /// lower-cased name. Sub-folders are left out, and names with a leading dot unless the pattern has one.
    virtual std::vector<std::string> List(const std::string& folder, std::string_view pattern) const = 0;

    /// Names of the folders in `folder`, in the same order. Hidden ones are left out, and links too, since
    /// they can lead round in circles.
    virtual std::vector<std::string> ListFolders(const std::string& folder) const = 0;

    /// The whole content; a file of more than a gigabyte is refused before anything of it is read.
    virtual Bytes Read(const std::string& path) const = 0;

    /// Writes a whole file: to a temporary neighbour, then renamed over `path`, so that `path` holds either
    /// its old or its new content at any moment. File and folder are flushed unless it is scratch.
    virtual void Write(const std::string& path, std::span<const std::byte> content,
                       Keep keep = Keep::Durably) = 0;

    /// Appends to a file, creating it when it is missing; opened and closed within the call.
    virtual void Append(const std::string& path, std::string_view text) = 0;

    /// Moves a file, replacing `to`, and flushes the folder that it came to. Across file systems the copy is
    /// complete before the source goes.
    virtual void Move(const std::string& from, const std::string& to, Keep keep = Keep::Durably) = 0;

    virtual void Delete(const std::string& path) = 0;
};

/// The operations on the disk.
class DiskFiles final : public Files {
  public:
    bool FileExists(const std::string& path) const override;
    bool FolderExists(const std::string& path) const override;
    std::string Fingerprint(const std::string& path) const override;
    std::optional<LocalTime> WrittenAt(const std::string& path) const override;
    void CreateFolder(const std::string& path) override;
    std::vector<std::string> List(const std::string& folder, std::string_view pattern) const override;
    std::vector<std::string> ListFolders(const std::string& folder) const override;
    Bytes Read(const std::string& path) const override;
    void Write(const std::string& path, std::span<const std::byte> content, Keep keep) override;
    void Append(const std::string& path, std::string_view text) override;
    void Move(const std::string& from, const std::string& to, Keep keep = Keep::Durably) override;
    void Delete(const std::string& path) override;

  private:
    void MoveAcross(const std::string& from, const std::string& to);
};

/// Deletes the temporary neighbours in a folder (path ending in a separator) that processes left which are no
/// longer running. For the start of the program; what cannot be deleted stays.
void RemoveDeadTemporaries(Files& files, const std::string& folder);

/// The bytes of a text.
std::span<const std::byte> AsBytes(std::string_view text);

/// A path of the standard library from UTF-8 text, and back.
std::filesystem::path ToPath(std::string_view utf8);
std::string FromPath(const std::filesystem::path& path);

/// Name and extension of a path ("form7.tif"), the base name ("form7"), and the extension without its dot
/// ("tif", empty where there is none).
std::string FileName(std::string_view path);
std::string BaseName(std::string_view path);
std::string Extension(std::string_view path);

/// ASCII letters of `text` in upper case; other characters stay. For names of the program's own, like
/// extensions.
std::string UpperCase(std::string_view text);

/// All letters of `text` in lower case, whatever the locale; what is no UTF-8 stays.
std::string LowerCase(std::string_view text);

/// `text` with the first `from` in it replaced by `to`.
std::string ReplaceFirst(std::string text, std::string_view from, std::string_view to);

}  // namespace tavrene::app
