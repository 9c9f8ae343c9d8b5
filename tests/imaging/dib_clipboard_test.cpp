// The clipboard operation: as a plain bitmap only, and only where there is a clipboard.
#include <gtest/gtest.h>

#include "imaging/dib_section.h"
#include "platform/virtual/scripted_boxes.h"
#include "support/test_pictures.h"

namespace quorrin {
namespace {

class FakeClipboard : public Clipboard {
  public:
    bool placeBitmap(const ClipboardPicture& picture) override {
        placed.push_back(picture);
        return takes;
    }
    std::vector<ClipboardPicture> placed;
    bool takes = true;
};

class DibClipboardTest : public ::testing::Test {
  protected:
    FakeClipboard clipboard;
    ScriptedBoxes boxes;
    std::vector<std::string> shown;
    cDIBSection dib{cDIBSection::Host{nullptr, &boxes, &clipboard}};

    DibClipboardTest() {
        boxes.onShow = [this](const std::string& text, const std::string&, BoxAnswer) {
            shown.push_back(text);
        };
        const auto picture = cornersPicture(2, 2);
        dib.CreateFromPicture(picture.get());
    }
};

TEST_F(DibClipboardTest, ADeviceIndependentBitmapIsRefusedWithAMessageBox) {
    EXPECT_FALSE(dib.CopyToClipboard(true));
    EXPECT_EQ(shown, std::vector<std::string>{
                         "I don't know how to put a DIB on the clipboard! Copy as bitmap instead!!!"});
    EXPECT_TRUE(clipboard.placed.empty());
}

TEST_F(DibClipboardTest, APlainBitmapIsPlacedWithItsColoursFromTheTop) {
    EXPECT_TRUE(dib.CopyToClipboard(false));
    ASSERT_EQ(clipboard.placed.size(), 1U);
    EXPECT_EQ(clipboard.placed[0].width, 2);
    EXPECT_EQ(clipboard.placed[0].height, 2);
    EXPECT_EQ(clipboard.placed[0].pixels, std::string("\xFF\0\0"
                                                      "\0\xFF\0"
                                                      "\0\0\xFF"
                                                      "\xFF\xFF\0",
                                                      12));
    EXPECT_TRUE(shown.empty());
}

TEST_F(DibClipboardTest, TheResultIsWhetherTheClipboardTookIt) {
    clipboard.takes = false;
    EXPECT_FALSE(dib.CopyToClipboard(false));
}

TEST_F(DibClipboardTest, AnEmptyOneIsNotPlaced) {
    dib.ClearUp();
    EXPECT_FALSE(dib.CopyToClipboard(false));
    EXPECT_TRUE(clipboard.placed.empty());
}

TEST(DibClipboard, NothingIsPlacedWhereThereIsNoClipboard) {
    cDIBSection dib;
    ASSERT_TRUE(dib.Create(2, 2));
    EXPECT_FALSE(dib.CopyToClipboard(false));
    EXPECT_FALSE(dib.CopyToClipboard(true));
}

}  // namespace
}  // namespace quorrin
