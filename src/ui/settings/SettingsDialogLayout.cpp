#include <QDir>
#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QScrollArea>

#include "ui/base/CalmWheel.h"
#include "ui/base/FitToScreen.h"
#include "ui/base/PaneParts.h"
#include "ui/base/QtText.h"
#include "ui/settings/SettingsDialog.h"
#include "ui/settings/TrySamples.h"

namespace tavrene::ui {

using commands::Bar;

namespace {

constexpr int kMargin = 12;
constexpr int kSpacing = 10;
constexpr QSize kFirstSize(760, 710);

QLabel* HelpLabel(const QString& text) {
    auto* const label = new QLabel(text);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return label;
}

QScrollBar* MakeBar(Qt::Orientation orientation, const char* name, const QString& accessibleName, int lowest,
                    int highest) {
    auto* const bar = new QScrollBar(orientation);
    bar->setObjectName(name);
    bar->setAccessibleName(accessibleName);
    bar->setRange(lowest, highest);
    bar->setSingleStep(1);
    bar->setPageStep(1);
    // The library turns the keys of every scroll bar round, which fits an upright one whose top is its start;
    // on a lying one the right arrow key would go left.
    bar->setInvertedControls(orientation == Qt::Vertical);
    bar->setFocusPolicy(Qt::StrongFocus);
    return bar;
}

QSpinBox* MakeNumber(const QString& name, const QString& accessibleName, int lowest, int highest) {
    auto* const number = new QSpinBox;
    number->setObjectName(name);
    number->setAccessibleName(accessibleName);
    number->setRange(lowest, highest);
    new CalmWheel(*number);
    return number;
}

// A preview with its caption above it, its two bars along its lower and right edge, and the numbers below.
QLayout* PreviewBlock(const QString& caption, BoxPreview* preview, QScrollBar* widthBar,
                      QScrollBar* heightBar, QLayout* numbers) {
    auto* const layout = new QGridLayout;
    layout->setSpacing(4);
    widthBar->setFixedWidth(BoxPreview::kSide);
    heightBar->setFixedHeight(BoxPreview::kSide);
    layout->addWidget(new QLabel(caption), 0, 0, Qt::AlignHCenter);
    layout->addWidget(preview, 1, 0);
    layout->addWidget(heightBar, 1, 1);
    layout->addWidget(widthBar, 2, 0);
    layout->addLayout(numbers, 3, 0, 1, 2);
    return layout;
}

}  // namespace

void SettingsDialog::Build() {
    BuildBars();
    BuildNumbers();
    BuildProcessingControls();
    // On a small screen the frames scroll, and the buttons stay in sight.
    auto* const frames = new QScrollArea;
    frames->setObjectName("Frames");
    frames->setFrameShape(QFrame::NoFrame);
    frames->setFocusPolicy(Qt::NoFocus);
    frames->setWidgetResizable(true);
    frames->setWidget(Frames());
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, kMargin);
    layout->addWidget(frames, 1);
    layout->addWidget(Buttons());
    ResizeWithinScreen(*this, kFirstSize);
}

QWidget* SettingsDialog::Frames() {
    auto* const frames = new QWidget;
    auto* const layout = new QGridLayout(frames);
    // Also on the right, between the frames and their scroll bar.
    layout->setContentsMargins(kMargin, kMargin, kMargin, 0);
    layout->setSpacing(kSpacing);
    layout->addWidget(PathFrame(), 0, 0);
    layout->addWidget(SizeFrame(), 0, 1);
    layout->addWidget(ProcessingFrame(), 1, 0, 1, 2);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(0, 1);
    return frames;
}

void SettingsDialog::BuildBars() {
    using commands::BoxSizeBars;
    const auto make = [this](Bar bar, Qt::Orientation orientation, const char* name, const QString& meaning) {
        QScrollBar* const control =
            MakeBar(orientation, name, meaning, BoxSizeBars::kLowest, BoxSizeBars::kHighest);
        bars_[static_cast<std::size_t>(bar)] = control;
        connect(control, &QScrollBar::valueChanged, this,
                [this, bar](int position) { MoveBar(bar, position); });
    };
    make(Bar::MinWidth, Qt::Horizontal, "HScroll1", Tr("SettingsDialog", "Minimum box width"));
    make(Bar::MinHeight, Qt::Vertical, "VScroll1", Tr("SettingsDialog", "Minimum box height"));
    make(Bar::MaxWidth, Qt::Horizontal, "HScroll2", Tr("SettingsDialog", "Maximum box width"));
    make(Bar::MaxHeight, Qt::Vertical, "VScroll2", Tr("SettingsDialog", "Maximum box height"));
    smallest_ = new BoxPreview("Picture1");
    smallest_->setAccessibleName(Tr("SettingsDialog", "Minimum box"));
    largest_ = new BoxPreview("Picture2");
    largest_->setAccessibleName(Tr("SettingsDialog", "Maximum box"));
    sizeLabel_ = new QLabel(Tr("SettingsDialog", "Size"));
    sizeLabel_->setObjectName("lblSize");
    sizeLabel_->setAlignment(Qt::AlignCenter);
}

