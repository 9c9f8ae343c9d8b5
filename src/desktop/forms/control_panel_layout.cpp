// Where everything is on the control panel: driving, looking, speaking side by side under a heading.
#include <QLabel>
#include <QPainter>
#include <QSizePolicy>

#include "console/control_words.h"
#include "console/menu_words.h"
#include "desktop/forms/control_panel_window.h"
#include "desktop/forms/placing.h"
#include "desktop/theme/theme.h"

namespace quorrin {

namespace {

constexpr int kKeySide = 44;  // for a thumb
constexpr int kBarLength = 120;

QLabel* text(const std::string& words, Qt::Alignment alignment = Qt::AlignCenter) {
    auto* const label = new QLabel(QString::fromStdString(words));
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(alignment);
    return label;
}

QLabel* caption(const Control& control) {
    return text(fieldLabel(control.form().name(), control.name()));
}

QLabel* title(const std::string& group) {
    QLabel* const label = text(frameTitle(group));
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

// A group on a ground of its own.
class Card : public QWidget {
  public:
    explicit Card(QLayout* contents) {
        contents->setContentsMargins(currentTheme().space, currentTheme().space, currentTheme().space,
                                     currentTheme().space);
        setLayout(contents);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        const Theme& theme = currentTheme();
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(theme.line, 1));
        painter.setBrush(theme.surface);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), theme.radius, theme.radius);
    }
};

QVBoxLayout* under(QWidget* above, QWidget* below) {
    auto* const column = new QVBoxLayout;
    column->setSpacing(2);
    column->addWidget(above);
    column->addWidget(below, 0, Qt::AlignHCenter);
    return column;
}

}  // namespace

void ControlPanelWindow::layOut() {
    auto* const all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addWidget(body_);
    auto* const rows = new QVBoxLayout(body_);
    rows->setContentsMargins(currentTheme().space, currentTheme().gap, currentTheme().space,
                             currentTheme().space);
    rows->setSpacing(currentTheme().gap);
    auto* const groups = new QHBoxLayout;
    groups->setSpacing(currentTheme().space);
    groups->addWidget(driving());
    groups->addWidget(looking());
    groups->addWidget(speaking());
    rows->addLayout(groups, 1);
    // Made last, so that Tab comes to the key that closes the panel last.
    rows->insertWidget(0, heading());
    all->setSizeConstraint(QLayout::SetFixedSize);
}

QWidget* ControlPanelWindow::heading() {
    auto* const row = new QHBoxLayout;
    QLabel* const title = text(quorrin::windowTitle(form_.name()), Qt::AlignVCenter | Qt::AlignLeft);
    QFont font = title->font();
    font.setBold(true);
    title->setFont(font);
    row->setContentsMargins(currentTheme().gap, 0, 0, 0);
    row->addWidget(title, 1);
    QWidget* const close = key("cmdClose", IconName::close);
    constexpr int kSmallSide = 36;
    close->setFixedSize(close->sizeHint().expandedTo(QSize(kSmallSide, kSmallSide)));
    row->addWidget(close);
    auto* const heading = new QWidget;
    heading->setLayout(row);
    return heading;
}

QWidget* ControlPanelWindow::driving() {
    QGridLayout* const all = grid();
    all->setHorizontalSpacing(currentTheme().space);
    all->addWidget(caption(form_.cmdGasUp), 0, 0);
    all->addWidget(key("cmdGasUp", IconName::arrowUp), 1, 0, Qt::AlignHCenter);
    all->addWidget(bar(form_.scrGas, Qt::Vertical), 2, 0, Qt::AlignHCenter);
    all->addWidget(key("cmdGasDown", IconName::arrowDown), 3, 0, Qt::AlignHCenter);
    QWidget* const level = controls_("slbGasLevel");
    level->setMinimumWidth(level->fontMetrics().horizontalAdvance(QStringLiteral("-32768")));
    if (auto* label = dynamic_cast<ShadowLabel*>(level)) label->setAlignment(kAlignCentre);
    all->addWidget(level, 4, 0, Qt::AlignHCenter);

    auto* const wheel = new QVBoxLayout;
    wheel->setSpacing(currentTheme().space);
    auto* const turns = new QHBoxLayout;
    turns->setSpacing(2 * currentTheme().space);
    turns->addStretch();
    turns->addLayout(under(caption(form_.cmdTurnLeft), key("cmdTurnLeft", IconName::turnLeft)));
    turns->addLayout(under(caption(form_.cmdTurnRight), key("cmdTurnRight", IconName::turnRight)));
    turns->addStretch();
    wheel->addLayout(turns);
    wheel->addWidget(bar(form_.hscSteering, Qt::Horizontal));
    wheel->addStretch();
    all->addWidget(title("wheel"), 0, 1);
    all->addLayout(wheel, 1, 1, 2, 1);

    all->addWidget(caption(form_.scrBrake), 0, 2);
    all->addWidget(bar(form_.scrBrake, Qt::Vertical), 1, 2, 2, 1, Qt::AlignHCenter);
    all->addWidget(key("cmdBrake", IconName::stop), 3, 2, Qt::AlignHCenter);
    all->setRowStretch(2, 1);
    return new Card(all);
}

