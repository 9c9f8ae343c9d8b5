#include "robot/stand_in_pictures.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <utility>

#include "robot/site_error.h"

namespace quorrin {

namespace {

bool isPictureName(std::string name) {
    std::transform(name.begin(), name.end(), name.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    const auto endsWith = [&](const std::string& ending) {
        return name.size() > ending.size() &&
               name.compare(name.size() - ending.size(), ending.size(), ending) == 0;
    };
    return endsWith(".bmp") || endsWith(".jpg") || endsWith(".jpeg");
}

// The mean of the source's pixels that lie under one of the target's; at least one of them.
std::array<char, 3> meanOf(const CameraPicture& from, int left, int right, int top, int bottom) {
    std::array<int, 3> sum{};
    int count = 0;
    for (int y = top; y < std::max(bottom, top + 1); ++y) {
        for (int x = left; x < std::max(right, left + 1); ++x, ++count) {
            const std::size_t at = 3 * (static_cast<std::size_t>(y) * static_cast<std::size_t>(from.width) +
                                        static_cast<std::size_t>(x));
            for (std::size_t i = 0; i < 3; ++i) sum[i] += static_cast<std::uint8_t>(from.pixels[at + i]);
        }
    }
    std::array<char, 3> mean{};
    for (std::size_t i = 0; i < 3; ++i) mean[i] = static_cast<char>((sum[i] + count / 2) / count);
    return mean;
}

// `index` of `parts` of a side.
int partOf(int side, int index, int parts) {
    return static_cast<int>(static_cast<std::int64_t>(side) * index / parts);
}

}  // namespace

CameraPicture fittedPicture(const CameraPicture& picture, CameraSize size) {
    if (CameraSize{picture.width, picture.height} == size) return picture;
    const bool wide = static_cast<std::int64_t>(picture.width) * size.height >=
                      static_cast<std::int64_t>(picture.height) * size.width;
    const int width = wide ? size.width : std::max(1, partOf(size.height, picture.width, picture.height));
    const int height = wide ? std::max(1, partOf(size.width, picture.height, picture.width)) : size.height;
    CameraPicture result{size.width, size.height, {}};
    result.pixels.assign(3 * static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height),
                         '\0');
    const int left = (size.width - width) / 2;
    const int top = (size.height - height) / 2;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const std::array<char, 3> pixel =
                meanOf(picture, partOf(picture.width, x, width), partOf(picture.width, x + 1, width),
                       partOf(picture.height, y, height), partOf(picture.height, y + 1, height));
            const std::size_t at =
                3 * (static_cast<std::size_t>(top + y) * static_cast<std::size_t>(size.width) +
                     static_cast<std::size_t>(left + x));
            std::copy(pixel.begin(), pixel.end(), result.pixels.begin() + static_cast<std::ptrdiff_t>(at));
        }
    }
    return result;
}

StandInPictures::StandInPictures(Files& files, PictureReader read, const std::string& fileOrFolder,
                                 CameraSize size, std::function<void(const std::string&)> log)
    : read_(std::move(read)), size_(size), log_(std::move(log)) {
    if (files.folderExists(fileOrFolder)) {
        const std::string folder = fileOrFolder.back() == '/' ? fileOrFolder : fileOrFolder + "/";
        for (const std::string& name : files.filesIn(fileOrFolder))
            if (isPictureName(name)) paths_.push_back(folder + name);
        if (paths_.empty()) throw SiteError("no .bmp, .jpg or .jpeg file in the folder " + fileOrFolder);
    } else {
        paths_.push_back(fileOrFolder);
    }
    if (!load()) throw SiteError("no picture for the camera in " + fileOrFolder);
}

bool StandInPictures::load() {
    while (!paths_.empty()) {
        at_ %= paths_.size();
        std::string fault;
        const CameraPicture read = read_(paths_[at_], fault);
        if (read.width > 0) {
            shown_ = fittedPicture(read, size_);
            fresh_ = true;
            return true;
        }
        log_("camera: " + paths_[at_] + ": " + fault);
        paths_.erase(paths_.begin() + static_cast<std::ptrdiff_t>(at_));
    }
    return false;
}

const CameraPicture& StandInPictures::next() {
    if (!fresh_ && paths_.size() > 1) {
        ++at_;
        load();  // with none left the last one stays
    }
    fresh_ = false;
    return shown_;
}

}  // namespace quorrin
