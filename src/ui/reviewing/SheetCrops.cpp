#include "ui/reviewing/SheetCrops.h"

#include <algorithm>
#include <optional>

#include "ui/base/QtText.h"
#include "ui/page/PageImage.h"

namespace tavrene::ui {
namespace {

// So much of the box is shown around it, for marks that miss it.
constexpr double kAround = 0.6;

// More than two screens are not waited for by anybody.
constexpr std::size_t kMostWanted = 120;

QString KeyOf(const std::string& document, int row) {
    return ToQt(document) + '\n' + QString::number(row);
}

QImage Cut(const QImage& page, const imaging::PageRect& box, bool isUpsideDown) {
    const QRectF place(box.left, box.top, box.width, box.height);
    const double across = kAround * box.width;
    const double up = kAround * box.height;
    const QImage cut = page.copy(place.adjusted(-across, -up, across, up).toAlignedRect())
                           .convertToFormat(QImage::Format_Grayscale8);
    return isUpsideDown ? cut.mirrored(true, true) : cut;
}

}  // namespace

const BoxCrop* SheetCrops::Find(const review::SheetBox& box) {
    if (const BoxCrop* const made = made_.object(KeyOf(box.Document, box.Row)))
        return made;
    const auto isThis = [&box](const Wanted& one) {
        return one.row == box.Row && one.document == box.Document;
    };
    std::erase_if(wanted_, isThis);
    wanted_.push_front({box.Document, box.Row});
    if (wanted_.size() > kMostWanted)
        wanted_.pop_back();
    return nullptr;
}

std::string SheetCrops::MakeNext() {
    if (wanted_.empty())
        return {};
    std::string document = wanted_.front().document;
    const std::optional<review::LookedAt> form = sheet_.PictureOf(document);
    const QImage page = form ? ToImage(form->page.bitmap) : QImage();
    for (const Wanted& one : wanted_) {
        if (one.document != document)
            continue;
        if (form && static_cast<std::size_t>(one.row) <= form->form.Boxes.size())
            Make(one, *form, page);
        else
            made_.insert(KeyOf(document, one.row), new BoxCrop);
    }
    std::erase_if(wanted_, [&document](const Wanted& one) { return one.document == document; });
    return document;
}

void SheetCrops::Make(const Wanted& wanted, const review::LookedAt& form, const QImage& page) {
    const auto k = static_cast<std::size_t>(wanted.row) - 1;
    auto* const crop = new BoxCrop;
    crop->name = ToQt(form.form.Marks[k].Name);
    if (const auto& place = form.form.Boxes[k].rect)
        crop->picture = Cut(page, *place, form.form.IsUpsideDown);
    made_.insert(KeyOf(wanted.document, wanted.row), crop);
}

}  // namespace tavrene::ui
