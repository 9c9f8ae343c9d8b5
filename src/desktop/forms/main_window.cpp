#include "desktop/forms/main_window.h"

#include <QApplication>
#include <QMenu>
#include <QResizeEvent>
#include <QScreen>
#include <QToolButton>
#include <algorithm>
#include <utility>

#include "console/control_words.h"
#include "console/menu_words.h"
#include "desktop/forms/key_bar.h"
#include "desktop/forms/plan_group.h"
#include "desktop/forms/tab_walk.h"
#include "desktop/theme/theme.h"
#include "desktop/widgets/icon_view.h"

namespace quorrin {

namespace {

constexpr int kDrawingMs = 100;
constexpr QSize kUsualSize(1440, 860);  // logical pixels
// What a window manager may put around it.
constexpr QSize kWindowFrame(16, 48);
constexpr int kSmallestPicture = 120;  // logical pixels
constexpr int kStripPercent = 17;      // of the window's height
constexpr int kMarkSide = 30;

QString text(const std::string& words) {
    return QString::fromStdString(words);
}

QAction* entry(QMenu& menu, MenuEntry name, IconName picture) {
    const MenuWords& words = menuWords(name);
    auto* action = menu.addAction(themedIcon(picture), text(words.text));
    action->setToolTip(text(words.tip));
    action->setShortcut(QKeySequence(text(words.shortcut)));
    return action;
}

}  // namespace

MainWindow::MainWindow(frmGUI& gui, const PublicValues& values, const Form& panel, const OperatorActs& acts,
                       LiveViews* views)
    : gui_(gui), values_(values), panelForm_(panel), make_(acts, gui, stationImages()) {
    setObjectName(text(gui.name()));
    setWindowTitle(text(quorrin::windowTitle(gui.name())));
    Placing place(make_, gui, acts);
    const Theme& theme = currentTheme();

    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(theme.space, theme.gap, theme.space, theme.space);
    all->setSpacing(theme.gap);
    all->addWidget(header(place));
    strip_ = new StatusStrip;
    all->addWidget(strip_);
    body_ = new QWidget;
    left_ = new LeftColumn(place, gui);
    auto* middle = new QHBoxLayout(body_);
    middle->setContentsMargins(0, 0, 0, 0);
    middle->setSpacing(theme.gap);
    middle->addWidget(left_, 0);
    // The control panel comes up with its corner in the middle of the plan, so the plan has the panel's room
    // to its right.
    middle->addWidget(planGroup(place, gui), 1);
    middle->addWidget(camera(place), 1);
    all->addWidget(body_, 1);
    all->addWidget(new KeyBar(place, gui.cmdChEn));

    resize(kUsualSize.boundedTo(screen()->availableSize() - kWindowFrame));

    setting_ = std::make_unique<SettingPanel>(place, gui.fraSetting, acts, this);
    sensor_ = std::make_unique<SensorPanel>(place, gui.fraSensor, gui.cmdCloseSensor, acts, views, this);
    new FormLink(*this, gui, acts);
    QObject::connect(&drawing_, &QTimer::timeout, this, [this] { refresh(); });
    refresh();
}

MainWindow::~MainWindow() = default;

QWidget* MainWindow::header(Placing& place) {
    auto* const all = new QWidget;
    auto* line = new QHBoxLayout(all);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(currentTheme().gap);
    line->addWidget(place.icon("imgLogo", IconName::mark, kMarkSide));
    ShadowLabel* const name = captionLabel(text(quorrin::windowTitle(gui_.name())));
    QFont large = name->font();
    large.setPointSizeF(large.pointSizeF() * currentTheme().headingSize);
    large.setWeight(QFont::DemiBold);
    name->setFont(large);
    line->addWidget(name);
    line->addSpacing(currentTheme().space);
    line->addWidget(place.control("lblLink"));
    line->addStretch(1);
    for (const auto& [key, picture] : {std::pair("Toolbar1.Help", IconName::help),
                                       {"Toolbar1.About", IconName::about},
                                       {"Toolbar1.WWW", IconName::www}})
        line->addWidget(place.key(key, picture));
    auto* button = new QToolButton;
    button->setObjectName(QStringLiteral("viewMenu"));
    button->setText(text(menuWords(MenuEntry::viewMenu).text));
    button->setToolTip(text(menuWords(MenuEntry::viewMenu).tip));
    button->setAccessibleName(text(menuWords(MenuEntry::viewMenu).text).remove('&'));
    button->setIcon(themedIcon(IconName::menu));
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setPopupMode(QToolButton::InstantPopup);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setMenu(menu());
    line->addWidget(button);
    line->addWidget(place.key("cmdExit", IconName::exit));
    return all;
}

QMenu* MainWindow::menu() {
    auto* const made = new QMenu(this);
    made->setToolTipsVisible(true);
    QAction* const engineering = entry(*made, MenuEntry::engineeringView, IconName::engineering);
    QAction* const light = entry(*made, MenuEntry::lightTheme, IconName::theme);
    QAction* const dark = entry(*made, MenuEntry::darkTheme, IconName::theme);
    QObject::connect(engineering, &QAction::triggered, this, [this] { sensor_->toggle(); });
    QObject::connect(light, &QAction::triggered, this, [] { applyTheme(*qApp, lightTheme()); });
    QObject::connect(dark, &QAction::triggered, this, [] { applyTheme(*qApp, darkTheme()); });
    // Their shortcuts work without the menu being open.
    addActions(made->actions());
    return made;
}

QWidget* MainWindow::camera(Placing& place) {
    QWidget* const picture = place.picture("imgCamera", kSmallestPicture, IconName::camera);
    QVBoxLayout* const contents = column({picture});
    contents->setStretch(0, 1);
    contents->addWidget(place.key("cmdZoomCamera", IconName::zoom), 0, Qt::AlignRight);
    return group("fra(9)", contents);
}

void MainWindow::refresh() {
    const DashboardGlances now = glances(values_, gui_, panelForm_);
    strip_->show(now, gui_.cmdChEn.picture());
    left_->refresh(values_, gui_, now.stuck);
    setting_->refresh(values_, gui_);
}

void MainWindow::placePanels() {
    const QRect room = body_->geometry();
    QRect settings = room;
    const int width = setting_->arrange(room.size());
    settings.setLeft(room.right() - width + 1);
    setting_->panel().setGeometry(settings);
    sensor_->panel().setGeometry(room);
}

void MainWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    strip_->setFixedHeight(std::max(strip_->minimumSizeHint().height(), height() * kStripPercent / 100));
    layout()->activate();
    left_->arrange(body_->height());
    placePanels();
}

bool MainWindow::focusNextPrevChild(bool next) {
    return walkByTab(*this, next, {&setting_->panel(), &sensor_->panel()});
}

void MainWindow::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!std::exchange(ordered_, true)) {
        orderTabsByReading(*this);
        placePanels();
    }
    refresh();
    drawing_.start(kDrawingMs);
}

void MainWindow::hideEvent(QHideEvent* event) {
    drawing_.stop();
    QWidget::hideEvent(event);
}

}  // namespace quorrin
