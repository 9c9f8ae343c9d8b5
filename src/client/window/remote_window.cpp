#include "client/window/remote_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QScreen>
#include <QShortcut>
#include <utility>

#include "desktop/theme/icons.h"
#include "desktop/theme/theme.h"

namespace quorrin {

namespace {

constexpr int kDrawingMs = 100;
constexpr QSize kUsualSize(1180, 680);  // logical pixels
constexpr QSize kWindowFrame(16, 48);   // what a window manager may put around it
constexpr int kMarkSide = 30;

IconName pictureOf(ModePicture mode) {
    switch (mode) {
        case ModePicture::idle:
            return IconName::idle;
        case ModePicture::wandering:
            return IconName::wandering;
        case ModePicture::joystick:
            return IconName::joystick;
        case ModePicture::none:
            break;
    }
    return IconName::help;
}

IconName pictureOf(RemoteChannel channel) {
    switch (channel) {
        case RemoteChannel::command:
            return IconName::panel;
        case RemoteChannel::sensor:
            return IconName::engineering;
        case RemoteChannel::video:
            return IconName::camera;
        case RemoteChannel::audio:
            return IconName::talk;
        case RemoteChannel::sendVoice:
            return IconName::listen;
        case RemoteChannel::tts:
            break;
    }
    return IconName::speech;
}

// What either of them holds.
HeldKeys both(HeldKeys keys, const HeldKeys& more) {
    for (const HeldKeyWords& one : heldKeyWords()) keys.*one.held = keys.*one.held || more.*one.held;
    return keys;
}

}  // namespace

RemoteWindow::RemoteWindow(ClientDesk& desk, Clock& clock, std::function<void()> ended)
    : desk_(desk),
      clock_(clock),
      ended_(std::move(ended)),
      keys_(new KeyWatch(*this, clock)),
      drive_(new DriveCard(caps_)),
      head_(new HeadCard(caps_)) {
    const Theme& theme = currentTheme();
    dress(*this, ClientControl::window);
    setWindowTitle(inQt(clientWords(ClientControl::window).caption));
    setWindowIcon(icon(IconName::mark, theme.accent, theme.accent));
    auto* const all = new QVBoxLayout(this);
    all->setContentsMargins(theme.space, theme.space, theme.space, theme.space);
    all->setSpacing(theme.space);
    all->addWidget(header());
    all->addWidget(strip());
    auto* const body = new QHBoxLayout;
    body->setSpacing(theme.space);
    body->addWidget(drive_, 4);
    body->addWidget(head_, 4);
    body->addWidget(connections(), 3);
    all->addLayout(body, 1);
    all->addWidget(footer());
    bindCards();
    orderTabs();
    resize(kUsualSize.boundedTo(screen()->availableSize() - kWindowFrame));
    desk_.onChange = [this] { refresh(); };
    desk_.onKeysForgotten = [this] { dropKeys(); };
    QObject::connect(&drawing_, &QTimer::timeout, this, [this] { refresh(); });
    drawing_.start(kDrawingMs);
    refresh();
    host_->setFocus();
}

RemoteWindow::~RemoteWindow() {
    desk_.onChange = {};
    desk_.onKeysForgotten = {};
}

QWidget* RemoteWindow::header() {
    auto* const all = new QWidget;
    auto* const row = new QHBoxLayout(all);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(currentTheme().space);
    auto* const mark = new QLabel;
    mark->setPixmap(icon(IconName::mark, currentTheme().accent, currentTheme().accent).pixmap(kMarkSide));
    auto* const title = new QLabel(inQt(clientWords(ClientControl::window).caption));
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * currentTheme().wordSize);
    large.setWeight(QFont::DemiBold);
    title->setFont(large);
    host_ = new QLineEdit(inQt(desk_.link().host()));
    dress(*host_, ClientControl::host);
    host_->setMinimumWidth(host_->fontMetrics().averageCharWidth() * 24);
    connect_ = new QPushButton;
    dress(*connect_, ClientControl::connect);
    look_ = new QToolButton;
    dress(*look_, ClientControl::look);
    look_->setIcon(themedIcon(IconName::theme));
    look_->setFocusPolicy(Qt::StrongFocus);
    row->addWidget(mark);
    row->addWidget(title);
    row->addStretch(1);
    row->addWidget(new QLabel(inQt(clientWords(ClientControl::host).caption)));
    row->addWidget(host_);
    row->addWidget(connect_);
    row->addWidget(look_);
    QObject::connect(host_, &QLineEdit::returnPressed, this, [this] { connectOrNot(); });
    QObject::connect(connect_, &QPushButton::clicked, this, [this] { connectOrNot(); });
    QObject::connect(look_, &QToolButton::clicked, this, [] { switchTheme(*qApp); });
    return all;
}

