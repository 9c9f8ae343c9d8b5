#include "desktop/theme/style_sheet.h"

namespace quorrin {

namespace {

// Every "{role}" stands for a colour of the theme.
constexpr const char* kSheet = R"(
QLineEdit, QListView, QComboBox, QPlainTextEdit {
    background: {field}; color: {text}; border: 1px solid {outline}; border-radius: 4px; padding: 1px 4px;
    selection-background-color: {accent}; selection-color: {onAccent};
}
QLineEdit:focus, QListView:focus, QComboBox:focus, QPlainTextEdit:focus { border: 2px solid {focus}; padding: 0px 3px; }
QLineEdit:read-only { background: {surface}; border-color: {line}; color: {text}; }
QLineEdit:read-only:focus { border-color: {focus}; }
QLineEdit:disabled, QListView:disabled, QComboBox:disabled { color: {disabled}; border-color: {line}; }
QListView::item:selected { background: {accent}; color: {onAccent}; }
QComboBox::drop-down { border: none; width: 20px; }
QComboBox QAbstractItemView { background: {field}; color: {text}; selection-background-color: {accent};
    selection-color: {onAccent}; border: 1px solid {outline}; border-radius: 0; padding: 0; }
QCheckBox, QRadioButton { color: {text}; border: 2px solid transparent; border-radius: 4px; padding: 1px; spacing: 6px; }
QCheckBox:focus, QRadioButton:focus { border-color: {focus}; }
QCheckBox:disabled, QRadioButton:disabled { color: {disabled}; }
QSlider { border: 2px solid transparent; border-radius: 4px; }
QSlider:focus { border-color: {focus}; }
QSlider::groove:horizontal { background: {outline}; height: 4px; border-radius: 2px; }
QSlider::sub-page:horizontal { background: {accent}; border-radius: 2px; }
QSlider::handle:horizontal { background: {accent}; border: 2px solid {surface}; width: 14px; margin: -8px 0; border-radius: 9px; }
QSlider::groove:vertical { background: {outline}; width: 4px; border-radius: 2px; }
QSlider::handle:vertical { background: {accent}; border: 2px solid {surface}; height: 14px; margin: 0 -8px; border-radius: 9px; }
QSlider::handle:disabled, QSlider::sub-page:horizontal:disabled { background: {outline}; }
QScrollBar { background: {field}; border: none; margin: 0; }
QScrollBar:horizontal { height: 12px; }
QScrollBar:vertical { width: 12px; }
QScrollBar::handle { background: {outline}; border-radius: 4px; margin: 2px; min-width: 24px; min-height: 24px; }
QScrollBar::handle:hover { background: {muted}; }
QScrollBar:focus { background: {focus}; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: none; }
QToolButton { background: {surface}; color: {text}; border: 1px solid {outline}; border-radius: 4px; padding: 3px 8px; }
QToolButton:hover { border-color: {text}; }
QToolButton:focus { border: 2px solid {focus}; padding: 2px 7px; }
QToolButton::menu-indicator { image: none; width: 0; }
QPushButton { background: {field}; color: {text}; border: 1px solid {outline}; border-radius: 4px; padding: 4px 14px; }
QPushButton:focus { border: 2px solid {focus}; padding: 3px 13px; }
QPushButton:pressed { background: {line}; }
QPushButton:disabled { color: {disabled}; border-color: {line}; }
QTabBar::tab { background: {surface}; color: {text}; border: 1px solid {outline}; border-radius: 4px; padding: 4px 7px; margin: 2px; }
QTabBar::tab:hover { border-color: {text}; }
QTabBar::tab:selected { background: {accent}; color: {onAccent}; border-color: {accent}; }
QMenu { background: {surface}; color: {text}; border: 1px solid {outline}; padding: 4px; }
QMenu::item { padding: 5px 22px 5px 10px; border-radius: 4px; }
QMenu::item:selected { background: {accent}; color: {onAccent}; }
QMenu::item:disabled { color: {disabled}; }
QMenu::icon { padding-left: 8px; }
QToolTip { background: {surface}; color: {text}; border: 1px solid {outline}; padding: 4px; }
QScrollArea { background: transparent; border: none; }
)";

QString hex(const QColor& colour) {
    return colour.name(QColor::HexRgb);
}

}  // namespace

QString styleSheet(const Theme& theme) {
    QString sheet = QString::fromLatin1(kSheet);
    const std::pair<const char*, const QColor&> roles[] = {
        {"{surface}", theme.surface},   {"{field}", theme.field},   {"{line}", theme.line},
        {"{outline}", theme.outline},   {"{text}", theme.text},     {"{muted}", theme.muted},
        {"{disabled}", theme.disabled}, {"{accent}", theme.accent}, {"{onAccent}", theme.onAccent},
        {"{focus}", theme.focus},
    };
    for (const auto& [role, colour] : roles) sheet.replace(QLatin1String(role), hex(colour));
    return sheet;
}

QPalette palette(const Theme& theme) {
    QPalette palette;
    palette.setColor(QPalette::Window, theme.window);
    palette.setColor(QPalette::WindowText, theme.text);
    palette.setColor(QPalette::Base, theme.field);
    palette.setColor(QPalette::AlternateBase, theme.surface);
    palette.setColor(QPalette::Text, theme.text);
    palette.setColor(QPalette::PlaceholderText, theme.muted);
    palette.setColor(QPalette::Button, theme.surface);
    palette.setColor(QPalette::ButtonText, theme.buttonText);
    palette.setColor(QPalette::BrightText, theme.onAccent);
    palette.setColor(QPalette::Light, theme.line);
    palette.setColor(QPalette::Midlight, theme.line);
    palette.setColor(QPalette::Mid, theme.outline);
    palette.setColor(QPalette::Dark, theme.outline);
    palette.setColor(QPalette::Shadow, theme.shadow);
    palette.setColor(QPalette::Highlight, theme.accent);
    palette.setColor(QPalette::HighlightedText, theme.onAccent);
    palette.setColor(QPalette::Link, theme.accent);
    palette.setColor(QPalette::LinkVisited, theme.accent);
    palette.setColor(QPalette::ToolTipBase, theme.surface);
    palette.setColor(QPalette::ToolTipText, theme.text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, theme.disabled);
    return palette;
}

}  // namespace quorrin
