#pragma once

#include <QDialog>
#include <QObject>
#include <QString>
#include <QStringList>

#include "app/WorkingFolders.h"
#include "ui/shell/MainWindow.h"

namespace tavrene::tour {

/// Drives the real window through a processing run by the buttons that a person would press, opens a profile
/// and selects one of its boxes, turns a mark in review without saving it, and takes a picture at each stage.
/// Meant for a working folder that has scans waiting and for settings that show pages during a run.
class Driver final : public QObject {
  public:
    /// Pictures go to `shotsFolder`, which is made when it is missing.
    Driver(ui::MainWindow& window, const QString& shotsFolder);

    /// Runs all stages; returns when that is done.
    void Drive();

    /// Reads what waits by Precise Alignment, opens a form that lies upside down, and looks into the manual.
    /// The program then reads as it did at first.
    void ReadPrecisely();

    /// Makes a profile, tries it, reviews and exports; closes the window.
    void TellStory(const app::WorkingFolders& folders);

    /// Paths of the pictures taken.
    const QStringList& Shots() const { return shots_; }

  protected:
    void timerEvent(QTimerEvent* event) override;

  private:
    void ShootWindow(const QString& name);
    void Shoot(QWidget& widget, const QString& name);
    void Press(const char* key);
    void ShootProfileDesk();
    void ShootReview();
    void WaitForDoubts();
    void CloseSummary();
    void OpenForm(const QString& name);
    void ShootSettingsDialog();

    /// Takes a picture of the dialog that the next command opens and gives it to `close`.
    void ShootNextDialog(const QString& name, void (*close)(QDialog& dialog));

    ui::MainWindow& window_;
    QString shotsFolder_;
    QStringList shots_;
    bool shotDuringRun_ = false;
};

}  // namespace tavrene::tour
