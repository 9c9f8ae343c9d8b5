// Picture files for tests, byte by byte.
#pragma once

#include <cstdint>
#include <string>

#include "imaging/intel_jpeg_library.h"
#include "imaging/turbo_jpeg_library.h"
#include "platform/virtual/memory_files.h"
#include "support/test_pictures.h"

namespace quorrin {

inline void putNumber(std::string& file, std::size_t at, std::uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i)
        file[at + static_cast<std::size_t>(i)] = static_cast<char>(value >> 8 * i & 0xFF);
}

inline std::string bmpFileOf(const Bitmap& bitmap) {
    std::string file(54, '\0');
    file[0] = 'B';
    file[1] = 'M';
    putNumber(file, 2, static_cast<std::uint32_t>(54 + bitmap.bytes()), 4);
    putNumber(file, 10, 54, 4);
    putNumber(file, 14, 40, 4);
    putNumber(file, 18, static_cast<std::uint32_t>(bitmap.width()), 4);
    putNumber(file, 22, static_cast<std::uint32_t>(bitmap.height()), 4);
    putNumber(file, 26, 1, 2);
    putNumber(file, 28, 24, 2);
    putNumber(file, 34, static_cast<std::uint32_t>(bitmap.bytes()), 4);
    return file.append(reinterpret_cast<const char*>(bitmap.bits()), bitmap.bytes());
}

inline std::string bmpFile(std::int32_t width, std::int32_t height) {
    return bmpFileOf(*cornersPicture(width, height));
}

inline std::string jpegFile(Bitmap& bitmap, int quality) {
    MemoryFiles files;
    files.createFolder("/app");
    TurboJpegLibrary library(files);
    CurrentError error;
    mIntelJPEGLibrary module(files, library, error, "test");
    cDIBSection dib;
    dib.CreateFromPicture(&bitmap);
    module.SaveJPG(&dib, "/app/a.jpg", quality);
    return files.read("/app/a.jpg").value_or("");
}

}  // namespace quorrin
