// The module that saves a bitmap as a JPEG file. It reads none.
//
// A failed step is passed over and the next one runs; no failure leaves the module as an exception. The
// caller learns of it by a false result and by nothing else, whatever the record of the current error says.
#pragma once

#include <string>

#include "base/checked_int.h"
#include "imaging/current_error.h"
#include "imaging/dib_section.h"
#include "imaging/jpeg_library.h"
#include "platform/files.h"

namespace quorrin {

class mIntelJPEGLibrary {
  public:
    // `programName` begins the source that failures are recorded with.
    mIntelJPEGLibrary(Files& files, JpegLibrary& library, CurrentError& error,
                      const std::string& programName);

    // Quality 1 to 100. The path is taken up to its first zero byte. A file that is there is deleted first,
    // and the new one gets its times and permissions.
    bool SaveJPG(const cDIBSection* dib, const std::string& path, Long quality);

  private:
    void fill(JpegCoreProperties& record, const cDIBSection* dib, const std::string& path, Long quality);
    void recordFailure(const std::string& text, int code);

    Files& files_;
    JpegLibrary& library_;
    CurrentError& error_;
    std::string source_;
};

}  // namespace quorrin
