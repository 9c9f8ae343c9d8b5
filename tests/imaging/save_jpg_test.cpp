// SaveJPG(): what it asks of the JPEG library and of the file system, in which order, and what becomes of a
// failure. The library is a fake here; what the real one writes is looked at elsewhere.
#include <gmock/gmock.h>

#include <stdexcept>

#include "base/program_error.h"
#include "imaging/intel_jpeg_library.h"
#include "platform/virtual/memory_files.h"
#include "support/test_pictures.h"

namespace quorrin {
namespace {

using testing::ElementsAre;

using Journal = std::vector<std::string>;

class FakeJpegLibrary : public JpegLibrary {
  public:
    FakeJpegLibrary(Journal& journal, Files& files) : journal_(journal), files_(files) {}

    int ijlInit(JpegCoreProperties& properties) override {
        journal_.push_back("ijlInit");
        properties.DIBChannels = 77;
        return initCode;
    }
    int ijlWrite(JpegCoreProperties& properties, int mode) override {
        journal_.push_back("ijlWrite " + std::to_string(mode));
        given = properties;
        path = properties.JPGFile == nullptr ? "" : properties.JPGFile;
        if (onWrite) onWrite();
        if (writeCode == 0) files_.writeVolatile(path, "JPEG");
        return writeCode;
    }
    int ijlFree(JpegCoreProperties&) override {
        journal_.push_back("ijlFree");
        return freeCode;
    }

    int initCode = 0;
    int writeCode = 0;
    int freeCode = 0;
    JpegCoreProperties given;
    std::string path;
    std::function<void()> onWrite;

  private:
    Journal& journal_;
    Files& files_;
};

// Tells what was asked of the files beside their content.
class JournalFiles : public MemoryFiles {
  public:
    explicit JournalFiles(Journal& journal) : journal_(journal) {}
    bool remove(const std::string& path) override {
        journal_.push_back("remove");
        return !refusesToRemove && MemoryFiles::remove(path);
    }
    std::optional<FileStamps> stampsOf(const std::string& path) override {
        journal_.push_back("stampsOf");
        if (fails) throw ProgramError("no stamps");
        return MemoryFiles::stampsOf(path);
    }
    bool putBackStamps(const std::string& path, const FileStamps& stamps) override {
        journal_.push_back("putBackStamps");
        return !refusesStamps && MemoryFiles::putBackStamps(path, stamps);
    }
    bool refusesToRemove = false;
    bool refusesStamps = false;
    bool fails = false;

  private:
    Journal& journal_;
};

class SaveJpgTest : public ::testing::Test {
  protected:
    static constexpr const char* kPath = "/app/Tempvb.jpg";
    static constexpr FileStamps kOld = {1'000, 2'000, 0640};
    Journal journal;
    JournalFiles files{journal};
    FakeJpegLibrary library{journal, files};
    CurrentError error;
    mIntelJPEGLibrary module{files, library, error, "station"};
    cDIBSection dib;

