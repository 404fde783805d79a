#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "ui/base/QtText.h"

namespace tavrene::test {

/// Answers the dialogs that open while it lives in the scripted order and keeps what they showed. One that
/// opens without a scripted answer fails the test and is closed.
class DialogScript {
  public:
    DialogScript() {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
            if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
                Answer(*dialog);
        });
        timer_.start(1);
    }
    ~DialogScript() { EXPECT_TRUE(answers_.empty()) << answers_.size() << " dialogs did not open"; }
    DialogScript(const DialogScript&) = delete;
    DialogScript& operator=(const DialogScript&) = delete;

    DialogScript& Press(QMessageBox::StandardButton button) {
        answers_.emplace_back([button](QDialog& dialog) {
            auto* const box = qobject_cast<QMessageBox*>(&dialog);
            ASSERT_NE(box, nullptr);
            ASSERT_NE(box->button(button), nullptr) << FromDialog(dialog);
            box->button(button)->click();
        });
        return *this;
    }

    /// Gives the answer that the dialog proposes.
    DialogScript& PressEnter() {
        answers_.emplace_back([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
        return *this;
    }

    /// Types a name or path into a file dialog and confirms.
    DialogScript& Type(const std::string& name) {
        answers_.emplace_back([name](QDialog& dialog) {
            auto* const edit = dialog.findChild<QLineEdit*>("fileNameEdit");
            ASSERT_NE(edit, nullptr);
            edit->setText(ui::ToQt(name));
            // Not from within the timer, which does not strike again before this returns: there may be a
            // question first.
            QTimer::singleShot(0, &dialog, [&dialog] { dialog.accept(); });
        });
        return *this;
    }

    DialogScript& Do(std::function<void(QDialog&)> act) {
        answers_.push_back(std::move(act));
        return *this;
    }

    DialogScript& Cancel() {
        answers_.emplace_back([](QDialog& dialog) { dialog.reject(); });
        return *this;
    }

    std::vector<std::string> shown;
    std::vector<std::string> titles;

  private:
    void Answer(QDialog& dialog) {
        shown.push_back(FromDialog(dialog));
        titles.push_back(ui::FromQt(dialog.windowTitle()));
        if (answers_.empty()) {
            ADD_FAILURE() << "no answer is scripted for: " << shown.back();
            dialog.reject();
            return;
        }
        const auto answer = std::exchange(answers_.front(), {});
        answers_.pop_front();
        answer(dialog);
    }

    static std::string FromDialog(QDialog& dialog) {
        if (const auto* const box = qobject_cast<QMessageBox*>(&dialog))
            return ui::FromQt(box->text());
        const auto* const files = qobject_cast<QFileDialog*>(&dialog);
        if (files == nullptr)
            return ui::FromQt(dialog.objectName());
        return ui::FromQt(files->directory().absolutePath() + "/|" +
                          files->findChild<QLineEdit*>("fileNameEdit")->text() + "|" +
                          files->findChild<QComboBox*>("fileTypeCombo")->currentText());
    }

    QTimer timer_;
    std::deque<std::function<void(QDialog&)>> answers_;
};

}  // namespace tavrene::test
