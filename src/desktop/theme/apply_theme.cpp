#include <QApplication>
#include <QFont>
#include <QStyleFactory>
#include <QWidget>

#include "desktop/theme/style_sheet.h"
#include "desktop/theme/theme.h"

namespace quorrin {

void applyTheme(QApplication& application, const Theme& theme) {
    // A style of its own draws the same everywhere; the desktop's would follow its own colours.
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QFont font = QApplication::font();
    font.setFamilies({QStringLiteral("Inter"), QStringLiteral("DejaVu Sans")});
    QApplication::setFont(font);
    QApplication::setPalette(palette(theme));
    application.setStyleSheet(styleSheet(theme));
    for (QWidget* widget : QApplication::allWidgets()) widget->update();
}

}  // namespace quorrin