void SettingsDialog::BuildNumbers() {
    for (const Bar bar : commands::kAllBars) {
        const QScrollBar* const control = BarOf(bar);
        QSpinBox* const number =
            MakeNumber("num" + control->objectName(),
                       Tr("SettingsDialog", "%1 in pixels").arg(control->accessibleName()),
                       commands::BoxSizeBars::kLowest, commands::BoxSizeBars::MostPixels(bar));
        numbers_[static_cast<std::size_t>(bar)] = number;
        connect(number, &QSpinBox::valueChanged, this, [this, bar](int pixels) {
            sizes_.SetPixels(bar, pixels);
            ShowSizes();
        });
    }
}

QLayout* SettingsDialog::SizeNumbers(Bar width, Bar height) {
    auto* const layout = new QHBoxLayout;
    layout->setSpacing(4);
    layout->addWidget(NumberOf(width));
    layout->addWidget(new QLabel("x"));
    layout->addWidget(NumberOf(height));
    return layout;
}

void SettingsDialog::BuildProcessingControls() {
    display_ = new QCheckBox(Tr("SettingsDialog", "Display Image/Results during extraction process"));
    display_->setObjectName("chkDisplayDuringProcess");
    single_ =
        new QCheckBox(Tr("SettingsDialog", "Process single image at a time when PROCESS button is pressed"));
    single_->setObjectName("chkProcessSingle");
    threshold_ =
        MakeBar(Qt::Horizontal, "HScroll3", Tr("SettingsDialog", "Fill threshold in percent"), 1, 100);
    thresholdLabel_ = new QLabel;
    thresholdLabel_->setObjectName("lblThreshold");
    thresholdLabel_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    thresholdLabel_->setMinimumWidth(fontMetrics().horizontalAdvance("1000"));
    connect(threshold_, &QScrollBar::valueChanged, thresholdLabel_, qOverload<int>(&QLabel::setNum));
    thresholdNumber_ =
        MakeNumber("numHScroll3", threshold_->accessibleName(), threshold_->minimum(), threshold_->maximum());
    thresholdNumber_->setSuffix(" %");
    connect(threshold_, &QScrollBar::valueChanged, thresholdNumber_, &QSpinBox::setValue);
    connect(thresholdNumber_, &QSpinBox::valueChanged, threshold_, &QScrollBar::setValue);
}

QWidget* SettingsDialog::PathFrame() {
    folder_ = new FolderChooser;
    auto* const frame = new QGroupBox(Tr("SettingsDialog", "Working Path"));
    auto* const layout = new QVBoxLayout(frame);
    layout->setSpacing(kSpacing);
    if (isFirstStart_)
        layout->addWidget(Welcome());
    layout->addWidget(
        HelpLabel(Tr("SettingsDialog",
                     "Please select a suitable working folder for your application. "
                     "The required sub-folders will be automatically created within the selected "
                     "working folder.")));
    layout->addWidget(folder_, 1);
    return frame;
}

// There is no working folder yet, and the person has perhaps never seen the program.
QWidget* SettingsDialog::Welcome() {
    welcome_ = HelpLabel(
        Tr("SettingsDialog",
           "<b>Welcome.</b> The profiles of your forms, the scans and the results lie in one working folder. "
           "Type its "
           "path, click it in the list, or make a new one."));
    welcome_->setObjectName("lblWelcome");
    auto* const samples = new QPushButton(Tr("SettingsDialog", "&Try with Samples..."));
    samples->setObjectName("cmdSamples");
    samples->setToolTip(
        Tr("SettingsDialog",
           "Copies sample forms and scans to a folder of your choice, to try the program on them"));
    samples->setAutoDefault(false);
    samples->setVisible(!SamplesFolder().isEmpty());
    connect(samples, &QPushButton::clicked, this, [this] { TakeSamples(); });
    auto* const pane = new QWidget;
    auto* const layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(welcome_);
    layout->addWidget(samples, 0, Qt::AlignLeft);
    return pane;
}

