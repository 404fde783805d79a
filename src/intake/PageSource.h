#pragma once

#include <memory>
#include <string>
#include <variant>

#include "app/Files.h"
#include "imaging/Bitmap.h"

namespace tavrene::intake {

/// Why something cannot be brought in: a plain sentence without the file's name.
struct Reason {
    std::string text;
};

/// The pages of one file.
class PageSource {
  public:
    virtual ~PageSource() = default;
    virtual int PageCount() const = 0;

    /// Page `index`, counted from 0, with its resolution. Throws std::runtime_error when there is no memory.
    virtual std::variant<imaging::Bitmap, Reason> Page(int index) = 0;
};

/// The pages of a file by its content, whatever its name: a PDF, a TIFF, or one picture of another kind that
/// the image library reads.
std::variant<std::unique_ptr<PageSource>, Reason> OpenPages(app::Bytes content);

/// How many pages a file has; 0 when it cannot be told.
int CountPages(app::Bytes content);

}  // namespace tavrene::intake
