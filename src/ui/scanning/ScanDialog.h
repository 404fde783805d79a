#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <atomic>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "app/Clock.h"
#include "app/Files.h"
#include "app/WorkingFolders.h"
#include "intake/ScanIn.h"
#include "ui/base/QtText.h"
#include "ui/scanning/ScanThread.h"

namespace tavrene::ui {

/// What was chosen, list by list, by the lists' names.
using ScanChoice = std::map<QString, QString>;

/// Chooses a scanner and what it is to do, and scans as often as wanted. The window behind it stays alive.
class ScanDialog final : public QDialog {
  public:
    struct Context {
        const intake::SaneLibrary& sane;
        ScanThread& thread;
        app::Files& files;
        const app::Clock& clock;
        app::WorkingFolders folders;
    };

    /// Everything must outlive the dialog and the thread. `choice` is what was chosen before.
    ScanDialog(Context context, ScanChoice choice, QWidget* parent);
    ~ScanDialog() override;

    /// The pages that came in, over all that was scanned.
    std::size_t Pages() const { return pages_; }

    ScanChoice Choice() const { return choice_; }

    /// While a page is on its way it is waited for, once; what went wrong with it is shown first.
    void reject() override;

  private:
    /// What the thread works with; it goes there with the last that is asked.
    struct Session {
        std::unique_ptr<intake::Scanners> scanners;
        std::unique_ptr<intake::Scanner> scanner;
        std::atomic<bool> isCancelled = false;
    };

    struct Opened {
        intake::ScanChoices choices;
        std::string reason;  ///< Why it cannot be used.
    };

    enum class State { Looking, None, Opening, Unusable, Ready, Scanning };

    QComboBox* List(const char* name, const QString& accessibleName);
    void BuildLayout();
    void Look();
    void ShowDevices(std::vector<intake::ScanDevice> devices);
    void OpenDevice();
    void ShowChoices(const Opened& opened);
    void Fill(QComboBox& list, const QStringList& texts, const QString& usual);
    void Remember();
    intake::ScanSettings Settings() const;
    void Scan();
    void ShowPages(std::size_t pages);
    void ShowEnd(const intake::Scanned& scanned);
    void SetState(State state, const QString& text);

    Context context_;
    ScanChoice choice_;
    std::shared_ptr<Session> session_ = std::make_shared<Session>();
    std::vector<intake::ScanDevice> found_;
    intake::ScanChoices choices_;
    State state_ = State::Looking;
    bool closesAtEnd_ = false;
    std::size_t pages_ = 0;
    QComboBox* devices_;
    QComboBox* sources_;
    QComboBox* modes_;
    QComboBox* resolutions_;
    QComboBox* papers_;
    QLabel* told_ = new QLabel;
    QProgressBar* busy_ = new QProgressBar;
    QPushButton* again_ = new QPushButton(Tr("ScanDialog", "&Look Again"));
    QPushButton* scan_ = new QPushButton(Tr("ScanDialog", "&Scan"));
    QPushButton* cancel_ = new QPushButton(Tr("ScanDialog", "C&ancel"));
    QPushButton* close_ = new QPushButton(Tr("ScanDialog", "&Close"));
};

}  // namespace tavrene::ui
