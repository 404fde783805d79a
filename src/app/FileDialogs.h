#pragma once

#include <optional>
#include <string>

namespace tavrene::app {

/// What a file dialog starts with. `filter` has the form "text|patterns", the patterns separated by `;`.
struct FileQuestion {
    std::string title;
    std::string startFolder;  ///< Ends in a separator.
    std::string fileName;     ///< Proposed name; empty for none.
    std::string filter;
    bool isForNew = false;  ///< Of a file to be written: none that is there is taken.
};

/// The dialogs in which the person chooses a file; they give a whole path, or nothing when cancelled.
class FileDialogs {
  public:
    virtual ~FileDialogs() = default;

    /// A file to be written: the path carries the filter's extension, also where the person typed none. Of a
    /// file that is there it has the spelling, and the person has agreed to replace it.
    virtual std::optional<std::string> AskSaveFile(const FileQuestion& question) = 0;

    /// A file that exists.
    virtual std::optional<std::string> AskOpenFile(const FileQuestion& question) = 0;

    /// A folder that exists; the path ends in a separator, as `startFolder` does.
    virtual std::optional<std::string> AskFolder(const std::string& title,
                                                 const std::string& startFolder) = 0;
};

}  // namespace tavrene::app
