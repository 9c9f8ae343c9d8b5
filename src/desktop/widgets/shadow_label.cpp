#include "desktop/widgets/shadow_label.h"

#include <QEvent>
#include <QFontMetrics>
#include <QPainter>
#include <QTextLayout>
#include <algorithm>
#include <cmath>
#include <utility>

#include "desktop/widgets/accessible_controls.h"
#include "desktop/widgets/control_look.h"

namespace quorrin {

ShadowLabel::ShadowLabel(const QString& name, QWidget* parent) : QWidget(parent) {
    setObjectName(name);
    properties_.caption = name.toStdString();
    start();
}

ShadowLabel::ShadowLabel(const ShadowLabelProperties& properties, QWidget* parent)
    : QWidget(parent), properties_(properties) {
    setEnabled(properties.enabled);
    if (!properties.font.ambient()) setFont(fontOf(properties.font, font()));
    start();
}

void ShadowLabel::start() {
    announceAccessibleControls();
    // A parent that is disabled has told so before anybody here could hear it.
    properties_.enabled = isEnabled();
    setWordWrap(properties_.wordWrap);
}

void ShadowLabel::setCaption(const QString& caption) {
    properties_.caption = caption.toStdString();
    redraw();
    announceNewName(*this);
}

void ShadowLabel::setAlignment(std::int32_t alignment) {
    properties_.alignment = alignment;
    redraw();
}

void ShadowLabel::setAutosize(bool autosize) {
    properties_.autosize = autosize;
    redraw();
}

void ShadowLabel::setForeColor(Colour colour) {
    properties_.foreColor = colour;
    redraw();
}

void ShadowLabel::setBackColor(Colour colour) {
    properties_.backColor = colour;
    redraw();
}

void ShadowLabel::setShadowColor(Colour colour) {
    properties_.shadowColor = colour;
    redraw();
}

void ShadowLabel::setWordWrap(bool wrap) {
    properties_.wordWrap = wrap;
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed, QSizePolicy::Label);
    policy.setHeightForWidth(wrap);
    setSizePolicy(policy);
    redraw();
}

void ShadowLabel::setFontChoice(const FontChoice& font) {
    properties_.font = font;
    // From the ambient font anew, so that nothing of an earlier choice stays.
    setFont(QFont());
    if (!font.ambient()) setFont(fontOf(font, this->font()));
    redraw();
}

void ShadowLabel::setSystemColours(SystemColours colours) {
    colours_ = std::move(colours);
    redraw();
}

void ShadowLabel::redraw() {
    drawn_ = QImage();
    if (properties_.autosize) {
        const FaceSize wanted = drawing().control;
        resize(wanted.width, wanted.height);
    }
    updateGeometry();
    update();
}

int ShadowLabel::textFlags() const {
    const int side = properties_.alignment == kAlignRight    ? Qt::AlignRight
                     : properties_.alignment == kAlignCentre ? Qt::AlignHCenter
                                                             : Qt::AlignLeft;
    return side | Qt::AlignTop | (properties_.wordWrap ? Qt::TextWordWrap : Qt::TextSingleLine);
}

FaceSize ShadowLabel::measured(int width) const {
    const QRect room(0, 0, width > 0 ? width : QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    // From the left: on the right of so wide a room there would be no exact number left.
    const int flags = (textFlags() & ~Qt::AlignHorizontal_Mask) | Qt::AlignLeft;
    const QSize size = fontMetrics().boundingRect(room, flags, caption()).size();
    return {size.width(), size.height()};
}

LabelDrawing ShadowLabel::drawing() const {
    return labelDrawing(
        properties_, {width(), height()}, [this](int room) { return measured(room); },
        colours_ ? *colours_ : systemColours(palette()));
}

QSize ShadowLabel::sizeHint() const {
    const FaceSize size = labelSize(properties_.caption.empty() ? FaceSize{} : measured(0));
    return {size.width, size.height};
}

QSize ShadowLabel::minimumSizeHint() const {
    if (!properties_.wordWrap) return sizeHint();
    // The longest word; a width of one breaks at every blank.
    const int narrowest = properties_.caption.empty() ? 0 : measured(1).width;
    return {labelSize({narrowest, 0}).width, sizeHint().height()};
}

int ShadowLabel::heightForWidth(int width) const {
    if (properties_.caption.empty()) return labelSize({}).height;
    return labelSize(measured(std::max(1, width - kShadowReach))).height;
}

// The lines are found once; each of the draws only puts them elsewhere.
void ShadowLabel::layOut(QTextLayout& lines, int width) const {
    const Qt::Alignment side = Qt::Alignment(textFlags()) & Qt::AlignHorizontal_Mask;
    QTextOption option(side);
    option.setWrapMode(properties_.wordWrap ? QTextOption::WordWrap : QTextOption::NoWrap);
    lines.setTextOption(option);
    double y = 0;
    lines.beginLayout();
    for (QTextLine line = lines.createLine(); line.isValid(); line = lines.createLine()) {
        double x = 0;
        line.setLineWidth(width);
        if (!properties_.wordWrap) {
            // A line that is too long sticks out on the side that its alignment leaves.
            const double natural = std::ceil(line.naturalTextWidth());
            line.setLineWidth(natural);
            x = side == Qt::AlignRight     ? width - natural
                : side == Qt::AlignHCenter ? (width - natural) / 2
                                           : 0;
        }
        line.setPosition({std::floor(x), y});
        y += line.height();
    }
    lines.endLayout();
}

QImage ShadowLabel::drawnText(double ratio) const {
    QImage picture(static_cast<int>(std::ceil(width() * ratio)),
                   static_cast<int>(std::ceil(height() * ratio)), QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(ratio);
    const LabelDrawing list = drawing();
    picture.fill(list.filled ? windowColour(list.ground) : QColor(Qt::transparent));
    if (list.draws.empty()) return picture;
    QString text = caption();
    text.replace('\n', properties_.wordWrap ? QChar(QChar::LineSeparator) : QChar(' '));
    QTextLayout lines(text, font());
    layOut(lines, list.draws.front().rectangle.width);
    QPainter painter(&picture);
    for (const TextDraw& draw : list.draws) {
        painter.setPen(windowColour(draw.colour));
        // The picture's edge is the control's: what goes beyond is cut there, not at the text's rectangle.
        lines.draw(&painter, QPointF(draw.rectangle.left, draw.rectangle.top));
    }
    return picture;
}

void ShadowLabel::paintEvent(QPaintEvent*) {
    if (width() <= 0 || height() <= 0) return;
    QPainter painter(this);
    const double ratio = painter.deviceTransform().m11();
    if (drawn_.deviceIndependentSize().toSize() != size() || drawn_.devicePixelRatio() != ratio)
        drawn_ = drawnText(ratio);
    painter.drawImage(0, 0, drawn_);
}

void ShadowLabel::changeEvent(QEvent* event) {
    switch (event->type()) {
        case QEvent::EnabledChange:
            properties_.enabled = isEnabled();
            redraw();
            break;
        case QEvent::FontChange:
        case QEvent::PaletteChange:
            redraw();
            break;
        default:
            break;
    }
    QWidget::changeEvent(event);
}

}  // namespace quorrin