QWidget* SettingsDialog::SizeFrame() {
    auto* const reset = new QPushButton(Tr("SettingsDialog", "Reset to Default"));
    reset->setObjectName("cmdReset");
    reset->setAutoDefault(false);
    connect(reset, &QPushButton::clicked, this, [this] { Reset(); });
    auto* const previews = new QHBoxLayout;
    previews->addStretch();
    previews->addLayout(PreviewBlock(Tr("SettingsDialog", "MIN"), smallest_, BarOf(Bar::MinWidth),
                                     BarOf(Bar::MinHeight), SizeNumbers(Bar::MinWidth, Bar::MinHeight)));
    previews->addSpacing(24);
    previews->addLayout(PreviewBlock(Tr("SettingsDialog", "MAX"), largest_, BarOf(Bar::MaxWidth),
                                     BarOf(Bar::MaxHeight), SizeNumbers(Bar::MaxWidth, Bar::MaxHeight)));
    previews->addStretch();
    auto* const frame = new QGroupBox(Tr("SettingsDialog", "Box Size"));
    auto* const layout = new QVBoxLayout(frame);
    layout->setSpacing(kSpacing);
    layout->addLayout(previews);
    layout->addWidget(sizeLabel_);
    layout->addWidget(reset, 0, Qt::AlignHCenter);
    layout->addWidget(
        HelpLabel(Tr("SettingsDialog",
                     "This box size is used for Profiling only. "
                     "You may choose to vary the box size that best fits a profile you wish to create. "
                     "You are free to change this for every new profile. "
                     "Once a profile is created, the size(s) information here becomes irrelevant since "
                     "it is not used during recognition of filled images. "
                     "Effectively, this gives you the capability to create profiles with different box "
                     "sizes.")),
        1);
    return frame;
}

QWidget* SettingsDialog::ProcessingFrame() {
    auto* const frame = new QGroupBox(Tr("SettingsDialog", "Processing"));
    auto* const layout = new QGridLayout(frame);
    layout->setVerticalSpacing(kSpacing);
    layout->addWidget(display_, 0, 0, 1, 2);
    layout->addWidget(single_, 1, 0, 1, 2);
    layout->addWidget(
        HelpLabel(Tr("SettingsDialog",
                     "Fill Threshold Percentage - The level at which a box is considered filled. "
                     "Default = 8.")),
        2, 0, 1, 2);
    layout->addWidget(threshold_, 3, 0);
    layout->addWidget(thresholdLabel_, 3, 1);
    layout->addWidget(thresholdNumber_, 3, 2);
    layout->setColumnStretch(0, 1);
    return frame;
}

QWidget* SettingsDialog::Buttons() {
    auto* const save = new QPushButton(Tr("SettingsDialog", "&Save"));
    save->setObjectName("cmdOK");
    save->setDefault(true);
    auto* const cancel = new QPushButton(Tr("SettingsDialog", "&Cancel"));
    cancel->setObjectName("cmdCancel");
    cancel->setAutoDefault(false);
    // Some folder has to be the working folder, so the first start takes the one that the program runs in.
    const QString cancelDoes = isFirstStart_ ? Tr("SettingsDialog", "Cancel keeps %1 as the working folder.")
                                                   .arg(QDir::toNativeSeparators(folder_->CurrentFolder()))
                                             : Tr("SettingsDialog", "Closes the dialog; nothing is changed.");
    SetPlainToolTip(*cancel, cancelDoes);
    auto* const note = new QLabel(isFirstStart_ ? cancelDoes : QString());
    note->setObjectName("lblCancel");
    note->setTextFormat(Qt::PlainText);
    note->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    // The path may be longer than the dialog is wide; the button's tool tip has it whole.
    note->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    connect(save, &QPushButton::clicked, this, [this] { Save(); });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* const buttons = new QWidget;
    auto* const layout = new QHBoxLayout(buttons);
    layout->setContentsMargins(kMargin, 0, kMargin, 0);
    layout->addWidget(note, 1);
    layout->addWidget(save);
    layout->addWidget(cancel);
    return buttons;
}

}  // namespace tavrene::ui
