#include "console/shadow_label_model.h"

#include <algorithm>
#include <array>

namespace quorrin {

namespace {

struct Move {
    int right = 0;
    int down = 0;
};

// What the rectangle does before each draw; the first draw of all stands where it is.
constexpr std::array<Move, 7> kOuterRing = {{{0, 0}, {-1, 0}, {-1, 0}, {-1, 0}, {3, -1}, {0, -1}, {0, -1}}};
constexpr std::array<Move, 5> kInnerRing = {{{-1, 2}, {-1, 0}, {-1, 0}, {2, -1}, {0, -1}}};
constexpr std::array<Move, 3> kCore = {{{-1, 1}, {-1, 0}, {1, -1}}};
constexpr std::array<Move, 1> kText = {{{-1, 0}}};

template <std::size_t count>
void add(std::vector<TextDraw>& draws, SliceRect& rectangle, const std::array<Move, count>& moves,
         Colour colour) {
    for (const Move& move : moves) {
        rectangle.left += move.right;
        rectangle.top += move.down;
        draws.push_back({colour, rectangle});
    }
}

// The width that a wrapped text may take; unwrapped it takes what it wants.
int widthOfText(const ShadowLabelProperties& properties, FaceSize control) {
    return properties.wordWrap ? std::max(0, control.width - kShadowReach) : 0;
}

std::vector<TextDraw> draws(const ShadowLabelProperties& properties, FaceSize control,
                            const SystemColours& colours) {
    const Colour back = plainColour(properties.backColor, colours);
    const Colour shadow = plainColour(properties.shadowColor, colours);
    const Colour fore = plainColour(properties.foreColor, colours);
    std::vector<TextDraw> all;
    // The shadow's far corner; sixteen steps later the text stands in the control's own corner.
    SliceRect rectangle{kShadowReach, kShadowReach, std::max(0, control.width - kShadowReach),
                        std::max(0, control.height - kShadowReach)};
    add(all, rectangle, kOuterRing, mixedColour(shadow, back, kOuterTone));
    add(all, rectangle, kInnerRing, mixedColour(shadow, back, kInnerTone));
    add(all, rectangle, kCore, mixedColour(shadow, back, kCoreTone));
    add(all, rectangle, kText, properties.enabled ? fore : mixedColour(fore, back, kDisabledTone));
    return all;
}

// The names of the stored form; the one list for reading and writing.
template <typename Properties, typename Each>
void eachProperty(Properties& properties, const std::string& controlName, Each each) {
    const ShadowLabelProperties fresh;
    each("Caption", properties.caption, controlName);
    each("Alignment", properties.alignment, fresh.alignment);
    each("Autosize", properties.autosize, fresh.autosize);
    each("ForeColor", properties.foreColor, fresh.foreColor);
    each("BackColor", properties.backColor, fresh.backColor);
    each("ShadowColor", properties.shadowColor, fresh.shadowColor);
    each("WordWrap", properties.wordWrap, fresh.wordWrap);
    each("Font", properties.font, fresh.font);
    each("Enabled", properties.enabled, fresh.enabled);
}

}  // namespace

ShadowLabelProperties readShadowLabel(const PropertyBag& bag, const std::string& controlName) {
    ShadowLabelProperties properties;
    eachProperty(properties, controlName, FromBag{bag});
    return properties;
}

void writeShadowLabel(PropertyBag& bag, const ShadowLabelProperties& properties,
                      const std::string& controlName) {
    eachProperty(properties, controlName, IntoBag{bag});
}

FaceSize labelSize(FaceSize text) {
    return {text.width + kShadowReach, text.height + kShadowReach};
}

LabelDrawing labelDrawing(const ShadowLabelProperties& properties, FaceSize control,
                          const MeasureText& measured, const SystemColours& colours) {
    LabelDrawing drawing;
    const bool empty = properties.caption.empty();
    if (properties.autosize) {
        control = labelSize(empty ? FaceSize{} : measured(widthOfText(properties, control)));
    }
    drawing.control = control;
    drawing.filled = properties.backColor != kButtonFace;
    drawing.ground = plainColour(properties.backColor, colours);
    drawing.alignment = properties.alignment;
    drawing.wordWrap = properties.wordWrap;
    if (!empty) drawing.draws = draws(properties, control, colours);
    return drawing;
}

}  // namespace quorrin
