// The library that writes JPEG files, as SaveJPG() uses it: three calls around one block of parameters.
//
// A code of 0 is success; any other says what went wrong. One block is between ijlInit() and ijlFree() at a
// time.
#pragma once

#include <cstdint>

#include "base/checked_int.h"

namespace quorrin {

enum class DibColour { none, blueGreenRed };
enum class JpegColour { none, yCbCr };
// How much of the colour is kept: one sample of it for 2 x 2 pixels.
enum class JpegSubsampling { none, fourTwoZero };

struct JpegCoreProperties {
    // What stands in memory.
    Long DIBWidth = 0;
    Long DIBHeight = 0;  // negative: the rows lie from the bottom up
    const std::uint8_t* DIBBytes = nullptr;
    Long DIBPadBytes = 0;  // behind the pixels of each row
    Long DIBChannels = 0;
    DibColour DIBColor = DibColour::none;
    // What shall stand in the file.
    const char* JPGFile = nullptr;  // the path, ended by a zero byte
    Long JPGWidth = 0;
    Long JPGHeight = 0;
    Long JPGChannels = 0;
    JpegColour JPGColor = JpegColour::none;
    JpegSubsampling JPGSubsampling = JpegSubsampling::none;
    Long jquality = 0;  // 1 to 100
};

// What ijlWrite() is asked for.
constexpr int IJL_JFILE_WRITEWHOLEIMAGE = 8;

class JpegLibrary {
  public:
    virtual ~JpegLibrary() = default;
    // Fills the block with the library's own choices.
    virtual int ijlInit(JpegCoreProperties& properties) = 0;
    virtual int ijlWrite(JpegCoreProperties& properties, int mode) = 0;
    virtual int ijlFree(JpegCoreProperties& properties) = 0;
};

}  // namespace quorrin
