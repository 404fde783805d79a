#include "ui/scanning/ScanDialog.h"

#include <QCoreApplication>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <type_traits>
#include <utility>

#include "app/Reason.h"
#include "ui/base/QtText.h"
#include "ui/base/Shown.h"

namespace tavrene::ui {
namespace {

struct Paper {
    const char* name;
    double width;  // millimetres
    double height;
};

constexpr std::array kPapers = {Paper{"A4", 210, 297}, Paper{"A5", 148, 210}, Paper{"Letter", 215.9, 279.4},
                                Paper{"Legal", 215.9, 355.6},
                                Paper{QT_TRANSLATE_NOOP("ScanDialog", "All that the scanner takes"), 0, 0}};

QString CountedPages(std::size_t pages) {
    if (pages == 0)
        return Tr("ScanDialog", "No page has come in.");
    return pages == 1 ? Tr("ScanDialog", "1 page is in ProcessIn.")
                      : Tr("ScanDialog", "%1 pages are in ProcessIn.").arg(pages);
}

}  // namespace

ScanDialog::ScanDialog(Context context, ScanChoice choice, QWidget* parent)
    : QDialog(parent),
      context_(std::move(context)),
      choice_(std::move(choice)),
      devices_(List("cboScanner", Tr("ScanDialog", "Scanner"))),
      sources_(List("cboSource", Tr("ScanDialog", "Source"))),
      modes_(List("cboScanMode", Tr("ScanDialog", "Mode"))),
      resolutions_(List("cboResolution", Tr("ScanDialog", "Resolution"))),
      papers_(List("cboPaper", Tr("ScanDialog", "Paper"))) {
    setObjectName("frmScan");
    setWindowTitle(Tr("ScanDialog", "Scan"));
    BuildLayout();
    connect(devices_, &QComboBox::activated, this, [this] { OpenDevice(); });
    connect(again_, &QPushButton::clicked, this, [this] { Look(); });
    connect(scan_, &QPushButton::clicked, this, [this] { Scan(); });
    connect(cancel_, &QPushButton::clicked, this, [this] {
        session_->isCancelled = true;
        told_->setText(Tr("ScanDialog", "Cancelling..."));
    });
    connect(close_, &QPushButton::clicked, this, &QDialog::reject);
    Look();
}

ScanDialog::~ScanDialog() {
    session_->isCancelled = true;
    // The device is let go where it was opened.
    context_.thread.Ask(
        nullptr, ScanThread::AtEnd::LetGo,
        [session = std::move(session_)] {
            session->scanner.reset();
            session->scanners.reset();
            return 0;
        },
        [](int) {});
}

QComboBox* ScanDialog::List(const char* name, const QString& accessibleName) {
    auto* const list = new QComboBox(this);
    list->setObjectName(name);
    list->setAccessibleName(accessibleName);
    return list;
}

void ScanDialog::BuildLayout() {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(12);
    auto* const rows = new QFormLayout;
    auto* const device = new QHBoxLayout;
    devices_->setMinimumContentsLength(36);
    device->addWidget(devices_, 1);
    device->addWidget(again_);
    rows->addRow(Tr("ScanDialog", "Sca&nner:"), device);
    qobject_cast<QLabel*>(rows->labelForField(device))->setBuddy(devices_);
    rows->addRow(Tr("ScanDialog", "S&ource:"), sources_);
    rows->addRow(Tr("ScanDialog", "&Mode:"), modes_);
    rows->addRow(Tr("ScanDialog", "&Resolution:"), resolutions_);
    rows->addRow(Tr("ScanDialog", "&Paper:"), papers_);
    layout->addLayout(rows);
    told_->setObjectName("lblScan");
    told_->setWordWrap(true);
    // Room for two lines, so that nothing jumps while it scans.
    told_->setMinimumHeight(2 * fontMetrics().lineSpacing());
    layout->addWidget(told_);
    busy_->setObjectName("barScan");
    busy_->setRange(0, 0);
    busy_->setTextVisible(false);
    busy_->setAccessibleName(Tr("ScanDialog", "The scanner is at work"));
    QSizePolicy policy = busy_->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    busy_->setSizePolicy(policy);
    layout->addWidget(busy_);
    auto* const buttons = new QHBoxLayout;
    buttons->addStretch(1);
    for (const auto& [button, name] :
         {std::pair{scan_, "cmdScan"}, {cancel_, "cmdCancelScan"}, {close_, "cmdClose"}}) {
        button->setObjectName(name);
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }
    again_->setObjectName("cmdLookAgain");
    again_->setAutoDefault(false);
    scan_->setDefault(true);
    layout->addLayout(buttons);
}

void ScanDialog::Look() {
    SetState(State::Looking, Tr("ScanDialog", "Looking for scanners..."));
    context_.thread.Ask(
        this, ScanThread::AtEnd::LetGo,
        [session = session_, &sane = context_.sane] {
            session->scanner.reset();
            // Begun anew, for some devices are found only then.
            session->scanners.reset();
            session->scanners = std::make_unique<intake::Scanners>(sane);
            return session->scanners->Find();
        },
        [this](std::vector<intake::ScanDevice> devices) { ShowDevices(std::move(devices)); });
}

void ScanDialog::ShowDevices(std::vector<intake::ScanDevice> devices) {
    found_ = std::move(devices);
    devices_->clear();
    for (const intake::ScanDevice& device : found_)
        devices_->addItem(ToQt(device.label));
    if (found_.empty()) {
        SetState(State::None, Tr("ScanDialog", "No scanner was found. Is it switched on and connected?"));
        return;
    }
    devices_->setCurrentIndex(std::max(devices_->findText(choice_[devices_->objectName()]), 0));
    OpenDevice();
}

void ScanDialog::OpenDevice() {
    SetState(State::Opening, Tr("ScanDialog", "Asking the scanner what it can do..."));
    context_.thread.Ask(
        this, ScanThread::AtEnd::LetGo,
        [session = session_, &sane = context_.sane,
         device = found_.at(static_cast<std::size_t>(devices_->currentIndex()))] {
            Opened opened;
            opened.reason = app::FailureOf([&] {
                session->scanner.reset();
                session->scanner = std::make_unique<intake::Scanner>(sane, device);
                opened.choices = session->scanner->Choices();
            });
            return opened;
        },
        [this](const Opened& opened) { ShowChoices(opened); });
}

void ScanDialog::Fill(QComboBox& list, const QStringList& texts, const QString& usual) {
    list.clear();
    list.addItems(texts);
    const int before = list.findText(choice_[list.objectName()]);
    list.setCurrentIndex(std::max(before < 0 ? list.findText(usual, Qt::MatchContains) : before, 0));
    if (texts.isEmpty())
        list.addItem(Tr("ScanDialog", "As the scanner is set"));
}

void ScanDialog::ShowChoices(const Opened& opened) {
    choices_ = opened.choices;
    QStringList sources;
    QStringList modes;
    QStringList resolutions;
    QStringList papers;
    for (const std::string& source : choices_.sources)
        sources += ToQt(source);
    for (const intake::ScanMode& mode : choices_.modes)
        modes += Shown(mode.label);
    for (const int resolution : choices_.resolutions)
        resolutions += QString::number(resolution) + " dpi";
    for (const Paper& paper : kPapers)
        papers += Tr("ScanDialog", paper.name);
    Fill(*sources_, sources, "Feeder");
    Fill(*modes_, modes, Shown("Black and white"));
    Fill(*resolutions_, resolutions, "300 dpi");
    Fill(*papers_, papers, "A4");
    if (opened.reason.empty())
        SetState(State::Ready, Tr("ScanDialog", "Pages go to ProcessIn as they are scanned."));
    else
        SetState(State::Unusable, Shown(opened.reason));
}

void ScanDialog::Remember() {
    for (const QComboBox* const list : {devices_, sources_, modes_, resolutions_, papers_})
        choice_[list->objectName()] = list->currentText();
}

intake::ScanSettings ScanDialog::Settings() const {
    const auto chosen = [](const auto& values, const QComboBox& list) {
        using Value = std::decay_t<decltype(values.front())>;
        return values.empty() ? Value() : values.at(static_cast<std::size_t>(list.currentIndex()));
    };
    const Paper& paper = kPapers.at(static_cast<std::size_t>(papers_->currentIndex()));
    return {chosen(choices_.sources, *sources_), chosen(choices_.modes, *modes_),
            chosen(choices_.resolutions, *resolutions_), paper.width, paper.height};
}

void ScanDialog::Scan() {
    Remember();
    session_->isCancelled = false;
    SetState(State::Scanning, Tr("ScanDialog", "Scanning page %1...").arg(1));
    const auto watch = [session = session_, guard = QPointer(this),
                        before = std::size_t{0}](std::size_t pages) mutable {
        // It is asked many times a page.
        if (pages != std::exchange(before, pages))
            QMetaObject::invokeMethod(qApp, [guard, pages] {
                if (guard)
                    guard->ShowPages(pages);
            });
        return !session->isCancelled;
    };
    context_.thread.Ask(
        this, ScanThread::AtEnd::Wait,
        [session = session_, &files = context_.files, folders = context_.folders, now = context_.clock.Now(),
         settings = Settings(), watch] {
            intake::Scanned scanned;
            const std::string failure = app::FailureOf(
                [&] { scanned = intake::ScanIn(files, folders, now, *session->scanner, settings, watch); });
            if (!failure.empty())
                scanned.reason = failure;
            return scanned;
        },
        [this](const intake::Scanned& scanned) { ShowEnd(scanned); });
}

void ScanDialog::ShowPages(std::size_t pages) {
    if (state_ == State::Scanning && !session_->isCancelled)
        told_->setText(CountedPages(pages) + ' ' + Tr("ScanDialog", "Scanning page %1...").arg(pages + 1));
}

void ScanDialog::ShowEnd(const intake::Scanned& scanned) {
    pages_ += scanned.images.size();
    QString text = scanned.isCancelled ? Tr("ScanDialog", "Cancelled.") : Shown(scanned.reason);
    if (!text.isEmpty())
        text += ' ';
    SetState(State::Ready, text + CountedPages(scanned.images.size()));
    // A jam or a full disk must not go by unseen.
    if (std::exchange(closesAtEnd_, false) && scanned.reason.empty())
        QDialog::reject();
}

void ScanDialog::reject() {
    if (state_ == State::Scanning && !std::exchange(closesAtEnd_, true)) {
        cancel_->click();
        return;
    }
    QDialog::reject();
}

void ScanDialog::SetState(State state, const QString& text) {
    state_ = state;
    told_->setText(text);
    const bool isAtWork = state == State::Looking || state == State::Opening || state == State::Scanning;
    busy_->setVisible(isAtWork);
    devices_->setEnabled(!isAtWork && state != State::None);
    again_->setEnabled(!isAtWork);
    for (QComboBox* const list : {sources_, modes_, resolutions_, papers_})
        list->setEnabled(state == State::Ready && list->count() > 1);
    scan_->setEnabled(state == State::Ready);
    cancel_->setEnabled(state == State::Scanning);
}

}  // namespace tavrene::ui