QWidget* ControlPanelWindow::looking() {
    QGridLayout* const keys = grid();
    keys->addLayout(under(caption(form_.cmdHeadUp), key("cmdHeadUp", IconName::arrowUp)), 0, 1);
    keys->addLayout(under(caption(form_.cmdHeadLeft), key("cmdHeadLeft", IconName::arrowLeft)), 1, 0);
    keys->addWidget(key("cmdReset", IconName::count), 1, 1, Qt::AlignHCenter | Qt::AlignBottom);
    keys->addLayout(under(caption(form_.cmdHeadRight), key("cmdHeadRight", IconName::arrowRight)), 1, 2);
    keys->addWidget(key("cmdHeadDown", IconName::arrowDown), 2, 1, Qt::AlignHCenter);
    keys->addWidget(bar(form_.hscHeadLR, Qt::Horizontal), 3, 0, 1, 3);
    keys->addWidget(indicator(form_.sldLR, Qt::Horizontal), 4, 0, 1, 3);
    keys->addWidget(bar(form_.scrHeadUD, Qt::Vertical), 0, 3, 3, 1);
    keys->addWidget(indicator(form_.sldUD, Qt::Vertical), 0, 4, 3, 1);
    auto* const all = new QVBoxLayout;
    all->setSpacing(currentTheme().gap);
    all->addWidget(title("neckAndEye"));
    all->addLayout(keys);
    all->addStretch();
    return new Card(all);
}

QWidget* ControlPanelWindow::speaking() {
    auto* const all = new QVBoxLayout;
    all->setSpacing(currentTheme().gap);
    all->addWidget(title("mouth"));
    all->addLayout(under(caption(form_.cmdMouthUp), key("cmdMouthUp", IconName::arrowUp)));
    all->addWidget(bar(form_.scrMouthUD, Qt::Vertical), 1, Qt::AlignHCenter);
    all->addLayout(under(caption(form_.cmdMouthDown), key("cmdMouthDown", IconName::arrowDown)));
    return new Card(all);
}

// A button that the mouse presses without taking the keys from the background. With a caption it is as wide
// as that needs.
QWidget* ControlPanelWindow::key(const std::string& name, IconName picture) {
    QWidget* const button = controls_(name);
    button->setFocusPolicy(Qt::TabFocus);
    body_->takeKeysOf(*button);
    if (picture != IconName::count) setKeyPicture(*button, picture);
    const auto* control = dynamic_cast<const CommandButton*>(form_.find(name));
    if (control != nullptr && control->caption().empty()) {
        button->setFixedSize(button->sizeHint().expandedTo(QSize(kKeySide, kKeySide)));
    } else {
        button->setMinimumHeight(kKeySide);
    }
    return button;
}

QWidget* ControlPanelWindow::bar(Slider& control, Qt::Orientation orientation) {
    QScrollBar* const made = controls_.scrollBar(control.name(), orientation);
    made->setFocusPolicy(Qt::TabFocus);
    controls_.dress(*made, control);
    constexpr int kThickness = 24;
    if (orientation == Qt::Vertical) {
        made->setMinimumHeight(kBarLength);
        made->setFixedWidth(kThickness);
    } else {
        made->setMinimumWidth(kBarLength);
        made->setFixedHeight(kThickness);
    }
    return made;
}

// Only looked at: the mouse goes through it to the background.
QWidget* ControlPanelWindow::indicator(Slider& control, Qt::Orientation orientation) {
    QSlider* const made = controls_.slider(control.name(), orientation);
    made->setFocusPolicy(Qt::NoFocus);
    made->setAttribute(Qt::WA_TransparentForMouseEvents);
    return made;
}

}  // namespace quorrin
