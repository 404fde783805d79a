#include "ui/ProfilePane.h"

#include <QLabel>
#include <QVBoxLayout>

namespace tavrene::ui {

ProfilePane::ProfilePane(QWidget* parent) : QFrame(parent) {
    setObjectName("ProfilePane");
    auto* const hint = new QLabel("No profile is open");
    hint->setObjectName("ImgThumbnail1");
    hint->setAccessibleName("Profile specimens");
    hint->setAlignment(Qt::AlignCenter);
    hint->setWordWrap(true);
    QPalette calm = hint->palette();
    QColor text = calm.color(QPalette::WindowText);
    text.setAlphaF(0.55F);
    calm.setColor(QPalette::WindowText, text);
    hint->setPalette(calm);
    auto* const active = new QCheckBox("Profile active");
    active->setObjectName("chkActive");
    active->setToolTip("Whether the open profile takes part in processing");
    active->setAccessibleName("Profile active");
    active->setEnabled(false);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 10, 10, 10);
    layout->addWidget(hint, 1);
    layout->addWidget(active);
}

}  // namespace tavrene::ui
