// Stands in for libFuzzer where there is none: gives a fuzz target every file of a folder, whole and cut
// short at up to kCuts places. So what a fuzzer has once found stays found.
//
// usage: seeds_NAME FOLDER. Status 1 when the folder holds nothing; a target that finds something ends the
// program, and the last line says with which file.
#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

constexpr std::size_t kCuts = 64;

using Bytes = std::vector<std::uint8_t>;

Bytes read(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void give(const Bytes& seed) {
    const std::size_t step = std::max<std::size_t>(1, seed.size() / kCuts);
    for (std::size_t length = 0; length < seed.size(); length += step) {
        // Of that size and no larger, so that a sanitizer sees a read beyond its end.
        const Bytes cut(seed.begin(), seed.begin() + static_cast<std::ptrdiff_t>(length));
        LLVMFuzzerTestOneInput(cut.data(), cut.size());
    }
    LLVMFuzzerTestOneInput(seed.data(), seed.size());
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: " << argv[0] << " FOLDER" << std::endl;
        return 1;
    }
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(argv[1])) paths.push_back(entry.path());
    std::sort(paths.begin(), paths.end());
    for (const auto& path : paths) {
        std::cout << path.filename().string() << std::endl;
        give(read(path));
    }
    return paths.empty() ? 1 : 0;
}
