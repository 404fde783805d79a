#pragma once

#include <QCache>
#include <QImage>
#include <QString>
#include <deque>
#include <string>
#include <vector>

#include "review/DoubtSheet.h"

namespace tavrene::ui {

/// A box and what is close around it, as a picture.
struct BoxCrop {
    QImage picture;  ///< Null where the page cannot be read.
    QString name;    ///< Of the box.
};

/// The pictures of the boxes that are in sight, a bounded number of them: made when somebody asks for the
/// next one, those first that were wanted last, since they are what is looked at now.
class SheetCrops {
  public:
    /// The sheet must outlive the object.
    explicit SheetCrops(review::DoubtSheet& sheet) : sheet_(sheet), made_(kMost) {}

    /// The picture of a box; null while it is not made, which it is wanted to be from here on.
    const BoxCrop* Find(const review::SheetBox& box);

    /// Makes those pictures that are wanted of one more form. Gives its document; empty when none is wanted.
    std::string MakeNext();

  private:
    static constexpr int kMost = 600;

    struct Wanted {
        std::string document;
        int row = 0;
    };

    void Make(const Wanted& wanted, const review::LookedAt& form, const QImage& page);

    review::DoubtSheet& sheet_;
    QCache<QString, BoxCrop> made_;
    std::deque<Wanted> wanted_;  ///< The newest at the front.
};

}  // namespace tavrene::ui
