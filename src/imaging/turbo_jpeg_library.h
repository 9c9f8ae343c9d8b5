// The JPEG library over TurboJPEG: a baseline JFIF file, encoded straight from the rows in memory, whose
// length and order the block tells; nothing of the picture is copied.
//
// Its own choices are three channels in and out, blue-green-red in, YCbCr with 4:2:0 subsampling out: what
// this encoder's own command-line tool takes, with the same exact transform, so that a quality means here
// what it means there. The file appears as a whole or not at all, without waiting for the disk: it is
// replaced at the next frame.
//
// The compressed bytes stand in a buffer that is kept from file to file and grows with the largest picture.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "imaging/jpeg_library.h"
#include "platform/files.h"

namespace quorrin {

// The codes of this library.
constexpr int kJpegOk = 0;
constexpr int kJpegBadProperties = -1;  // no pixels, no path, a quality outside 1 to 100, a mode not known
constexpr int kJpegNoEncoder = -2;      // no memory for it, or ijlInit() was not called
constexpr int kJpegNotEncoded = -3;     // a size that no JPEG has
constexpr int kJpegNotWritten = -4;     // the file system refused

class TurboJpegLibrary : public JpegLibrary {
  public:
    explicit TurboJpegLibrary(Files& files) : files_(files) {}

    int ijlInit(JpegCoreProperties& properties) override;
    int ijlWrite(JpegCoreProperties& properties, int mode) override;
    int ijlFree(JpegCoreProperties& properties) override;

  private:
    struct Destroy {
        void operator()(void* encoder) const;
    };
    bool makeRoom(unsigned long bytes);

    Files& files_;
    std::unique_ptr<void, Destroy> encoder_;
    std::unique_ptr<std::uint8_t[]> buffer_;
    unsigned long bufferBytes_ = 0;
};

}  // namespace quorrin
