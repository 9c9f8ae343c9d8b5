#include "imaging/intel_jpeg_library.h"

#include <exception>
#include <optional>

#include "base/program_error.h"

namespace quorrin {

namespace {

constexpr int kFailure = 26001;
constexpr int kNotRun = -1;  // the code of a call that did not come back

// The program's end is no failure and goes on its way.
template <typename... Steps>
void resumeNext(Steps&&... steps) {
    const auto attempt = [](auto& step) {
        try {
            step();
        } catch (const std::exception&) {
            // passed over by rule
        }
    };
    (attempt(steps), ...);
}

const cDIBSection& bitmapOf(const cDIBSection* dib) {
    if (dib == nullptr) throw ProgramError("no bitmap to save");
    return *dib;
}

}  // namespace

mIntelJPEGLibrary::mIntelJPEGLibrary(Files& files, JpegLibrary& library, CurrentError& error,
                                     const std::string& programName)
    : files_(files), library_(library), error_(error), source_(programName + ".mIntelJPEGLibrary") {}

bool mIntelJPEGLibrary::SaveJPG(const cDIBSection* dib, const std::string& path, Long quality) {
    JpegCoreProperties record;
    int code = kNotRun;
    resumeNext([&] { code = library_.ijlInit(record); });
    if (code != 0) {
        recordFailure("Failed to initialise the IJL library: ", code);
        return false;
    }

    std::optional<FileStamps> before;
    resumeNext([&] { before = files_.stampsOf(path); },
               [&] {
                   if (before) files_.remove(path);
               });
    fill(record, dib, path, quality);

    code = kNotRun;
    resumeNext([&] { code = library_.ijlWrite(record, IJL_JFILE_WRITEWHOLEIMAGE); });
    if (code == 0) {
        resumeNext([&] {
            if (before) files_.putBackStamps(path, *before);
        });
    } else {
        recordFailure("Failed to save to JPG ", code);
    }
    const bool saved = code == 0;
    resumeNext([&] { library_.ijlFree(record); });
    return saved;
}

void mIntelJPEGLibrary::fill(JpegCoreProperties& record, const cDIBSection* dib, const std::string& path,
                             Long quality) {
    resumeNext([&] { record.DIBWidth = bitmapOf(dib).Width(); },
               [&] { record.DIBHeight = -bitmapOf(dib).Height(); },
               [&] { record.DIBBytes = bitmapOf(dib).DIBSectionBitsPtr(); },
               [&] { record.DIBPadBytes = bitmapOf(dib).BytesPerScanLine() - bitmapOf(dib).Width() * 3; },
               [&] { record.JPGFile = path.c_str(); }, [&] { record.JPGWidth = bitmapOf(dib).Width(); },
               [&] { record.JPGHeight = bitmapOf(dib).Height(); }, [&] { record.jquality = quality; });
}

void mIntelJPEGLibrary::recordFailure(const std::string& text, int code) {
    error_.number = kFailure;
    error_.source = source_;
    error_.text = text + std::to_string(code);
}

}  // namespace quorrin
