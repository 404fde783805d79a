#pragma once

#include <QCheckBox>
#include <QListView>
#include <QTreeWidget>

#include "profiles/ProfileDocument.h"
#include "ui/DialogScript.h"
#include "ui/WindowWorld.h"

namespace tavrene::test {

/// The real window with profiles to choose from, driven by mouse and keyboard.
class DeskWindow : public WindowWorld {
  protected:
    DeskWindow() {
        settings_.BoxMinWidth = settings_.BoxMinHeight = 16;
        settings_.BoxMaxWidth = 38;
        settings_.BoxMaxHeight = 34;
    }

    QListView& Strip() { return Find<QListView>(*window_, "ImgThumbnail1"); }
    QTreeWidget& Rows() { return Find<QTreeWidget>(*window_, "lvwSettings"); }
    int Thumbnails() { return Strip().model()->rowCount(); }

    /// Number of the selected thumbnail; 0 for none.
    int SelectedThumbnail() {
        const QModelIndexList selected = Strip().selectionModel()->selectedIndexes();
        return selected.size() == 1 ? selected.front().row() + 1 : 0;
    }

    void ClickThumbnail(int k) {
        const QModelIndex index = Strip().model()->index(k - 1, 0);
        Strip().scrollTo(index);
        QTest::mouseClick(Strip().viewport(), Qt::LeftButton, Qt::NoModifier,
                          Strip().visualRect(index).center());
    }

    void ClickRow(int row) {
        QTreeWidgetItem* const item = Rows().topLevelItem(row);
        Rows().scrollToItem(item);
        QTest::mouseClick(Rows().viewport(), Qt::LeftButton, Qt::NoModifier,
                          Rows().visualItemRect(item).center());
    }

    std::vector<std::string> RowTexts() {
        std::vector<std::string> texts;
        for (int row = 0; row < Rows().topLevelItemCount(); ++row)
            texts.push_back(ui::FromQt(Rows().topLevelItem(row)->text(0)));
        return texts;
    }

    /// Mouse events at points of the page frame.
    void Mouse(QEvent::Type type, const QPointF& point, Qt::MouseButton button = Qt::LeftButton) {
        QWidget& page = *View().viewport();
        const QPointF position = View().viewportTransform().map(point);
        const Qt::MouseButtons down =
            type == QEvent::MouseButtonRelease ? Qt::MouseButtons() : Qt::MouseButtons(button);
        QMouseEvent event(type, position, page.mapToGlobal(position),
                          type == QEvent::MouseMove ? Qt::NoButton : button, down, Qt::NoModifier);
        QApplication::sendEvent(&page, &event);
    }
    void Drag(const QPointF& from, const QPointF& to) {
        Mouse(QEvent::MouseButtonPress, from);
        Mouse(QEvent::MouseMove, (from + to) / 2);
        Mouse(QEvent::MouseMove, to);
        Mouse(QEvent::MouseButtonRelease, to);
    }
    void ClickPage(const QPointF& point) {
        Mouse(QEvent::MouseButtonPress, point);
        Mouse(QEvent::MouseButtonRelease, point);
    }

    /// The boxes of a profile as its document has them.
    std::vector<profiles::OmrBox> Saved(const std::string& name) const {
        return profiles::ReadProfileContent(
                   profiles::LoadProfileDocument(files_, folders_.Profiles + name + ".Tvp"))
            .Boxes;
    }
};

}  // namespace tavrene::test
