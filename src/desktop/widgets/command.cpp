#include "desktop/widgets/command.h"

#include <QCursor>
#include <QFontMetricsF>
#include <QPainter>
#include <cmath>

#include "desktop/theme/theme.h"
#include "desktop/widgets/accessible_controls.h"
#include "desktop/widgets/button_skin.h"
#include "desktop/widgets/control_look.h"
#include "desktop/widgets/strokes.h"

namespace quorrin {

namespace {

QRect rectOf(const SliceRect& piece) {
    return {piece.left, piece.top, piece.width, piece.height};
}

}  // namespace

Command::Command(QWidget* parent) : QWidget(parent) {
    connectModel();
}

Command::Command(const CommandButtonProperties& properties, const QIcon& icon, QWidget* parent)
    : QWidget(parent), model_(properties), icon_(icon), ownLook_(true), ownFontColor_(true) {
    if (!properties.font.ambient()) setFont(fontOf(properties.font, font()));
    setEnabled(properties.enabled);
    connectModel();
}

void Command::connectModel() {
    announceAccessibleControls();
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    setMouseTracking(true);
    cursorPosition = [] { return QCursor::pos(); };
    watch_.setObjectName(QStringLiteral("Timer1"));
    watch_.setParent(this);
    watch_.setInterval(kHoverWatchMs);
    connect(&watch_, &QTimer::timeout, this, [this] { model_.watchTick(cursorInside()); });
    model_.onWatch = [this](bool on) { on ? watch_.start() : watch_.stop(); };
    model_.onRedraw = [this] { update(); };
    const auto pass = [](const std::function<void()>& event) {
        if (event) event();
    };
    model_.onClick = [this, pass] { pass(onClick); };
    model_.onDoubleClick = [this, pass] { pass(onDoubleClick); };
    model_.onMouseOut = [this, pass] { pass(onMouseOut); };
    model_.onMouseDown = [this, pass](const MouseStroke&) { pass(onPress); };
    model_.onMouseUp = [this, pass](const MouseStroke&) { pass(onRelease); };
    // A parent that is disabled has told so before anybody here could hear it.
    model_.setEnabled(isEnabled());
    layOut();
}

QString Command::caption() const {
    return QString::fromStdString(model_.properties().caption);
}

void Command::setCaption(const QString& caption) {
    model_.setCaption(caption.toStdString());
    layOut();
    announceNewName(*this);
}

void Command::setIcon(const QIcon& icon) {
    icon_ = icon;
    model_.setIcon(icon.isNull() ? 0 : 1);
    layOut();
}

void Command::setIconSize(QSize size) {
    iconSize_ = size;
    layOut();
    update();
}

void Command::setIconAlign(std::int32_t align) {
    model_.setIconAlign(align);
    layOut();
}

void Command::setFontChoice(const FontChoice& font) {
    model_.setFont(font);
    // From the ambient font anew, so that nothing of an earlier choice stays.
    setFont(QFont());
    if (!font.ambient()) setFont(fontOf(font, this->font()));
}

void Command::setLookKind(LookKind kind) {
    kind_ = kind;
    ownLook_ = false;
    ownFontColor_ = false;
    update();
}

void Command::setButtonLook(std::int32_t look) {
    ownLook_ = true;
    model_.setButtonLook(look);
}

void Command::setFontColor(Colour colour) {
    ownFontColor_ = true;
    model_.setFontColor(colour);
}

std::int32_t Command::look() const {
    return ownLook_ ? model_.properties().buttonLook : buttonLook(kind_, currentTheme().dark);
}

QColor Command::captionColour() const {
    const SkinLook& skin = skinLook(look());
    if (!model_.properties().enabled) return skin.disabledCaption;
    return ownFontColor_ ? windowColour(model_.properties().fontColor) : skin.caption;
}

void Command::press() {
    model_.press();
}

FaceSize Command::captionSize() const {
    const QString text = caption();
    if (text.isEmpty()) return {};
    // Rounded up: a caption that fits but for a fraction would lose its end.
    const double width = std::ceil(QFontMetricsF(font()).horizontalAdvance(text));
    return {static_cast<int>(width), fontMetrics().height()};
}

FaceSize Command::iconFace() const {
    if (!model_.imgButtonVisible()) return {};
    if (iconSize_.isValid()) return {iconSize_.width(), iconSize_.height()};
    return {fontMetrics().height(), fontMetrics().height()};
}

QSize Command::sizeHint() const {
    const FaceSize size = faceSizeHint(captionSize(), iconFace(), model_.properties().iconAlign);
    return {size.width, size.height};
}

void Command::layOut() {
    model_.setSizes({width(), height()}, captionSize(), iconFace());
    updateGeometry();
}

bool Command::cursorInside() const {
    // A display that tells no cursor outside of the program's windows still tells that it has left.
    return !pointerLeft_ && rect().contains(mapFromGlobal(cursorPosition()));
}

void Command::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Drawn wanted{model_.cell(), look(), size(), painter.deviceTransform().m11()};
    if (skin_.isNull() || drawn_ != wanted) {
        skin_ = skinnedButton(wanted.cell, wanted.look, wanted.size, wanted.ratio);
        drawn_ = wanted;
    }
    painter.drawImage(0, 0, skin_);
    drawFace(painter);
}

