#pragma once

#include <QCheckBox>
#include <QDropEvent>
#include <QGraphicsView>
#include <QListView>
#include <QMimeData>
#include <QTest>
#include <QTreeWidget>
#include <memory>

#include "profiles/ProfileDocument.h"
#include "support/Faults.h"
#include "support/RunWorld.h"
#include "ui/Controls.h"
#include "ui/DialogScript.h"
#include "ui/page/ImageView.h"
#include "ui/settings/QtSettingsStore.h"
#include "ui/shell/MainWindow.h"

namespace tavrene::test {

/// The real window over a working folder of its own, driven by mouse and keyboard.
class DeskWindow : public RunWorld {
  protected:
    DeskWindow() {
        settings_.DisplayDuringProcess = true;
        settings_.BoxMinWidth = settings_.BoxMinHeight = 16;
        settings_.BoxMaxWidth = 38;
        settings_.BoxMaxHeight = 34;
    }

    ui::MainWindow& Open(app::FolderLock* folder = nullptr) {
        window_ =
            std::make_unique<ui::MainWindow>(settings_, ui::WindowContext{store_, files_, clock_, folder});
        window_->Load();
        window_->show();
        window_->activateWindow();
        QApplication::processEvents();
        return *window_;
    }

    void Click(const char* key, const char* toolbar = "MainToolbar") {
        Button(*window_, toolbar, key).click();
    }

    /// Through the window's shortcuts, as from the keyboard.
    static void Press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        widget.activateWindow();
        QApplication::processEvents();
        QTest::keyClick(&widget, key, modifiers);
    }

    static void Fill(QMimeData& data, const std::vector<std::string>& paths) {
        QList<QUrl> urls;
        for (const std::string& path : paths)
            urls += QUrl::fromLocalFile(ui::ToQt(path));
        data.setUrls(urls);
    }

    /// Files over the page, as from a file manager.
    bool Drop(const std::vector<std::string>& paths) {
        QMimeData data;
        Fill(data, paths);
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(window_.get(), &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(window_.get(), &drop);
        QApplication::processEvents();
        return true;
    }

    ui::ImageView& View() { return dynamic_cast<ui::ImageView&>(Find<QGraphicsView>(*window_, "ImgEdit1")); }
    std::string Panel(const char* key) { return ui::FromQt(Find<QLabel>(*window_, key).text()); }
    /// What stands in the strip over the page, one notice a line; empty while it is not to be seen.
    std::string Notices() {
        auto& strip = Find<QFrame>(*window_, "MessageStrip");
        QStringList texts;
        if (strip.isVisible())
            for (const QLabel* const label : strip.findChildren<QLabel*>())
                if (!label->isHidden() && !label->parentWidget()->isHidden())
                    texts += label->text();
        return ui::FromQt(texts.join('\n'));
    }
    QListView& Strip() { return Find<QListView>(*window_, "ImgThumbnail1"); }
    QTreeWidget& Rows() { return Find<QTreeWidget>(*window_, "lvwSettings"); }
    int Thumbnails() { return Strip().model()->rowCount(); }

    /// Number of the selected thumbnail; 0 for none.
    int SelectedThumbnail() {
        const QModelIndexList selected = Strip().selectionModel()->selectedIndexes();
        return selected.size() == 1 ? selected.front().row() + 1 : 0;
    }

    /// On a line of a list, from 0.
    static void ClickOn(QAbstractItemView& list, int line) {
        const QModelIndex index = list.model()->index(line, 0);
        list.scrollTo(index);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(index).center());
    }
    void ClickThumbnail(int k) { ClickOn(Strip(), k - 1); }
    void ClickRow(int row) { ClickOn(Rows(), row); }

    std::vector<std::string> RowTexts() {
        std::vector<std::string> texts;
        for (int row = 0; row < Rows().topLevelItemCount(); ++row)
            texts.push_back(ui::FromQt(Rows().topLevelItem(row)->text(0)));
        return texts;
    }

    /// Mouse events at points of the page frame.
    void Mouse(QEvent::Type type, const QPointF& point, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers keys = Qt::NoModifier) {
        QWidget& page = *View().viewport();
        const QPointF position = View().viewportTransform().map(point);
        const Qt::MouseButtons down =
            type == QEvent::MouseButtonRelease ? Qt::MouseButtons() : Qt::MouseButtons(button);
        QMouseEvent event(type, position, page.mapToGlobal(position),
                          type == QEvent::MouseMove ? Qt::NoButton : button, down, keys);
        QApplication::sendEvent(&page, &event);
    }
    void Drag(const QPointF& from, const QPointF& to, Qt::KeyboardModifiers keys = Qt::NoModifier) {
        Mouse(QEvent::MouseButtonPress, from, Qt::LeftButton, keys);
        Mouse(QEvent::MouseMove, (from + to) / 2, Qt::LeftButton, keys);
        Mouse(QEvent::MouseMove, to, Qt::LeftButton, keys);
        Mouse(QEvent::MouseButtonRelease, to, Qt::LeftButton, keys);
    }
    void ClickPage(const QPointF& point, Qt::KeyboardModifiers keys = Qt::NoModifier) {
        Mouse(QEvent::MouseButtonPress, point, Qt::LeftButton, keys);
        Mouse(QEvent::MouseButtonRelease, point, Qt::LeftButton, keys);
    }

    static QRectF PlaceOf(const profiles::OmrBox& box) {
        return {QPointF(box.L, box.T), QPointF(box.R, box.B)};
    }

    /// The boxes of a profile as its document has them.
    std::vector<profiles::OmrBox> Saved(const std::string& name) const {
        return profiles::ReadProfileContent(
                   profiles::LoadProfileDocument(files_, folders_.Profiles + name + ".Tvp"))
            .Boxes;
    }

    TempFolder config_;
    ui::QtSettingsStore store_{ui::ToQt(config_.Path())};
    std::unique_ptr<ui::MainWindow> window_;
};

}  // namespace tavrene::test
