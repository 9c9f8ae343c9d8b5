// The look of all windows as data: colours by role, type sizes, spacing. Two themes, light and dark.
//
// Nothing is drawn here and no text decided. Type sizes are factors of the application's font, lengths are
// logical pixels. The themes live as long as the program. Every pair of a text colour and the surface below
// it keeps a contrast of 4.5 or more, every outline and lamp 3 or more; a test computes them.
#pragma once

#include <QColor>
#include <vector>

class QApplication;
class QPalette;

namespace quorrin {

// One state of the robot as colours: a block that is seen from afar with a sign on it, and a quiet
// background with writing on it.
struct ToneColours {
    QColor block;
    QColor onBlock;
    QColor tint;
    QColor text;
};

struct Theme {
    bool dark = false;

    QColor window;
    QColor surface;  // groups
    QColor field;    // boxes that one writes into, lists, pictures
    QColor line;     // quiet separation
    QColor outline;  // edges of what can be used
    QColor text;
    QColor muted;  // captions, details
    QColor disabled;
    QColor accent;  // selection, progress
    QColor onAccent;
    QColor focus;
    QColor buttonText;
    QColor shadow;  // of caption labels

    ToneColours off, good, busy, warning, bad;
    // Curves of charts, on `field`.
    std::vector<QColor> curves;

    // Type, as factors of the application's font.
    double captionSize = 0.86;
    double titleSize = 1.0;
    double headingSize = 1.25;
    double wordSize = 1.4;
    double displaySize = 2.1;

    // Logical pixels.
    int gap = 4;     // between what belongs together
    int space = 8;   // between neighbours
    int radius = 6;  // of groups and tiles
    int lampSize = 20;
    int iconSize = 20;
};

const Theme& lightTheme();
const Theme& darkTheme();

// The theme that fits a palette: dark where its writing is lighter than its background.
const Theme& themeOf(const QPalette& palette);
// The theme that the application wears; what draws itself asks for it whenever it draws.
const Theme& currentTheme();

// Puts it on: palette, font family, style sheet, and the skin of every button there is.
void applyTheme(QApplication& application, const Theme& theme);
// Puts the other one on.
void switchTheme(QApplication& application);

// Contrast of two opaque colours, 1 to 21, after the formula of WCAG 2.
double contrast(const QColor& one, const QColor& other);

}  // namespace quorrin
