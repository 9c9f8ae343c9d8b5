// Growing files in a MemoryFiles; a full disk refuses them as it does any other write.
#pragma once

#include <string>

#include "platform/append_file.h"
#include "platform/virtual/memory_files.h"

namespace quorrin {

class MemoryAppendFile : public AppendFile {
  public:
    MemoryAppendFile(MemoryFiles& files, std::string path) : files_(files), path_(std::move(path)) {}

    bool append(std::string_view bytes) override { return files_.append(path_, bytes); }

  private:
    MemoryFiles& files_;
    std::string path_;
};

inline CreateAppendFile createInMemory(MemoryFiles& files) {
    return [&files](const std::string& path) -> std::unique_ptr<AppendFile> {
        if (!files.writeWhole(path, "")) return nullptr;
        return std::make_unique<MemoryAppendFile>(files, path);
    };
}

}  // namespace quorrin
