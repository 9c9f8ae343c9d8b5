// A picture that was read from a file, or why there is none.
//
// A file's size and header are never believed: what comes out has all its pixels, and what does not fit the
// rest of the file is a fault. Nothing is read that is larger than a bitmap can be.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "imaging/bitmap.h"

namespace quorrin {

enum class PictureFault {
    none,
    missing,      // the file cannot be read
    empty,        // it has no byte
    notAPicture,  // neither a Windows bitmap nor a JPEG
    unsupported,  // one of a kind that is not read here: other than 24 bits, compressed, four inks
    tooLarge,     // more pixels than a bitmap may have
    cutShort,     // the file ends before its picture does
    damaged,      // a header that makes no sense, or JPEG data that cannot be decoded without a gap
};

// For a person: "the file is empty".
const char* pictureFaultText(PictureFault fault);

struct LoadedPicture {
    // Null exactly when there is a fault.
    std::unique_ptr<Bitmap> bitmap;
    PictureFault fault = PictureFault::none;
};

inline LoadedPicture faulty(PictureFault fault) {
    return {nullptr, fault};
}

}  // namespace quorrin
