#include "desktop/views/view_colours.h"

#include "desktop/theme/theme.h"

namespace quorrin {

QColor mixed(const QColor& from, const QColor& to, double share) {
    const auto part = [&](float a, float b) { return a + (b - a) * static_cast<float>(share); };
    return QColor::fromRgbF(part(from.redF(), to.redF()), part(from.greenF(), to.greenF()),
                            part(from.blueF(), to.blueF()));
}

ViewColours viewColours(const QPalette& palette) {
    const Theme& theme = themeOf(palette);
    ViewColours colours;
    colours.paper = theme.field;
    colours.ink = theme.text;
    colours.quiet = theme.muted;
    colours.lattice = theme.line;
    colours.outside = theme.window;
    colours.infrared = theme.curves.at(0);
    colours.sonar = theme.curves.at(1);
    colours.blocked = theme.bad.block;
    colours.free = theme.good.block;
    colours.guidance = theme.curves.at(3);
    colours.robot = theme.text;
    colours.focus = theme.focus;
    // One trace more than the theme has curves: that one is drawn as writing is.
    for (std::size_t i = 0; i < colours.traces.size(); ++i)
        colours.traces[i] = i < theme.curves.size() ? theme.curves[i] : theme.muted;
    return colours;
}

}  // namespace quorrin
