#pragma once

#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/Files.h"
#include "recognition/ProfileTrial.h"
#include "ui/lists/BoxListView.h"
#include "ui/page/ImageView.h"

namespace tavrene::ui {

/// What scans are tried with.
struct TrialContext {
    const app::Files& files;
    std::vector<profiles::ProfileRecord> profiles;  ///< Those that a run would look at,
    std::size_t tried = 0;                          ///< and which of them is tried.
    std::string folder;                             ///< Whose scans are offered; ends in a separator.
    std::vector<std::string> scans;                 ///< Those that lie there, by their whole paths.
    recognition::PreciseReader& precise;
    recognition::TrialWay way = recognition::TrialWay::Plain;
    int threshold = 0;                      ///< Percent, as runs use it.
    std::function<void(int)> useThreshold;  ///< Lets runs use another one.
};

/// The dialog of `TestProfile`: scans with the boxes of a profile where reading puts them, and their ink.
/// Nothing is written. The marks follow the threshold while it is moved.
class TestProfileDialog final : public QDialog {
  public:
    TestProfileDialog(TrialContext context, QWidget* parent);

  private:
    void Build();
    QWidget* ScanColumn();
    QWidget* Controls();
    void AddScans(const std::vector<std::string>& paths);
    void ChooseScans();
    void Step(int by);
    void ShowScan();
    void ReadScan();
    void ShowNothing(const QString& why);
    void ShowMarks();

    TrialContext context_;
    std::optional<imaging::Page> scan_;
    recognition::Trial trial_;
    QListWidget* scans_;
    ImageView* page_;
    BoxListView* boxes_;
    QRadioButton* plain_;
    QRadioButton* exact_;
    QSlider* threshold_;
    QLabel* percent_;
    QLabel* verdict_;
    QLabel* counts_;
    QPushButton* use_;
};

/// The image files of a folder (path ending in a separator) that reading takes, by their whole paths.
std::vector<std::string> ScansIn(const app::Files& files, const std::string& folder);

}  // namespace tavrene::ui
