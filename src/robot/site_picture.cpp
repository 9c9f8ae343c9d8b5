#include "robot/site_picture.h"

#include <cctype>

#include "robot/site_error.h"

namespace quorrin {

namespace {

constexpr int kLargestSide = 4096;
constexpr std::uint8_t kDarkest = 128;  // below: wall

std::uint32_t littleEndian(const std::string& bytes, std::size_t at, int count) {
    std::uint32_t value = 0;
    for (int i = count - 1; i >= 0; --i)
        value = value << 8 | static_cast<std::uint8_t>(bytes[at + static_cast<std::size_t>(i)]);
    return value;
}

GreyPicture readBitmap(const std::string& bytes, const std::string& name) {
    if (bytes.size() < 54) throw SiteError(name + ": the bitmap is cut off");
    const std::uint32_t start = littleEndian(bytes, 10, 4);
    const auto width = static_cast<std::int32_t>(littleEndian(bytes, 18, 4));
    const auto signedHeight = static_cast<std::int32_t>(littleEndian(bytes, 22, 4));
    const bool topDown = signedHeight < 0;
    const std::int64_t height = topDown ? -static_cast<std::int64_t>(signedHeight) : signedHeight;
    if (littleEndian(bytes, 28, 2) != 24 || littleEndian(bytes, 30, 4) != 0)
        throw SiteError(name + ": only 24-bit bitmaps without compression are read");
    if (width < 1 || width > kLargestSide || height < 1 || height > kLargestSide)
        throw SiteError(name + ": the bitmap's size is out of range");
    const std::size_t stride = (static_cast<std::size_t>(width) * 3 + 3) / 4 * 4;
    if (start > bytes.size() || bytes.size() - start < stride * static_cast<std::size_t>(height))
        throw SiteError(name + ": the bitmap is cut off");

    GreyPicture picture{width, static_cast<int>(height), {}};
    picture.grey.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (std::int64_t y = 0; y < height; ++y) {
        const std::int64_t row = topDown ? y : height - 1 - y;
        for (std::int32_t x = 0; x < width; ++x) {
            const std::size_t at =
                start + static_cast<std::size_t>(row) * stride + static_cast<std::size_t>(x) * 3;
            const std::uint32_t sum =
                littleEndian(bytes, at, 1) + littleEndian(bytes, at + 1, 1) + littleEndian(bytes, at + 2, 1);
            picture.grey.push_back(static_cast<std::uint8_t>(sum / 3));
        }
    }
    return picture;
}

GreyPicture readGreyMap(const std::string& bytes, const std::string& name) {
    std::size_t at = 2;
    const auto nextNumber = [&] {
        while (at < bytes.size() &&
               (std::isspace(static_cast<unsigned char>(bytes[at])) != 0 || bytes[at] == '#')) {
            if (bytes[at] == '#')
                while (at < bytes.size() && bytes[at] != '\n') ++at;
            else
                ++at;
        }
        int value = -1;
        while (at < bytes.size() && std::isdigit(static_cast<unsigned char>(bytes[at])) != 0 &&
               value < 100000) {
            value = (value < 0 ? 0 : value) * 10 + (bytes[at] - '0');
            ++at;
        }
        return value;
    };
    const int width = nextNumber();
    const int height = nextNumber();
    const int largest = nextNumber();
    ++at;  // the one blank behind the head
    if (width < 1 || width > kLargestSide || height < 1 || height > kLargestSide || largest < 1 ||
        largest > 255)
        throw SiteError(name + ": the grey map's head is out of range");
    const std::size_t count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    if (at > bytes.size() || bytes.size() - at < count) throw SiteError(name + ": the grey map is cut off");
    GreyPicture picture{width, height, {}};
    picture.grey.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const int value = static_cast<std::uint8_t>(bytes[at + i]) * 255 / largest;
        picture.grey.push_back(static_cast<std::uint8_t>(value > 255 ? 255 : value));
    }
    return picture;
}

}  // namespace

GreyPicture readGreyPicture(const std::string& bytes, const std::string& name) {
    if (bytes.rfind("BM", 0) == 0) return readBitmap(bytes, name);
    if (bytes.rfind("P5", 0) == 0) return readGreyMap(bytes, name);
    throw SiteError(name + ": neither a bitmap nor a binary grey map");
}

std::vector<Segment> wallsFromPicture(const GreyPicture& picture, double metresPerPixel, Vec2 origin) {
    // What lies outside the picture counts as wall, so that a site drawn up to the edge is closed.
    const auto wall = [&](int x, int y) {
        if (x < 0 || y < 0 || x >= picture.width || y >= picture.height) return true;
        return picture.at(x, y) < kDarkest;
    };
    const auto corner = [&](int x, int y) {
        return Vec2{origin.x + x * metresPerPixel, origin.y + (picture.height - y) * metresPerPixel};
    };
    std::vector<Segment> walls;
    for (int y = 0; y <= picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            if (wall(x, y - 1) == wall(x, y)) continue;
            const int from = x;
            while (x < picture.width && wall(x, y - 1) != wall(x, y)) ++x;
            walls.push_back({corner(from, y), corner(x, y)});
        }
    }
    for (int x = 0; x <= picture.width; ++x) {
        for (int y = 0; y < picture.height; ++y) {
            if (wall(x - 1, y) == wall(x, y)) continue;
            const int from = y;
            while (y < picture.height && wall(x - 1, y) != wall(x, y)) ++y;
            walls.push_back({corner(x, from), corner(x, y)});
        }
    }
    return walls;
}

}  // namespace quorrin
