#include "desktop/tiles/glance_tile.h"

#include <gtest/gtest.h>

#include <QImage>

#include "desktop/dashboard_bench.h"
#include "desktop/widgets/lamp.h"
#include "session/record/general_constants.h"

namespace quorrin {
namespace {

QImage drawn(GlanceTile& tile, const Glance& glance) {
    tile.show(glance);
    return tile.grab().toImage();
}

struct Tile : testing::Test {
    Tile() { tile.resize(240, 60); }
    GlanceTile tile{GlanceTile::Kind::small, IconName::battery, "Battery 1"};
};

TEST_F(Tile, LooksDifferentInEveryTone) {
    std::vector<QImage> pictures;
    for (const Tone tone : {Tone::off, Tone::good, Tone::busy, Tone::warning, Tone::bad})
        pictures.push_back(drawn(tile, {"same", "", tone}));
    for (std::size_t i = 0; i < pictures.size(); ++i)
        for (std::size_t j = i + 1; j < pictures.size(); ++j) EXPECT_NE(pictures[i], pictures[j]) << i << j;
}

TEST_F(Tile, TellsItsToneWithoutColourToo) {
    const auto grey = [this](Tone tone) {
        const QImage picture = drawn(tile, {"same", "", tone});
        // Where the sign is, each dot either lighter or darker than the block.
        const QRect block(0, 0, tile.fontMetrics().height() * 3, tile.height());
        const int ground = qGray(picture.pixel(4, block.height() / 2));
        std::vector<bool> shape;
        for (int y = 0; y < block.height(); ++y)
            for (int x = 0; x < block.width(); ++x)
                shape.push_back(std::abs(qGray(picture.pixel(x, y)) - ground) > 40);
        return shape;
    };
    EXPECT_NE(grey(Tone::good), grey(Tone::bad));
    EXPECT_NE(grey(Tone::good), grey(Tone::warning));
    EXPECT_NE(grey(Tone::good), grey(Tone::off));
}

TEST_F(Tile, ShowsHowFarAWaitIs) {
    const QImage begun = drawn(tile, {"starting", "", Tone::busy, 0.1});
    const QImage nearly = drawn(tile, {"starting", "", Tone::busy, 0.9});
    EXPECT_NE(begun, nearly);
}

TEST_F(Tile, TheWaitThatIsOverStandsOutFromTheRestInEveryToneOfBothLooks) {
    LookGuard look;
    for (const Theme* theme : {&lightTheme(), &darkTheme()}) {
        look.wear(*theme, 1);
        for (const Tone tone : {Tone::off, Tone::good, Tone::busy, Tone::warning, Tone::bad}) {
            const QImage picture = drawn(tile, {"starting", "", tone, 0.5});
            const int y = picture.height() - GlanceTile::kProgressHeight / 2 - 1;
            const int right = picture.width() - theme->radius - 2;
            const QColor rest = picture.pixelColor(right, y);
            // The bar begins beside the block and its middle is right of the tile's.
            const QColor done = picture.pixelColor(picture.width() / 2, y);
            EXPECT_EQ(rest, theme->line);
            EXPECT_GE(contrast(done, rest), 3) << theme->dark << static_cast<int>(tone);
        }
    }
}

TEST_F(Tile, WritesSmallerRatherThanCutOff) {
    tile.resize(tile.sizeHint().width() + 60, tile.sizeHint().height());
    tile.show({"up", "silent 12.3 s of 20 s, and then some more", Tone::warning});
    EXPECT_TRUE(tile.whole());
    tile.show({"up", std::string(400, 'x'), Tone::warning});
    EXPECT_FALSE(tile.whole());
}

TEST(Lamp, KeepsItsSignWhileItsColourBlinks) {
    Lamp lamp;
    lamp.setSign({"LOW", LampShape::exclamation, Tone::bad});
    lamp.setFill(GeneralConstants::kRed);
    lamp.resize(lamp.sizeHint());
    const QSize size = lamp.sizeHint();
    const QImage red = lamp.grab().toImage();
    lamp.setFill(GeneralConstants::kLightGreen);
    EXPECT_NE(lamp.grab().toImage(), red);
    EXPECT_EQ(lamp.sizeHint(), size);
    EXPECT_EQ(lamp.accessibleDescription(), "LOW");
}

TEST(Lamp, HasAnotherOutlineWhenItWarns) {
    Lamp lamp;
    lamp.setFill(GeneralConstants::kRed);
    lamp.resize(lamp.sizeHint());
    lamp.setSign({"", LampShape::blank, Tone::good});
    const QImage disc = lamp.grab().toImage();
    lamp.setSign({"", LampShape::blank, Tone::bad});
    EXPECT_NE(lamp.grab().toImage(), disc);
}

}  // namespace
}  // namespace quorrin
