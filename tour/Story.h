#pragma once

#include <QDialog>
#include <QStringList>
#include <deque>
#include <exception>
#include <functional>
#include <string>

#include "app/WorkingFolders.h"
#include "ui/shell/MainWindow.h"

namespace tavrene::tour {

/// What a person does with the program besides runs, in the real window: a profile from a blank form, named,
/// grouped, tried and saved; boxes in doubt, pages that were not read, a form accepted and one rejected, and
/// tables of the results. Meant for a working folder whose forms have been processed.
class Story {
  public:
    using Shoot = std::function<void(QWidget& widget, const QString& name)>;

    /// `shoot` takes a picture. Everything must outlive the story.
    Story(ui::MainWindow& window, const app::WorkingFolders& folders, Shoot shoot)
        : window_(window), folders_(folders), shoot_(std::move(shoot)) {}

    /// Throws std::runtime_error where the program does not do what the story tells.
    void Tell();

  private:
    using Act = std::function<void(QDialog& dialog)>;

    void MakeProfile();
    void TryProfile();
    void JudgeDoubts();
    void Decide();
    void Export();
    void Trigger(const char* command);

    /// Triggers a command and does to the dialogs that it opens, one after the other, what `acts` say.
    void Trigger(const char* command, std::deque<Act> acts);

    ui::MainWindow& window_;
    const app::WorkingFolders& folders_;
    Shoot shoot_;
    std::exception_ptr failure_;  ///< Of what was done in a dialog.
};

}  // namespace tavrene::tour
