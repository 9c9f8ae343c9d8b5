// A 24-bit bitmap whose pixels are written directly, with a context through which pictures are copied in and
// out. The camera makes one from a picture, saves it and drops it; the other operations are part of its face.
//
// Over plain memory: hDib() names the bitmap that this object owns, hdc() the context that has it selected,
// DIBSectionBitsPtr() the first byte of its bottom row; all three are null when the object is empty. One
// object holds one bitmap at a time; ClearUp() and the destructor free both.
//
// Nothing here raises an error for a bitmap that cannot be made: Create() is false and the object empty.
// Nothing checks for emptiness either: Width(), Height() and BytesPerScanLine() go on telling the last size
// that was asked for, so callers look at what Create() returned. Copies from and to an empty object copy
// nothing.
#pragma once

#include <cstdint>
#include <memory>

#include "base/checked_int.h"
#include "imaging/device_context.h"
#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/message_box.h"

namespace quorrin {

// The 40-byte header of such a bitmap. The height is positive: rows run from the bottom up.
struct BitmapInfoHeader {
    std::uint32_t size = 40;
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::uint16_t planes = 1;
    std::uint16_t bitCount = 24;
    std::uint32_t compression = 0;
    std::uint32_t sizeImage = 0;  // BytesPerScanLine x height
    std::int32_t xPelsPerMeter = 0;
    std::int32_t yPelsPerMeter = 0;
    std::uint32_t colorsUsed = 0;
    std::uint32_t colorsImportant = 0;
};
static_assert(sizeof(BitmapInfoHeader) == 40);

class cDIBSection {
  public:
    // What two of the operations ask of the host: without a clipboard nothing is copied to it, without boxes
    // nobody is told, without a clock the random pixels are those of midnight.
    struct Host {
        Clock* clock = nullptr;
        MessageBoxes* boxes = nullptr;
        Clipboard* clipboard = nullptr;
    };

    cDIBSection() = default;
    explicit cDIBSection(const Host& host) : host_(host) {}
    cDIBSection(const cDIBSection&) = delete;
    cDIBSection& operator=(const cDIBSection&) = delete;
    ~cDIBSection() { ClearUp(); }

    // As a device-independent bitmap it is refused, with a message box. True when the clipboard took it.
    bool CopyToClipboard(bool asDeviceIndependent);
    // Makes the bitmap, which stays this object's, and tells its handle (null on failure). The context may be
    // null; it only says what the bitmap is meant for. A bitmap that was held before is freed.
    bool CreateDIB(const DeviceContext* context, Long width, Long height, Bitmap*& handle);
    // A copy of the picture; empty where there is none or it cannot be made.
    void CreateFromPicture(Bitmap* picture);
    bool Create(Long width, Long height);
    // Width x 3, rounded up to a multiple of four; ProgramError for a width whose row does not fit.
    Long BytesPerScanLine() const;
    Long Width() const { return header_.width; }
    Long Height() const { return header_.height; }
    // From the source's place to (0, 0) here; a negative width or height means this bitmap's own.
    void LoadPictureBlt(DeviceContext* source, Long sourceX = 0, Long sourceY = 0, Long width = -1,
                        Long height = -1, RasterOperation operation = RasterOperation::sourceCopy);
    // From here to the target's place; a negative width or height means this bitmap's own.
    void PaintPicture(DeviceContext* target, Long targetX = 0, Long targetY = 0, Long width = -1,
                      Long height = -1, Long sourceX = 0, Long sourceY = 0,
                      RasterOperation operation = RasterOperation::sourceCopy);
    DeviceContext* hdc() const { return hdc_.get(); }
    Bitmap* hDib() const { return hDib_.get(); }
    std::uint8_t* DIBSectionBitsPtr() const { return bits_; }
    // Grey: row by row, one value for all three bytes. In colour: column by column, green and red each a
    // value of its own and blue always 0.
    void RandomiseBits(bool gray);
    // Frees both; safe on an empty object.
    void ClearUp();
    // A new one; the height comes first. Null when it cannot be made.
    std::unique_ptr<cDIBSection> Resample(Long newHeight, Long newWidth) const;

    const BitmapInfoHeader& header() const { return header_; }

  private:
    void freeBitmap();

    Host host_;
    BitmapInfoHeader header_;
    std::unique_ptr<DeviceContext> hdc_;
    std::unique_ptr<Bitmap> hDib_;
    Bitmap* oldBitmap_ = nullptr;
    std::uint8_t* bits_ = nullptr;
};

}  // namespace quorrin
