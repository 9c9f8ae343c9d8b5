// What `ShadowLabel`, the caption control with a soft shadow, draws: an exact list of texts, colours and
// places.
//
// It neither draws nor measures; a view hands over the measured size of the text and carries the list out,
// from first to last. Units are logical pixels. The shadow is the same text as two rings around a point and a
// core, down and to the right of the text, the outer ring palest; the text stands on top. No input, no
// events.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "base/colour_mix.h"
#include "console/button_face.h"
#include "console/property_bag.h"

namespace quorrin {

// Values of a label's `Alignment`; any other number counts as left.
constexpr std::int32_t kAlignLeft = 0;
constexpr std::int32_t kAlignRight = 1;
constexpr std::int32_t kAlignCentre = 2;

// How far the shadow reaches right of and below the text.
constexpr int kShadowReach = 3;

// The percentages of the way from the shadow's colour to the background's; outer ring, inner ring, core.
constexpr int kOuterTone = 84;
constexpr int kInnerTone = 66;
constexpr int kCoreTone = 42;
// How far the text of a disabled label is on its way to the background.
constexpr int kDisabledTone = 35;

struct ShadowLabelProperties {
    std::string caption;
    std::int32_t alignment = kAlignLeft;
    bool autosize = false;
    Colour foreColor = kButtonText;
    Colour backColor = kButtonFace;
    Colour shadowColor = kButtonShadow;
    bool wordWrap = true;
    FontChoice font;
    bool enabled = true;
};

// A caption that is not stored is the control's name.
ShadowLabelProperties readShadowLabel(const PropertyBag& bag, const std::string& controlName);
void writeShadowLabel(PropertyBag& bag, const ShadowLabelProperties& properties,
                      const std::string& controlName);

// One text: the whole caption in this colour, in this rectangle.
struct TextDraw {
    Colour colour = 0;
    SliceRect rectangle;
    bool operator==(const TextDraw&) const = default;
};

struct LabelDrawing {
    // With autosize: the size that the control takes before anything is drawn; else the size that it has.
    FaceSize control;
    // Clearing shows what the control stands on, or fills it with `ground`. A background that is left at the
    // system's button face is what the control stands on.
    bool filled = false;
    Colour ground = 0;
    std::vector<TextDraw> draws;
    // How each text stands in its rectangle; a line that is not wrapped is cut at the control's edge.
    std::int32_t alignment = kAlignLeft;
    bool wordWrap = true;
};

// `measured`: the size of the caption, given the width that it may take (0: as much as it wants).
using MeasureText = std::function<FaceSize(int width)>;

LabelDrawing labelDrawing(const ShadowLabelProperties& properties, FaceSize control,
                          const MeasureText& measured, const SystemColours& colours);

// The size of a label around a text of that size.
FaceSize labelSize(FaceSize text);

}  // namespace quorrin
