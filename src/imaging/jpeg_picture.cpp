#include "imaging/jpeg_picture.h"

#include <turbojpeg.h>

#include <cstdint>
#include <memory>

namespace quorrin {

namespace {

struct Destroy {
    void operator()(void* decoder) const { tjDestroy(decoder); }
};

}  // namespace

bool looksLikeJpeg(std::string_view file) {
    return file.substr(0, 2) == "\xFF\xD8";
}

LoadedPicture readJpeg(std::string_view file) {
    if (file.empty()) return faulty(PictureFault::empty);
    if (!looksLikeJpeg(file)) return faulty(PictureFault::notAPicture);
    const std::unique_ptr<void, Destroy> decoder(tjInitDecompress());
    const auto* const data = reinterpret_cast<const unsigned char*>(file.data());
    int width = 0;
    int height = 0;
    int subsampling = 0;
    int colours = 0;
    if (!decoder ||
        tjDecompressHeader3(decoder.get(), data, file.size(), &width, &height, &subsampling, &colours) != 0)
        return faulty(PictureFault::damaged);
    if (width < 1 || height < 1) return faulty(PictureFault::damaged);  // tables and no picture
    if (colours == TJCS_CMYK || colours == TJCS_YCCK) return faulty(PictureFault::unsupported);

    LoadedPicture picture{Bitmap::create(width, height), PictureFault::none};
    if (!picture.bitmap) return faulty(PictureFault::tooLarge);
    const int rowBytes = static_cast<int>(picture.bitmap->rowBytes());
    constexpr int kFlags = TJFLAG_BOTTOMUP | TJFLAG_ACCURATEDCT | TJFLAG_STOPONWARNING | TJFLAG_LIMITSCANS;
    if (tjDecompress2(decoder.get(), data, file.size(), picture.bitmap->bits(), width, rowBytes, height,
                      TJPF_BGR, kFlags) != 0)
        return faulty(PictureFault::damaged);
    return picture;
}

}  // namespace quorrin
