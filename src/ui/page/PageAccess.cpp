#include "ui/page/PageAccess.h"

#include <QAccessibleWidget>
#include <QPointer>
#include <map>

#include "ui/base/QtText.h"
#include "ui/page/ImageView.h"

namespace tavrene::ui {
namespace {

using imaging::RectStyle;

class BoxAccess final : public QAccessibleInterface {
  public:
    BoxAccess(ImageView& page, int group) : page_(&page), group_(group) {}

    bool isValid() const override { return Style().has_value(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(page_); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Name || !isValid())
            return {};
        return Style() == RectStyle::Candidate ? Tr("PageAccess", "May be a check box")
                                               : page_->NameOf(group_);
    }
    void setText(QAccessible::Text, const QString&) override {}

    QRect rect() const override {
        if (!isValid())
            return {};
        const QRect shown = page_->viewportTransform().mapRect(page_->Boxes().PlaceOf(group_)).toRect();
        return {page_->viewport()->mapToGlobal(shown.topLeft()), shown.size()};
    }

    // A box of a profile is a shape on the page; only one that was read has a mark.
    QAccessible::Role role() const override {
        const bool isShape = Style() == RectStyle::Editable || Style() == RectStyle::Candidate;
        return isShape ? QAccessible::Graphic : QAccessible::CheckBox;
    }

    QAccessible::State state() const override {
        QAccessible::State state;
        state.invalid = !isValid();
        if (!isValid())
            return state;
        state.checkable = role() == QAccessible::CheckBox;
        state.checked = Style() == RectStyle::Checked;
        state.disabled = Style() == RectStyle::Skipped;
        state.movable = Style() == RectStyle::Editable;
        state.selectable = true;
        state.selected = page_->Boxes().IsMarked(group_);
        state.extSelectable = state.movable;
        state.focusable = true;
        state.focused = page_->Boxes().SelectedBox() == group_ && page_->hasFocus();
        const QRect sight(page_->viewport()->mapToGlobal(QPoint()), page_->viewport()->size());
        state.offscreen = !sight.intersects(rect());
        return state;
    }

  private:
    std::optional<RectStyle> Style() const {
        return page_ == nullptr ? std::nullopt : page_->Boxes().StyleOf(group_);
    }

    QPointer<ImageView> page_;
    int group_;
};

// Scroll bars and viewport are no children: whoever reads the page aloud wants its boxes.
class PageAccess final : public QAccessibleWidget {
  public:
    explicit PageAccess(ImageView& page) : QAccessibleWidget(&page, QAccessible::Canvas), page_(page) {}
    ~PageAccess() override {
        for (const auto& [group, id] : boxes_)
            QAccessible::deleteAccessibleInterface(id);
    }
    PageAccess(const PageAccess&) = delete;
    PageAccess& operator=(const PageAccess&) = delete;

    int childCount() const override { return static_cast<int>(page_.Boxes().Numbers().size()); }

    QAccessibleInterface* child(int index) const override {
        const std::vector<int> groups = page_.Boxes().Numbers();
        const bool isThere = index >= 0 && static_cast<std::size_t>(index) < groups.size();
        return isThere ? OfGroup(groups[static_cast<std::size_t>(index)]) : nullptr;
    }

    int indexOfChild(const QAccessibleInterface* box) const override {
        for (int index = 0; index < childCount(); ++index)
            if (child(index) == box)
                return index;
        return -1;
    }

    QAccessibleInterface* childAt(int x, int y) const override {
        const QPointF point = page_.viewport()->mapFromGlobal(QPoint(x, y));
        return OfGroup(page_.Boxes().BoxAt(page_.viewportTransform().inverted().map(point)));
    }

    QAccessibleInterface* focusChild() const override {
        return page_.hasFocus() ? OfGroup(page_.Boxes().SelectedBox()) : nullptr;
    }

  private:
    QAccessibleInterface* OfGroup(int group) const {
        if (!page_.Boxes().StyleOf(group))
            return nullptr;
        const auto known = boxes_.find(group);
        if (known != boxes_.end())
            return QAccessible::accessibleInterface(known->second);
        auto* const box = new BoxAccess(page_, group);
        boxes_[group] = QAccessible::registerAccessibleInterface(box);
        return box;
    }

    ImageView& page_;
    mutable std::map<int, QAccessible::Id> boxes_;  ///< Of those that were asked for.
};

QAccessibleInterface* AccessOf(const QString&, QObject* object) {
    auto* const page = dynamic_cast<ImageView*>(object);
    return page == nullptr ? nullptr : new PageAccess(*page);
}

}  // namespace

void OfferPagesToAssistiveTools() {
    QAccessible::installFactory(AccessOf);
}

}  // namespace tavrene::ui