QWidget* RemoteWindow::strip() {
    auto* const all = new QWidget;
    auto* const grid = new QGridLayout(all);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(currentTheme().gap);
    const auto make = [this](ClientTile tile, GlanceTile::Kind kind, IconName picture) {
        auto* const made = new GlanceTile(kind, picture, inQt(tileCaption(tile)));
        made->setObjectName(QStringLiteral("tile.%1").arg(static_cast<int>(tile)));
        return tiles_[static_cast<std::size_t>(tile)] = made;
    };
    constexpr auto kLarge = GlanceTile::Kind::large;
    constexpr auto kSmall = GlanceTile::Kind::small;
    grid->addWidget(make(ClientTile::mode, kLarge, IconName::idle), 0, 0, 2, 1);
    grid->addWidget(make(ClientTile::holder, kLarge, IconName::holder), 0, 1, 2, 1);
    grid->addWidget(make(ClientTile::person, kSmall, IconName::person), 0, 2);
    grid->addWidget(make(ClientTile::position, kSmall, IconName::map), 1, 2);
    grid->addWidget(make(ClientTile::linkAge, kSmall, IconName::link), 0, 3);
    grid->addWidget(make(ClientTile::roundTrip, kSmall, IconName::network), 1, 3);
    for (int column = 0; column < 4; ++column) grid->setColumnStretch(column, 1);
    all->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    return all;
}

QWidget* RemoteWindow::connections() {
    auto* const card = new Card(ClientControl::connections);
    card->column().setSpacing(currentTheme().gap);
    for (const RemoteChannel channel : kRemoteChannels) {
        auto* const tile =
            new GlanceTile(GlanceTile::Kind::slim, pictureOf(channel), inQt(channelCaption(channel)));
        tile->setObjectName(QStringLiteral("channel.") + inQt(std::string(nameOf(channel))));
        card->column().addWidget(tile);
        channels_[static_cast<std::size_t>(channel)] = tile;
    }
    return card;
}

QWidget* RemoteWindow::footer() {
    auto* const all = new QWidget;
    auto* const row = new QHBoxLayout(all);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(currentTheme().space);
    mode_ = new QPushButton;
    dress(*mode_, ClientControl::mode);
    mode_->setIcon(themedIcon(IconName::modeSwitch));
    release_ = new QPushButton;
    dress(*release_, ClientControl::release);
    release_->setIcon(themedIcon(IconName::exit));
    releaseText_ = new QLabel;
    releaseText_->setObjectName(QStringLiteral("releaseText"));
    releaseText_->setWordWrap(true);
    for (QPushButton* const button : {mode_, release_}) {
        button->setMinimumHeight(button->fontMetrics().height() * 5 / 2);
        button->setMinimumWidth(button->fontMetrics().averageCharWidth() * 18);
    }
    row->addWidget(mode_);
    row->addWidget(release_);
    row->addWidget(releaseText_, 1);
    return all;
}

