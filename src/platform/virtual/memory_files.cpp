#include "platform/virtual/memory_files.h"

namespace quorrin {

namespace {

std::string withoutSlash(std::string path) {
    while (path.size() > 1 && path.back() == '/') path.pop_back();
    return path;
}

std::string folderOf(const std::string& path) {
    const auto slash = path.find_last_of('/');
    if (slash == std::string::npos) return "";
    return slash == 0 ? "/" : path.substr(0, slash);
}

}  // namespace

bool MemoryFiles::folderExists(const std::string& path) {
    const std::string folder = withoutSlash(path);
    return folder == "/" || folders_.count(folder) != 0;
}

std::optional<std::string> MemoryFiles::read(const std::string& path) {
    const auto found = files_.find(path);
    if (found == files_.end()) return std::nullopt;
    return found->second;
}

bool MemoryFiles::writeWhole(const std::string& path, const std::string& content) {
    return writeVolatile(path, content);
}

bool MemoryFiles::writeVolatile(const std::string& path, std::string_view content) {
    if (!mayChange(folderOf(path)) || !folderExists(folderOf(path)) || folderExists(path)) return false;
    files_[path] = content;
    if (const auto old = stamps_.find(path); old != stamps_.end())
        old->second = {kFreshStamps.accessNs, kFreshStamps.writeNs, old->second.mode};
    return true;
}

bool MemoryFiles::remove(const std::string& path) {
    if (readOnly_.count(folderOf(path)) != 0) return false;
    stamps_.erase(path);
    return files_.erase(path) != 0;
}

std::optional<FileStamps> MemoryFiles::stampsOf(const std::string& path) {
    if (!fileExists(path)) return std::nullopt;
    const auto found = stamps_.find(path);
    return found == stamps_.end() ? kFreshStamps : found->second;
}

bool MemoryFiles::putBackStamps(const std::string& path, const FileStamps& stamps) {
    if (!fileExists(path)) return false;
    stamps_[path] = stamps;
    return true;
}

bool MemoryFiles::createFolder(const std::string& path) {
    const std::string folder = withoutSlash(path);
    if (!folderExists(folder) && !mayChange(folderOf(folder))) return false;
    makeFolders(folder);
    return true;
}

bool MemoryFiles::copy(const std::string& from, const std::string& to) {
    const auto content = read(from);
    return content && writeWhole(to, *content);
}

std::vector<std::string> MemoryFiles::filesIn(const std::string& folder) {
    std::vector<std::string> names;
    const std::string place = withoutSlash(folder);
    for (const auto& [path, content] : files_) {
        if (folderOf(path) == place) names.push_back(path.substr(path.find_last_of('/') + 1));
    }
    return names;
}

void MemoryFiles::put(const std::string& path, const std::string& content) {
    makeFolders(folderOf(path));
    files_[path] = content;
}

bool MemoryFiles::append(const std::string& path, std::string_view bytes) {
    const auto found = files_.find(path);
    if (full_ || found == files_.end()) return false;
    found->second += bytes;
    return true;
}

void MemoryFiles::makeFolders(const std::string& path) {
    for (std::string folder = path; folder.size() > 1; folder = folderOf(folder)) folders_.insert(folder);
}

}  // namespace quorrin
