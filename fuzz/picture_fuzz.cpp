// Picture files: whatever the bytes, there is a picture with all its pixels or a fault, and never both; and
// what was read can be saved again.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "imaging/intel_jpeg_library.h"
#include "imaging/picture_loader.h"
#include "imaging/turbo_jpeg_library.h"
#include "platform/virtual/memory_files.h"

namespace {

using namespace quorrin;

void require(bool holds) {
    if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const LoadedPicture picture = readPicture(std::string(reinterpret_cast<const char*>(data), size));
    require((picture.bitmap == nullptr) == (picture.fault != PictureFault::none));
    constexpr std::size_t kQuick = 1'000'000;
    if (!picture.bitmap || picture.bitmap->bytes() > kQuick) return 0;
    cDIBSection dib;
    dib.CreateFromPicture(picture.bitmap.get());
    MemoryFiles files;
    files.createFolder("/a");
    TurboJpegLibrary library(files);
    CurrentError error;
    mIntelJPEGLibrary module(files, library, error, "fuzz");
    const bool small = dib.Width() <= 65'500 && dib.Height() <= 65'500;
    require(module.SaveJPG(&dib, "/a/a.jpg", 75) == small);
    require(!small || loadPicture(files, "/a/a.jpg").fault == PictureFault::none);
    return 0;
}