void Command::drawFace(QPainter& painter) const {
    const ButtonFace face = model_.face();
    // Before the icon, which may be drawn in the colour of the writing.
    painter.setPen(captionColour());
    if (model_.imgButtonVisible()) {
        icon_.paint(&painter, rectOf(face.imgButton), Qt::AlignCenter,
                    model_.properties().enabled ? QIcon::Normal : QIcon::Disabled);
    }
    const QString text = fontMetrics().elidedText(caption(), Qt::ElideRight, face.lbl.width);
    painter.drawText(rectOf(face.lbl), Qt::AlignCenter | Qt::TextSingleLine | Qt::TextDontClip, text);
    if (hasFocus()) {
        painter.setPen(QPen(captionColour(), 1, Qt::DotLine));
        painter.setBrush(Qt::NoBrush);
        // Qt's outline of a rectangle lies one pixel beyond it.
        painter.drawRect(rectOf(face.focus).adjusted(0, 0, -1, -1));
    }
}

void Command::resizeEvent(QResizeEvent*) {
    layOut();
}

void Command::changeEvent(QEvent* event) {
    switch (event->type()) {
        case QEvent::EnabledChange:
            model_.setEnabled(isEnabled());
            break;
        case QEvent::FontChange:
            layOut();
            break;
        case QEvent::ActivationChange:
            // Another window has come up, and with it the release may be lost.
            if (!isActiveWindow()) model_.letGo();
            break;
        case QEvent::PaletteChange:
            update();
            break;
        default:
            break;
    }
    QWidget::changeEvent(event);
}

void Command::hideEvent(QHideEvent*) {
    model_.gone();
}

void Command::mousePressEvent(QMouseEvent* event) {
    model_.mouseDown(mouseStroke(*event));
}

void Command::mouseDoubleClickEvent(QMouseEvent* event) {
    model_.mouseDoubleClick(mouseStroke(*event));
}

void Command::mouseMoveEvent(QMouseEvent* event) {
    pointerLeft_ = false;
    model_.mouseMove(mouseStroke(*event));
}

void Command::mouseReleaseEvent(QMouseEvent* event) {
    model_.mouseUp(mouseStroke(*event));
}

void Command::enterEvent(QEnterEvent*) {
    pointerLeft_ = false;
}

void Command::leaveEvent(QEvent*) {
    pointerLeft_ = true;
}

void Command::keyPressEvent(QKeyEvent* event) {
    event->setAccepted(model_.keyDown(keyStroke(*event)));
}

void Command::keyReleaseEvent(QKeyEvent* event) {
    event->setAccepted(model_.keyUp(keyStroke(*event)));
}

void Command::focusInEvent(QFocusEvent*) {
    update();
}

void Command::focusOutEvent(QFocusEvent*) {
    model_.letGo();
    update();
}

}  // namespace quorrin