void RemoteWindow::bindCards() {
    keys_->onChange = [this](const HeldKeys&) { keysChanged(); };
    caps_.onMouse = [this] { keysChanged(); };
    drive_->onAvoidance = [this](bool on) { drive([on](RemoteDriver& driver) { driver.setAvoidance(on); }); };
    head_->onUpDown = [this](int value) {
        drive([value](RemoteDriver& driver) { driver.setHeadUpDown(value); });
    };
    head_->onLeftRight = [this](int value) {
        drive([value](RemoteDriver& driver) { driver.setHeadLeftRight(value); });
    };
    head_->onMouth = [this](int value) { drive([value](RemoteDriver& driver) { driver.setMouth(value); }); };
    head_->onAhead = [this] { drive([](RemoteDriver& driver) { driver.centreHead(); }); };
    QObject::connect(mode_, &QPushButton::clicked, this,
                     [this] { drive([](RemoteDriver& driver) { driver.modeKey(); }); });
    QObject::connect(release_, &QPushButton::clicked, this,
                     [this] { drive([](RemoteDriver& driver) { driver.release(); }); });
    auto* const back = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    QObject::connect(back, &QShortcut::activated, this,
                     [this] { drive_->setFocus(Qt::ShortcutFocusReason); });
}

void RemoteWindow::orderTabs() {
    std::vector<QWidget*> order = {host_, connect_, look_, drive_, &drive_->avoidance()};
    for (QWidget* one : head_->controls()) order.push_back(one);
    order.insert(order.end(), {mode_, release_});
    for (std::size_t i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

void RemoteWindow::act(std::function<void(ClientDesk&)> deed) {
    clock_.arrive([&desk = desk_, deed = std::move(deed)] { deed(desk); });
}

void RemoteWindow::drive(std::function<void(RemoteDriver&)> deed) {
    act([deed = std::move(deed)](ClientDesk& desk) { desk.drive(deed); });
}

void RemoteWindow::connectOrNot() {
    if (desk_.started()) {
        act([](ClientDesk& desk) { desk.disconnect(); });
        return;
    }
    act([host = host_->text().toStdString()](ClientDesk& desk) { desk.connect(host); });
    // The keys are the robot's from now on.
    drive_->setFocus(Qt::OtherFocusReason);
}

void RemoteWindow::keysChanged() {
    const HeldKeys held = keys_->held();
    caps_.light(held);
    drive([keys = both(held, caps_.mouse())](RemoteDriver& driver) { driver.setKeys(keys); });
}

void RemoteWindow::dropKeys() {
    keys_->forget();
    caps_.forgetMouse();
    caps_.light({});
}

void RemoteWindow::refresh() {
    const auto* const slider = qobject_cast<const QSlider*>(focusWidget());
    const ClientFace face = faceOf(desk_, slider != nullptr && slider->isEnabled());
    const Glance* const glances[] = {&face.mode,     &face.holder,  &face.person,
                                     &face.position, &face.linkAge, &face.roundTrip};
    for (std::size_t i = 0; i < tiles_.size(); ++i) tiles_[i]->show(*glances[i]);
    tiles_[static_cast<std::size_t>(ClientTile::mode)]->setPicture(pictureOf(face.modePicture));
    for (std::size_t i = 0; i < channels_.size(); ++i) channels_[i]->show(face.channels[i]);
    drive_->show(face);
    head_->show(face);
    caps_.setEnabled(face.canDrive);
    host_->setEnabled(!face.started);
    connect_->setText(inQt(face.connectCaption));
    connect_->setAccessibleName(connect_->text());
    connect_->setIcon(themedIcon(face.started ? IconName::networkOff : IconName::network));
    mode_->setEnabled(face.canDrive);
    release_->setEnabled(face.canRelease);
    releaseText_->setText(inQt(face.releaseText));
}

void RemoteWindow::end() {
    drawing_.stop();
    hide();
    act([ended = ended_](ClientDesk& desk) { desk.end(ended); });
}

void RemoteWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    end();
}

void RemoteWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ActivationChange && !isActiveWindow()) {
        dropKeys();
        act([](ClientDesk& desk) { desk.standStill(); });
    }
    QWidget::changeEvent(event);
}

}  // namespace quorrin
