#include "desktop/widgets/control_look.h"

namespace quorrin {

Colour plainColour(const QColor& colour) {
    return rgb(colour.red(), colour.green(), colour.blue());
}

SystemColours systemColours(const QPalette& palette) {
    const auto role = [&palette](QPalette::ColorRole which) {
        return plainColour(palette.color(QPalette::Active, which));
    };
    const auto disabled = [&palette](QPalette::ColorRole which) {
        return plainColour(palette.color(QPalette::Disabled, which));
    };
    return {
        {0x00, role(QPalette::Base)},             // scroll bar
        {0x01, role(QPalette::Window)},           // desktop
        {0x02, role(QPalette::Highlight)},        // title bar of the active window
        {0x03, role(QPalette::Mid)},              // of any other
        {0x04, role(QPalette::Button)},           // menu
        {0x05, role(QPalette::Base)},             // inside of a window
        {0x06, role(QPalette::Dark)},             // frame of a window
        {0x07, role(QPalette::ButtonText)},       // writing in menus
        {0x08, role(QPalette::Text)},             // writing in windows
        {0x09, role(QPalette::HighlightedText)},  // writing in the active title bar
        {0x0A, role(QPalette::Dark)},             // border of the active window
        {0x0B, role(QPalette::Mid)},              // of any other
        {0x0C, role(QPalette::Window)},           // behind documents
        {0x0D, role(QPalette::Highlight)},        // selection
        {0x0E, role(QPalette::HighlightedText)},  // writing in it
        // Faces are of one colour with the windows that they stand in.
        {kRoleButtonFace, role(QPalette::Window)},
        {kRoleButtonShadow, role(QPalette::Shadow)},
        {0x11, disabled(QPalette::WindowText)},  // disabled writing
        {kRoleButtonText, role(QPalette::ButtonText)},
        {0x13, disabled(QPalette::WindowText)},  // writing in other title bars
        {0x14, role(QPalette::Light)},           // lit edge of a button
        {0x15, role(QPalette::Dark)},            // its dark edge
        {0x16, role(QPalette::Midlight)},        // its pale edge
        {0x17, role(QPalette::ToolTipText)},
        {0x18, role(QPalette::ToolTipBase)},
    };
}

QFont fontOf(const FontChoice& choice, const QFont& ambient) {
    if (choice.ambient()) return ambient;
    QFont font = ambient;
    font.setFamilies({QString::fromStdString(choice.family)});
    if (choice.points > 0) font.setPointSizeF(choice.points);
    font.setBold(choice.bold);
    font.setItalic(choice.italic);
    return font;
}

}  // namespace quorrin
