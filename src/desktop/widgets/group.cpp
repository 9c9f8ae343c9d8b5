#include "desktop/widgets/group.h"

#include <QPainter>
#include <QVBoxLayout>

#include "console/control_words.h"
#include "desktop/theme/theme.h"
#include "desktop/widgets/shadow_label.h"

namespace quorrin {

Group::Group(const QString& name, const QString& title, QWidget* parent) : QWidget(parent) {
    const Theme& theme = currentTheme();
    setObjectName(name);
    setAccessibleName(QString::fromStdString(frameName(name.toStdString())));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(theme.space, theme.gap + 1, theme.space, theme.space - 2);
    column->setSpacing(theme.gap);
    if (title.isEmpty()) return;
    ShadowLabelProperties properties;
    properties.caption = title.toStdString();
    properties.wordWrap = false;
    auto* label = new ShadowLabel(properties, this);
    label->setObjectName(name + ".title");
    QFont bold = label->font();
    bold.setWeight(QFont::DemiBold);
    label->setFont(bold);
    titleLine_ = new QHBoxLayout;
    titleLine_->addWidget(label, 1);
    column->addLayout(titleLine_);
}

void Group::setContents(QLayout* contents) {
    static_cast<QVBoxLayout*>(layout())->addLayout(contents, 1);
}

void Group::putBesideTitle(QWidget* widget) {
    titleLine_->addWidget(widget);
}

void Group::paintEvent(QPaintEvent*) {
    const Theme& theme = currentTheme();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(theme.line, 1));
    painter.setBrush(theme.surface);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), theme.radius, theme.radius);
}

}  // namespace quorrin
