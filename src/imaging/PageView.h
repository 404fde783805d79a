#pragma once

#include <string>

namespace tavrene::imaging {

/// The image view of the screen as the operations below the window see it.
class PageView {
  public:
    virtual ~PageView() = default;

    /// Shows a page image from its file (UTF-8 path); a file that cannot be read leaves the view empty.
    virtual void ShowFile(const std::string& path) = 0;
    virtual void Clear() = 0;

    /// Zoom in percent; one image pixel is one screen pixel at 100.
    virtual double Zoom() const = 0;
    virtual void SetZoom(double percent) = 0;

    /// Paints what has changed now, without taking other events.
    virtual void Refresh() = 0;
};

}  // namespace tavrene::imaging
