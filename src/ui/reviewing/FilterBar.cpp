#include "ui/reviewing/FilterBar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <array>

#include "ui/base/CalmWheel.h"
#include "ui/base/QtText.h"

namespace tavrene::ui {
namespace {

constexpr std::array kKinds = {QT_TRANSLATE_NOOP("FilterBar", "All forms"),
                               QT_TRANSLATE_NOOP("FilterBar", "Not reviewed"),
                               QT_TRANSLATE_NOOP("FilterBar", "In doubt")};

}  // namespace

FilterBar::FilterBar(QWidget* parent)
    : QWidget(parent), kind_(new QComboBox(this)), text_(new QLineEdit(this)) {
    kind_->setObjectName("cboFilter");
    kind_->setAccessibleName(Tr("FilterBar", "Which forms the list shows"));
    kind_->setToolTip(Tr("FilterBar", "Which forms the list shows"));
    kind_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    for (const char* const kind : kKinds)
        kind_->addItem(Tr("FilterBar", kind));
    text_->setObjectName("txtFilter");
    text_->setAccessibleName(Tr("FilterBar", "Text that the names of the forms hold"));
    text_->setPlaceholderText(Tr("FilterBar", "Name holds..."));
    text_->setClearButtonEnabled(true);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(6, 4, 6, 4);
    layout->addWidget(kind_, 1);
    layout->addWidget(text_, 1);
    new CalmWheel(*kind_);
    connect(kind_, &QComboBox::currentIndexChanged, this, [this] { Tell(); });
    connect(text_, &QLineEdit::textChanged, this, [this] { Tell(); });
}

void FilterBar::OfferProfiles(const QStringList& names) {
    const QString chosen = kind_->currentText();
    {
        const QSignalBlocker quiet(kind_);
        while (kind_->count() > static_cast<int>(kKinds.size()))
            kind_->removeItem(kind_->count() - 1);
        for (const QString& name : names)
            kind_->addItem(Tr("FilterBar", "Profile %1").arg(name), name);
        kind_->setCurrentIndex(std::max(0, kind_->findText(chosen)));
    }
    if (kind_->currentText() != chosen)
        Tell();
}

// Otherwise it would close the window.
void FilterBar::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) {
        QWidget::keyPressEvent(event);
        return;
    }
    text_->clear();
    if (left_)
        left_();
}

void FilterBar::Tell() {
    const int index = kind_->currentIndex();
    const bool isProfile = index >= static_cast<int>(kKinds.size());
    const auto kind = isProfile ? FormFilter::Kind::OfProfile : static_cast<FormFilter::Kind>(index);
    if (changed_)
        changed_({kind, kind_->currentData().toString(), text_->text()});
}

}  // namespace tavrene::ui
