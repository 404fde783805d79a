#include "ui/profiling/ProfilePane.h"

#include "ui/base/PaneParts.h"
#include "ui/base/QtText.h"

namespace tavrene::ui {

ProfilePane::ProfilePane(QWidget* parent)
    : QFrame(parent),
      strip_(new ThumbnailStripView(this)),
      active_(new QCheckBox(Tr("ProfilePane", "Profile active"))) {
    setObjectName("ProfilePane");
    active_->setObjectName("chkActive");
    active_->setToolTip(
        Tr("ProfilePane",
           "Whether the open profile takes part in processing; reaches the file with the next save"));
    active_->setAccessibleName(Tr("ProfilePane", "Profile active"));
    active_->setEnabled(false);
    active_->setContentsMargins(0, 0, 0, 0);
    ControlsBelow(this, strip_)->addWidget(active_);
}

}  // namespace tavrene::ui
