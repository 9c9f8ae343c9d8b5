#include "imaging/picture_loader.h"

#include <utility>

#include "imaging/bmp_picture.h"
#include "imaging/jpeg_picture.h"

namespace quorrin {

const char* pictureFaultText(PictureFault fault) {
    switch (fault) {
        case PictureFault::none:
            return "";
        case PictureFault::missing:
            return "the file cannot be read";
        case PictureFault::empty:
            return "the file is empty";
        case PictureFault::notAPicture:
            return "the file is neither a bitmap nor a JPEG";
        case PictureFault::unsupported:
            return "the file is a picture of a kind that is not read";
        case PictureFault::tooLarge:
            return "the picture is too large";
        case PictureFault::cutShort:
            return "the file ends before its picture does";
        case PictureFault::damaged:
            return "the picture in the file is damaged";
    }
    return "";
}

LoadedPicture loadPicture(Files& files, const std::string& path) {
    auto content = files.read(path);
    if (!content) return faulty(PictureFault::missing);
    return readPicture(*std::move(content));
}

LoadedPicture readPicture(std::string content) {
    if (content.empty()) return faulty(PictureFault::empty);
    if (looksLikeJpeg(content)) return readJpeg(content);
    return readBmp24(std::move(content));
}

}  // namespace quorrin
