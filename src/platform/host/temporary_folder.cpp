#include "platform/host/temporary_folder.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <vector>

namespace quorrin {

TemporaryFolder::TemporaryFolder() {
    const char* variable = std::getenv("TMPDIR");
    const std::string place = variable != nullptr && variable[0] == '/' ? variable : "/tmp";
    const std::string pattern = place + "/quorrin-XXXXXX";
    std::vector<char> name(pattern.begin(), pattern.end());
    name.push_back('\0');
    if (::mkdtemp(name.data()) != nullptr) path_ = name.data();
}

TemporaryFolder::~TemporaryFolder() {
    if (path_.empty()) return;
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::string absolutePath(const std::string& path) {
    std::string whole = path;
    if (whole.empty() || whole.front() != '/') {
        char current[4096];
        const char* folder = ::getcwd(current, sizeof current);
        whole = std::string(folder == nullptr ? "" : folder) + "/" + whole;
    }
    while (whole.size() > 1 && whole.back() == '/') whole.pop_back();
    return whole;
}

}  // namespace quorrin
