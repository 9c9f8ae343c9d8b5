#include "desktop/theme/icon_paths.h"

#include <QStringList>
#include <array>

namespace quorrin {

namespace {

// Reads the numbers that follow a word.
class Words {
  public:
    explicit Words(const QString& text) : words_(text.split(' ', Qt::SkipEmptyParts)) {}
    bool more() const { return at_ < words_.size(); }
    QString word() { return words_[at_++]; }
    template <std::size_t count>
    bool numbers(std::array<double, count>& numbers) {
        for (double& number : numbers) {
            bool good = more();
            if (good) number = words_[at_++].toDouble(&good);
            if (!good) return false;
        }
        return true;
    }

  private:
    QStringList words_;
    qsizetype at_ = 0;
};

bool addPiece(QPainterPath& path, const QString& word, Words& words) {
    std::array<double, 2> p{};
    std::array<double, 3> o{};
    std::array<double, 5> a{};
    std::array<double, 6> c{};
    if (word == "M" && words.numbers(p)) {
        path.moveTo(p[0], p[1]);
    } else if (word == "L" && words.numbers(p)) {
        path.lineTo(p[0], p[1]);
    } else if (word == "C" && words.numbers(c)) {
        path.cubicTo(c[0], c[1], c[2], c[3], c[4], c[5]);
    } else if (word == "Z") {
        path.closeSubpath();
    } else if (word == "O" && words.numbers(o)) {
        path.addEllipse(QPointF(o[0], o[1]), o[2], o[2]);
    } else if (word == "A" && words.numbers(a)) {
        const QRectF box(a[0] - a[2], a[1] - a[2], 2 * a[2], 2 * a[2]);
        path.arcMoveTo(box, a[3]);
        path.arcTo(box, a[3], a[4]);
    } else if (word == "R" && words.numbers(a)) {
        path.addRoundedRect(QRectF(a[0], a[1], a[2], a[3]), a[4], a[4]);
    } else {
        return false;
    }
    return true;
}

}  // namespace

std::vector<IconPart> readIconParts(const QString& text) {
    std::vector<IconPart> parts;
    for (const QString& piece : text.split(';', Qt::SkipEmptyParts)) {
        IconPart part;
        Words words(piece);
        while (words.more()) {
            const QString word = words.word();
            if (word == "F") {
                part.filled = true;
            } else if (!addPiece(part.path, word, words)) {
                break;
            }
        }
        parts.push_back(part);
    }
    return parts;
}

}  // namespace quorrin
