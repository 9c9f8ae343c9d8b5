#include "desktop/theme/icons.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QPainterPathStroker>

#include "desktop/theme/icon_paths.h"

namespace quorrin {
namespace {

// How many dots of a square picture the icon colours.
int inked(IconName name, int side) {
    QImage picture(side, side, QImage::Format_ARGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    drawIcon(painter, picture.rect(), name, Qt::black);
    painter.end();
    int dots = 0;
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) dots += qGray(picture.pixel(x, y)) < 128 ? 1 : 0;
    return dots;
}

TEST(Icons, AllDrawSomethingAtSmallAndLargeSizes) {
    for (int i = 0; i < static_cast<int>(IconName::count); ++i) {
        EXPECT_GT(inked(static_cast<IconName>(i), 16), 16) << i;
        EXPECT_GT(inked(static_cast<IconName>(i), 96), 400) << i;
    }
}

TEST(Icons, StayInsideTheirSquare) {
    for (int i = 0; i < static_cast<int>(IconName::count); ++i) {
        for (const IconPart& part : readIconParts(iconWords(static_cast<IconName>(i)))) {
            QPainterPathStroker stroker(QPen(Qt::black, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            const QPainterPath drawn = part.filled ? part.path : stroker.createStroke(part.path);
            EXPECT_TRUE(QRectF(0, 0, 24, 24).contains(drawn.boundingRect()))
                << i << iconWords(static_cast<IconName>(i)).toStdString() << drawn.boundingRect().left()
                << " " << drawn.boundingRect().top() << " " << drawn.boundingRect().right() << " "
                << drawn.boundingRect().bottom();
        }
    }
}

TEST(Icons, AreWrittenInWordsThatTheReaderKnows) {
    for (int i = 0; i < static_cast<int>(IconName::count); ++i) {
        for (const QString& part : iconWords(static_cast<IconName>(i)).split(';')) {
            const auto whole = readIconParts(part);
            const auto shortened = readIconParts(part.left(part.lastIndexOf(' ')));
            EXPECT_NE(whole.at(0).path, shortened.at(0).path) << part.toStdString();
        }
    }
}

TEST(Icons, ReadAnOutlineAsFarAsItIsWellFormed) {
    const auto parts = readIconParts(QStringLiteral("F M 1 2 L 3 4 nonsense;R 1 1 4 4 0"));
    ASSERT_EQ(parts.size(), 2u);
    EXPECT_TRUE(parts[0].filled);
    EXPECT_EQ(parts[0].path.elementCount(), 2);
    EXPECT_FALSE(parts[1].filled);
}

}  // namespace
}  // namespace quorrin
