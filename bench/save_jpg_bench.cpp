// What SaveJPG() costs beside the bare encoder: the same pixels, the same settings, the same folder,
// compressed by TurboJPEG with a buffer and an encoder that are kept, and written by one call. Both take
// turns in one run; the figures are the ratio of their fastest tenths, and the same for a picture file read,
// copied into a bitmap and saved.
#include <fcntl.h>
#include <turbojpeg.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "figure.h"
#include "imaging/intel_jpeg_library.h"
#include "imaging/picture_loader.h"
#include "imaging/turbo_jpeg_library.h"
#include "platform/host/posix_files.h"
#include "platform/host/stopwatch.h"
#include "platform/host/temporary_folder.h"
#include "support/picture_files.h"

namespace quorrin::bench {
namespace {

constexpr int kRounds = 1000;
constexpr double kAim = 1.25;

// The fastest tenth: what is slower measures the machine's other work.
double fastest(std::vector<double> values) {
    const auto place = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 10);
    std::nth_element(values.begin(), place, values.end());
    return *place;
}

bool writeBare(const std::string& path, const void* bytes, std::size_t size) {
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    const bool written = file >= 0 && ::write(file, bytes, size) == static_cast<ssize_t>(size);
    return ::close(file) == 0 && written;
}

class BareEncoder {
  public:
    BareEncoder() : encoder_(tjInitCompress()), buffer_(tjBufSize(640, 480, TJSAMP_420)) {}
    ~BareEncoder() { tjDestroy(encoder_); }
    bool save(const Bitmap& bitmap, int quality, const std::string& path) {
        unsigned char* to = buffer_.data();
        unsigned long bytes = buffer_.size();
        return tjCompress2(encoder_, bitmap.bits(), bitmap.width(), static_cast<int>(bitmap.rowBytes()),
                           bitmap.height(), TJPF_BGR, &to, &bytes, TJSAMP_420, quality,
                           TJFLAG_BOTTOMUP | TJFLAG_ACCURATEDCT | TJFLAG_NOREALLOC) == 0 &&
               writeBare(path, to, bytes);
    }

  private:
    tjhandle encoder_;
    std::vector<unsigned char> buffer_;
};

template <typename Work>
bool timed(std::vector<double>& seconds, Work&& work) {
    const Stopwatch watch;
    const bool good = work();
    seconds.push_back(watch.seconds());
    return good;
}

struct Sides {
    std::vector<double> ours;
    std::vector<double> bare;
    double ratio() const { return fastest(ours) / fastest(bare); }
};

bool measure(int width, int height, int quality) {
    const TemporaryFolder folder;
    PosixFiles files;
    TurboJpegLibrary library(files);
    CurrentError error;
    mIntelJPEGLibrary module(files, library, error, "bench");
    BareEncoder bareEncoder;
    const auto scene = scenePicture(width, height);
    const std::string file = bmpFileOf(*scene);
    cDIBSection dib;
    dib.CreateFromPicture(scene.get());
    const std::string ourPath = folder.path() + "/ours.jpg";
    const std::string barePath = folder.path() + "/bare.jpg";
    const std::string bmpPath = folder.path() + "/frame.bmp";
    if (!files.writeWhole(bmpPath, file)) return false;

    Sides save;
    Sides road;
    bool good = true;
    for (int round = 0; good && round < kRounds; ++round) {
        // The camera deletes its target first, and some file systems make whoever overwrites a file wait for
        // the disk.
        const bool fresh = round == 0 || (files.remove(barePath) && files.remove(ourPath));
        good = fresh && timed(save.bare, [&] { return bareEncoder.save(*dib.hDib(), quality, barePath); }) &&
               timed(save.ours, [&] { return module.SaveJPG(&dib, ourPath, quality); }) &&
               timed(road.bare,
                     [&] {
                         auto content = files.read(bmpPath);
                         const auto rows =
                             content ? Bitmap::over(*std::move(content), 54, width, height) : nullptr;
                         return ::unlink(barePath.c_str()) == 0 && rows &&
                                bareEncoder.save(*rows, quality, barePath);
                     }) &&
               timed(road.ours, [&] {
                   const LoadedPicture picture = loadPicture(files, bmpPath);
                   cDIBSection frame;
                   frame.CreateFromPicture(picture.bitmap.get());
                   return files.remove(ourPath) && module.SaveJPG(&frame, ourPath, quality);
               });
    }
    if (!good) return false;
    const std::string what =
        std::to_string(width) + "x" + std::to_string(height) + ", quality " + std::to_string(quality);
    printFigure("bitmap to JPEG file, " + what, save.ratio(), "times the bare encoder", kAim);
    printFigure("picture file to JPEG file, " + what, road.ratio(), "times the bare encoder", kAim);
    printFigure("bare JPEG file, " + what, fastest(save.bare) * 1e6, "us");
    return true;
}

}  // namespace
}  // namespace quorrin::bench

int main() {
    using quorrin::bench::measure;
    const bool good =
        measure(640, 480, 75) && measure(640, 480, 30) && measure(320, 240, 75) && measure(320, 240, 30);
    if (!good) std::fputs("bench_save_jpg: a picture could not be saved\n", stderr);
    return good ? 0 : 1;
}
