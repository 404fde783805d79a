#include "ui/shell/AboutDialog.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QIcon>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>
#include <optional>

#include "app/SettingsStore.h"
#include "ui/base/QtText.h"

namespace tavrene::ui {
namespace {

struct Tool {
    QString program;
    QStringList arguments;
};

// The first that is there is taken; those that know the whole machine stand before those that show a page of
// settings.
std::optional<Tool> SystemInformationTool() {
    const Tool known[] = {{"kinfocenter", {}},
                          {"hardinfo2", {}},
                          {"hardinfo", {}},
                          {"gnome-control-center", {"info-overview"}},
                          {"cinnamon-settings", {"info"}},
                          {"mate-system-monitor", {"--show-system-tab"}},
                          {"lshw-gtk", {}},
                          {"msinfo32", {}}};
    for (const Tool& tool : known)
        if (const QString found = QStandardPaths::findExecutable(tool.program); !found.isEmpty())
            return Tool{found, tool.arguments};
    return std::nullopt;
}

QString Line(const QString& library, const QString& licence) {
    return "<tr><td>" + library + "</td><td>" + licence + "</td></tr>";
}

QString Libraries() {
    const QString poppler =
        TAVRENE_WITH_PDF ? Line("Poppler", Tr("AboutDialog", "GNU GPL, version 2 or 3")) : QString();
    return "<table cellpadding='2'>" +
           Line(QString("Qt ") + qVersion(), Tr("AboutDialog", "GNU LGPL, version 3")) +
           Line("FreeImage", Tr("AboutDialog", "FreeImage Public License or GNU GPL")) +
           Line("libtiff", Tr("AboutDialog", "libtiff licence")) +
           Line("libxlsxwriter", Tr("AboutDialog", "BSD licence")) +
           Line("pugixml", Tr("AboutDialog", "MIT licence")) + poppler + "</table>";
}

QString Text() {
    // One of the libraries has a licence that holds for the program that is made with it.
    const QString licence = TAVRENE_WITH_PDF
                                ? Tr("AboutDialog",
                                     "Its source is free under the MIT licence. This program is made with "
                                     "Poppler<br>and is given away under the GNU GPL, version 2 or 3.")
                                : Tr("AboutDialog", "Free software under the MIT licence.");
    return "<h3>" + ToQt(app::kApplicationName) + "</h3><p>" +
           Tr("AboutDialog", "Version %1").arg(QApplication::applicationVersion()) + "</p><p>" +
           Tr("AboutDialog", "Reads the check boxes of scanned paper forms.") + "</p><p>" + licence + ' ' +
           Tr("AboutDialog", "It stands on these libraries:") + "</p>" + Libraries();
}

}  // namespace

AboutDialog::AboutDialog(QWidget* parent) : QDialog(parent) {
    setObjectName("frmAbout");
    setWindowTitle(Tr("AboutDialog", "About %1").arg(ToQt(app::kApplicationName)));
    auto* const picture = new QLabel;
    picture->setPixmap(QApplication::windowIcon().pixmap(QSize(64, 64), devicePixelRatioF()));
    auto* const text = new QLabel(Text());
    text->setObjectName("AboutText");
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* const row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(picture, 0, Qt::AlignTop);
    row->addWidget(text, 1);

    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QPushButton* const machine =
        buttons->addButton(Tr("AboutDialog", "&System Information..."), QDialogButtonBox::ActionRole);
    machine->setObjectName("cmdSysInfo");
    machine->setAutoDefault(false);
    const std::optional<Tool> tool = SystemInformationTool();
    machine->setVisible(tool.has_value());
    if (tool)
        connect(machine, &QPushButton::clicked, this,
                [tool] { QProcess::startDetached(tool->program, tool->arguments); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(12);
    layout->addLayout(row);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

}  // namespace tavrene::ui
