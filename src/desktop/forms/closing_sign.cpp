#include "desktop/forms/closing_sign.h"

#include "console/crash_report.h"
#include "desktop/theme/theme.h"

namespace quorrin {

ClosingSign::ClosingSign(QWidget& window)
    : window_(window), label_(new QLabel(QString::fromStdString(closingText()), &window)) {
    label_->setObjectName(QStringLiteral("closingSign"));
    label_->setAlignment(Qt::AlignCenter);
    label_->hide();
}

void ClosingSign::show() {
    if (shown()) return;
    const Theme& theme = currentTheme();
    label_->setStyleSheet(
        QStringLiteral("background: %1; color: %2; border-radius: %3px; font-weight: 600;")
            .arg(theme.busy.block.name(), theme.busy.onBlock.name(), QString::number(theme.radius)));
    QFont large = window_.font();
    large.setPointSizeF(large.pointSizeF() * theme.wordSize);
    label_->setFont(large);
    label_->resize(label_->sizeHint() + QSize(8 * theme.space, 6 * theme.space));
    label_->move(QRect({}, window_.size()).center() - label_->rect().center());
    label_->show();
    label_->raise();
}

}  // namespace quorrin
