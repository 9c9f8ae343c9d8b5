#include "desktop/theme/icons.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

#include "desktop/theme/icon_paths.h"
#include "desktop/theme/theme.h"

namespace quorrin {

namespace {

constexpr double kGrid = 24;
constexpr double kLine = 2;  // of the grid

// Read once; drawing goes on all the time.
const std::vector<IconPart>& partsOf(IconName name) {
    static const std::vector<std::vector<IconPart>> all = [] {
        std::vector<std::vector<IconPart>> parts;
        for (int i = 0; i <= static_cast<int>(IconName::count); ++i)
            parts.push_back(readIconParts(iconWords(static_cast<IconName>(i))));
        return parts;
    }();
    return all[static_cast<std::size_t>(name)];
}

// Without colours of its own it takes those of the theme at the time of drawing, or the painter's.
class DrawnIcon : public QIconEngine {
  public:
    DrawnIcon(IconName name, QColor colour, QColor disabled)
        : name_(name), colour_(colour), disabled_(disabled) {}
    DrawnIcon(IconName name, bool asWriting) : name_(name), asWriting_(asWriting) {}
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        drawIcon(*painter, rect, name_, asWriting_ ? painter->pen().color() : ink(mode));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setPen(ink(mode));
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return picture;
    }
    QIconEngine* clone() const override { return new DrawnIcon(*this); }

  private:
    QColor ink(QIcon::Mode mode) const {
        const bool disabled = mode == QIcon::Disabled;
        const QColor own = disabled ? disabled_ : colour_;
        if (own.isValid()) return own;
        return disabled ? currentTheme().disabled : currentTheme().buttonText;
    }

    IconName name_;
    bool asWriting_ = false;
    QColor colour_;
    QColor disabled_;
};

}  // namespace

void drawParts(QPainter& painter, const QRectF& room, const std::vector<IconPart>& parts,
               const QColor& colour) {
    const double side = qMin(room.width(), room.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(room.center().x() - side / 2, room.center().y() - side / 2);
    painter.scale(side / kGrid, side / kGrid);
    for (const IconPart& part : parts) {
        if (part.filled) {
            painter.fillPath(part.path, colour);
        } else {
            painter.strokePath(part.path, QPen(colour, kLine, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        }
    }
    painter.restore();
}

void drawIcon(QPainter& painter, const QRectF& square, IconName name, const QColor& colour) {
    drawParts(painter, square, partsOf(name), colour);
}

QIcon icon(IconName name, const QColor& colour, const QColor& disabled) {
    return QIcon(new DrawnIcon(name, colour, disabled));
}

QIcon icon(IconName name, const Theme& theme) {
    return icon(name, theme.text, theme.disabled);
}

QIcon themedIcon(IconName name) {
    return QIcon(new DrawnIcon(name, false));
}

QIcon writingIcon(IconName name) {
    return QIcon(new DrawnIcon(name, true));
}

}  // namespace quorrin
