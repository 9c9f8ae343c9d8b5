#include "desktop/widgets/control_look.h"

namespace quorrin {

Colour plainColour(const QColor& colour) {
    return rgb(colour.red(), colour.green(), colour.blue());
}

SystemColours systemColours(const QPalette& palette) {
    const auto role = [&palette](QPalette::ColorRole which) {
        return plainColour(palette.color(QPalette::Active, which));
    };
    // Faces are of one colour with the windows that they stand in.
    return {{kRoleButtonFace, role(QPalette::Window)},
            {kRoleButtonShadow, role(QPalette::Shadow)},
            {kRoleButtonText, role(QPalette::ButtonText)}};
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
