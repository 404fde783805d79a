#include "ui/shell/SummaryPanel.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTextDocumentFragment>
#include <algorithm>
#include <utility>

#include "ui/base/PaneParts.h"
#include "ui/base/QtText.h"
#include "ui/base/Shown.h"
#include "ui/commands/RunTexts.h"

namespace tavrene::ui {
namespace {

constexpr int kNameWidth = 260;
constexpr std::size_t kMostLines = 6;

ReasonList* MakeList(QWidget* parent) {
    auto* const list =
        new ReasonList({Tr("SummaryPanel", "File"), Tr("SummaryPanel", "What became of it")}, {}, parent);
    list->setObjectName("SummaryFiles");
    list->setAccessibleName(Tr("SummaryPanel", "Files of the last run"));
    list->header()->resizeSection(0, kNameWidth);
    return list;
}

QString LineOf(const recognition::RunSummary& summary) {
    QStringList parts;
    for (const commands::SummaryPart& part : commands::SummaryParts(summary)) {
        const QString text = Shown(part.text);
        const QString linked =
            part.link.empty() ? text : QString("<a href=\"%1\">%2</a>").arg(ToQt(part.link), text);
        parts += part.lead.empty() ? linked : Shown(part.lead) + ' ' + linked;
    }
    return parts.join(" &nbsp;|&nbsp; ");
}

}  // namespace

SummaryPanel::SummaryPanel(QWidget* parent)
    : QFrame(parent), text_(new QLabel(this)), files_(MakeList(this)) {
    setObjectName("SummaryPanel");
    setAccessibleName(Tr("SummaryPanel", "What became of the files of the last run"));
    setFrameShape(QFrame::StyledPanel);
    text_->setObjectName("lblSummary");
    text_->setAccessibleName(Tr("SummaryPanel", "Numbers of the last run, each a link to its files"));
    text_->setTextFormat(Qt::RichText);
    text_->setWordWrap(true);
    text_->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    QToolButton* const close = CloseButton(this, "cmdCloseSummary", Tr("SummaryPanel", "Close the summary"));
    auto* const row = new QHBoxLayout;
    row->setContentsMargins(10, 3, 6, 3);
    row->addWidget(text_, 1);
    row->addWidget(close, 0, Qt::AlignTop);
    QVBoxLayout* const layout = FillingColumn(this);
    layout->addLayout(row);
    layout->addWidget(files_);
    connect(text_, &QLabel::linkActivated, this, [this](const QString& link) {
        if (link == commands::kSplitLink)
            split_();
        else
            ShowList(link == link_ ? QString() : link);
    });
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    hide();
}

void SummaryPanel::Show(const recognition::RunSummary& summary) {
    summary_ = summary;
    const QString line = LineOf(summary_);
    text_->setText(line);
    text_->setAccessibleDescription(QTextDocumentFragment::fromHtml(line).toPlainText());
    ShowList(ToQt(commands::WorstLink(summary_).value_or("")));
    show();
}

bool SummaryPanel::Close() {
    const bool wasOpen = isVisible();
    hide();
    return wasOpen;
}

void SummaryPanel::ShowList(const QString& link) {
    link_ = link;
    std::vector<ReasonRow> rows;
    for (const recognition::FileReport& file : commands::FilesBehind(summary_, FromQt(link)))
        rows.push_back({file.name, file.reason});
    const int lines = static_cast<int>(std::min(rows.size(), kMostLines));
    // On a small screen the page keeps the greater part; a window that is made smaller takes it from the
    // list.
    files_->setMinimumHeight(files_->HeightOf(1));
    files_->setMaximumHeight(
        std::max(files_->HeightOf(1), std::min(files_->HeightOf(lines), window()->height() / 4)));
    files_->setVisible(lines > 0);
    files_->Show(std::move(rows));
}

}  // namespace tavrene::ui
