#include "ui/profiling/ProfilePane.h"

#include <QVBoxLayout>

namespace tavrene::ui {

ProfilePane::ProfilePane(QWidget* parent)
    : QFrame(parent), strip_(new ThumbnailStripView(this)), active_(new QCheckBox("Profile active")) {
    setObjectName("ProfilePane");
    active_->setObjectName("chkActive");
    active_->setToolTip(
        "Whether the open profile takes part in processing; reaches the file with the next save");
    active_->setAccessibleName("Profile active");
    active_->setEnabled(false);
    active_->setContentsMargins(0, 0, 0, 0);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(strip_, 1);
    auto* const below = new QVBoxLayout;
    below->setContentsMargins(10, 8, 10, 10);
    below->addWidget(active_);
    layout->addLayout(below);
}

}  // namespace tavrene::ui