    SaveJpgTest() {
        files.createFolder("/app");
        dib.Create(5, 4);
    }
    void putOldFile() {
        files.put(kPath, "old");
        files.MemoryFiles::putBackStamps(kPath, kOld);
    }
    bool save(int quality = 75) { return module.SaveJPG(&dib, kPath, quality); }
};

TEST_F(SaveJpgTest, GoesByItsStepsWhereThereWasNoFile) {
    EXPECT_TRUE(save());
    EXPECT_THAT(journal, ElementsAre("ijlInit", "stampsOf", "ijlWrite 8", "ijlFree"));
    EXPECT_EQ(files.read(kPath), "JPEG");
    EXPECT_EQ(error.number, 0);
}

TEST_F(SaveJpgTest, DeletesAFileThatWasThereBeforeWritingAndPutsItsStampsBackAfterwards) {
    putOldFile();
    EXPECT_TRUE(save());
    EXPECT_THAT(journal,
                ElementsAre("ijlInit", "stampsOf", "remove", "ijlWrite 8", "putBackStamps", "ijlFree"));
    EXPECT_EQ(files.read(kPath), "JPEG");
    EXPECT_EQ(files.MemoryFiles::stampsOf(kPath), kOld);
}

TEST_F(SaveJpgTest, FillsTheBlockFromTheBitmap) {
    EXPECT_TRUE(save(42));
    EXPECT_EQ(library.given.DIBWidth, 5);
    EXPECT_EQ(library.given.DIBHeight, -4);
    EXPECT_EQ(library.given.DIBBytes, dib.DIBSectionBitsPtr());
    EXPECT_EQ(library.given.DIBPadBytes, 1);
    EXPECT_EQ(library.path, kPath);
    EXPECT_EQ(library.given.JPGWidth, 5);
    EXPECT_EQ(library.given.JPGHeight, 4);
    EXPECT_EQ(library.given.jquality, 42);
}

TEST_F(SaveJpgTest, LeavesWhatTheLibraryChoseItself) {
    EXPECT_TRUE(save());
    EXPECT_EQ(library.given.DIBChannels, 77);
}

TEST_F(SaveJpgTest, PassesBothEndsOfTheQualityStraightOn) {
    EXPECT_TRUE(save(1));
    EXPECT_EQ(library.given.jquality, 1);
    EXPECT_TRUE(save(100));
    EXPECT_EQ(library.given.jquality, 100);
}

TEST_F(SaveJpgTest, APadIsToldForEveryWidth) {
    for (const auto& [width, pad] : {std::pair{1, 1}, {2, 2}, {3, 3}, {4, 0}, {640, 0}, {641, 1}}) {
        ASSERT_TRUE(dib.Create(width, 1));
        EXPECT_TRUE(save());
        EXPECT_EQ(library.given.DIBPadBytes, pad) << width;
    }
}

TEST_F(SaveJpgTest, ALibraryThatCannotBeginIsNotFreedAndTheFileStays) {
    putOldFile();
    library.initCode = -7;
    EXPECT_FALSE(save());
    EXPECT_THAT(journal, ElementsAre("ijlInit"));
    EXPECT_EQ(files.read(kPath), "old");
    EXPECT_EQ(error.number, 26001);
    EXPECT_EQ(error.source, "station.mIntelJPEGLibrary");
    EXPECT_EQ(error.text, "Failed to initialise the IJL library: -7");
}

TEST_F(SaveJpgTest, AWriteThatFailsIsRecordedAndTheLibraryFreed) {
    putOldFile();
    library.writeCode = 12;
    EXPECT_FALSE(save());
    EXPECT_THAT(journal, ElementsAre("ijlInit", "stampsOf", "remove", "ijlWrite 8", "ijlFree"));
    EXPECT_FALSE(files.fileExists(kPath));
    EXPECT_EQ(error.number, 26001);
    EXPECT_EQ(error.source, "station.mIntelJPEGLibrary");
    EXPECT_EQ(error.text, "Failed to save to JPG 12");
}

TEST_F(SaveJpgTest, AFileThatCannotBeDeletedIsWrittenAllTheSame) {
    putOldFile();
    files.refusesToRemove = true;
    EXPECT_TRUE(save());
    EXPECT_EQ(files.read(kPath), "JPEG");
}

TEST_F(SaveJpgTest, StampsThatCannotBePutBackAreNoFailure) {
    putOldFile();
    files.refusesStamps = true;
    EXPECT_TRUE(save());
    EXPECT_EQ(error.number, 0);
}

TEST_F(SaveJpgTest, TheResultOfFreeingIsNotLookedAt) {
    library.freeCode = 5;
    EXPECT_TRUE(save());
}

TEST_F(SaveJpgTest, AStepThatFailsIsPassedOver) {
    putOldFile();
    files.fails = true;
    EXPECT_TRUE(save());
    EXPECT_THAT(journal, ElementsAre("ijlInit", "stampsOf", "ijlWrite 8", "ijlFree"));
}

TEST_F(SaveJpgTest, WithoutABitmapTheWriteIsTriedWithWhatIsThere) {
    library.writeCode = -1;
    EXPECT_FALSE(module.SaveJPG(nullptr, kPath, 75));
    EXPECT_THAT(journal, ElementsAre("ijlInit", "stampsOf", "ijlWrite 8", "ijlFree"));
    EXPECT_EQ(library.given.DIBBytes, nullptr);
    EXPECT_EQ(library.given.JPGWidth, 0);
    EXPECT_EQ(library.given.jquality, 75);
}

TEST_F(SaveJpgTest, ABitmapThatCannotTellItsRowIsPassedOverToo) {
    EXPECT_FALSE(dib.Create(2'147'483'647, 1));
    library.writeCode = -1;
    EXPECT_FALSE(save());
    EXPECT_EQ(library.given.DIBWidth, 2'147'483'647);
    EXPECT_EQ(library.given.DIBPadBytes, 0);
}

TEST_F(SaveJpgTest, NoFailureLeavesItAsAnException) {
    library.onWrite = [] { throw std::runtime_error("the library broke"); };
    EXPECT_FALSE(save());
    EXPECT_EQ(journal.back(), "ijlFree");
    EXPECT_EQ(error.text, "Failed to save to JPG -1");
}

TEST_F(SaveJpgTest, TheEndOfTheProgramIsNoFailure) {
    library.onWrite = [] { throw ProgramEnd{}; };
    EXPECT_THROW(save(), ProgramEnd);
}

TEST_F(SaveJpgTest, ASuccessLeavesTheRecordOfAnEarlierFailure) {
    library.writeCode = 3;
    EXPECT_FALSE(save());
    library.writeCode = 0;
    EXPECT_TRUE(save());
    EXPECT_EQ(error.text, "Failed to save to JPG 3");
}

TEST_F(SaveJpgTest, ThePathEndsAtItsFirstZeroByte) {
    EXPECT_TRUE(module.SaveJPG(&dib, std::string("/app/a.jpg\0b", 12), 75));
    EXPECT_TRUE(files.fileExists("/app/a.jpg"));
}

}  // namespace
}  // namespace quorrin
