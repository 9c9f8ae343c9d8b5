#include "imaging/turbo_jpeg_library.h"

#include <turbojpeg.h>

#include <new>
#include <string_view>

namespace quorrin {

namespace {

constexpr int kLargestSide = 65500;  // of any JPEG that this encoder makes

bool isPossible(const JpegCoreProperties& block) {
    return block.DIBBytes != nullptr && block.JPGFile != nullptr && block.DIBWidth > 0 &&
           block.DIBHeight != 0 && block.DIBPadBytes >= 0 && block.DIBPadBytes <= 3 && block.jquality >= 1 &&
           block.jquality <= 100;
}

// Only what ijlInit() chose, at the picture's own size.
bool isOurs(const JpegCoreProperties& block) {
    const std::int64_t height = block.DIBHeight;
    return block.DIBChannels == 3 && block.DIBColor == DibColour::blueGreenRed && block.JPGChannels == 3 &&
           block.JPGColor == JpegColour::yCbCr && block.JPGSubsampling == JpegSubsampling::fourTwoZero &&
           block.JPGWidth == block.DIBWidth && block.JPGHeight == (height < 0 ? -height : height);
}

}  // namespace

void TurboJpegLibrary::Destroy::operator()(void* encoder) const {
    tjDestroy(encoder);
}

int TurboJpegLibrary::ijlInit(JpegCoreProperties& properties) {
    properties = {};
    properties.DIBChannels = 3;
    properties.DIBColor = DibColour::blueGreenRed;
    properties.JPGChannels = 3;
    properties.JPGColor = JpegColour::yCbCr;
    properties.JPGSubsampling = JpegSubsampling::fourTwoZero;
    encoder_.reset(tjInitCompress());
    return encoder_ ? kJpegOk : kJpegNoEncoder;
}

int TurboJpegLibrary::ijlWrite(JpegCoreProperties& properties, int mode) {
    if (mode != IJL_JFILE_WRITEWHOLEIMAGE || !isPossible(properties) || !isOurs(properties))
        return kJpegBadProperties;
    const int width = properties.JPGWidth;
    const int height = properties.JPGHeight;
    if (width > kLargestSide || height > kLargestSide) return kJpegNotEncoded;
    if (!encoder_ || !makeRoom(tjBufSize(width, height, TJSAMP_420))) return kJpegNoEncoder;

    const int rowBytes = width * 3 + properties.DIBPadBytes;
    const int order = properties.DIBHeight < 0 ? TJFLAG_BOTTOMUP : 0;
    unsigned char* to = buffer_.get();
    unsigned long bytes = bufferBytes_;
    if (tjCompress2(encoder_.get(), properties.DIBBytes, width, rowBytes, height, TJPF_BGR, &to, &bytes,
                    TJSAMP_420, properties.jquality, order | TJFLAG_ACCURATEDCT | TJFLAG_NOREALLOC) != 0)
        return kJpegNotEncoded;
    const std::string_view content(reinterpret_cast<const char*>(to), bytes);
    return files_.writeVolatile(properties.JPGFile, content) ? kJpegOk : kJpegNotWritten;
}

int TurboJpegLibrary::ijlFree(JpegCoreProperties&) {
    encoder_.reset();
    return kJpegOk;
}

bool TurboJpegLibrary::makeRoom(unsigned long bytes) {
    if (bytes <= bufferBytes_) return true;
    buffer_.reset(new (std::nothrow) std::uint8_t[bytes]);
    bufferBytes_ = buffer_ ? bytes : 0;
    return bufferBytes_ != 0;
}

}  // namespace quorrin
