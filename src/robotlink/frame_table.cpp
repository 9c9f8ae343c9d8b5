#include "robotlink/frame_table.h"

namespace quorrin {

namespace {

using P = LinkProperties;
constexpr LinkName kMot = LinkName::myRobot;
constexpr LinkName kTi = LinkName::robotTI;

constexpr std::array<FrameKind, kFrameKinds> kKinds{{
    {"SensorFrame", kMot, &LinkEvents::SensorFrame},
    {"MotorFrame", kMot, &LinkEvents::MotorFrame},
    {"IrFrame", kMot, &LinkEvents::IrFrame},
    {"PowerFrame", kTi, &LinkEvents::PowerFrame},
    {"ImageFrame", kTi, &LinkEvents::ImageFrame},
    {"SoundFrame", kTi, &LinkEvents::SoundFrame},
}};

constexpr std::array<FrameProperty, kFrameProperties> kProperties{{
    {"IrAdc0", kMot, &P::IrAdc0},
    {"IrAdcDisplay", kMot, &P::IrAdcDisplay},
    {"IrAdcHead", kMot, &P::IrAdcHead},
    {"SonarCm", kMot, nullptr},
    {"HumanAdc1", kMot, &P::HumanAdc1},
    {"HumanAdc2", kMot, &P::HumanAdc2},
    {"IrAdc1", kMot, &P::IrAdc1},
    {"IrAdc2", kMot, &P::IrAdc2},
    {"IrAdc3", kMot, &P::IrAdc3},
    {"IrAdc4", kMot, &P::IrAdc4},
    {"IrAdc5", kMot, &P::IrAdc5},
    {"IrAdc6", kMot, &P::IrAdc6},
    {"EncoderPositionLeft", kMot, &P::EncoderPositionLeft},
    {"EncoderPositionRight", kMot, &P::EncoderPositionRight},
    {"EncoderSpeedLeft", kMot, &P::EncoderSpeedLeft},
    {"EncoderSpeedRight", kMot, &P::EncoderSpeedRight},
    {"DriveCurrentLeft", kMot, &P::DriveCurrentLeft},
    {"DriveCurrentRight", kMot, &P::DriveCurrentRight},
    {"PowerRefAdc", kTi, &P::PowerRefAdc},
    {"Battery1Adc", kTi, &P::Battery1Adc},
    {"Battery2Adc", kTi, &P::Battery2Adc},
    {"DcInAdc", kTi, &P::DcInAdc},
    {"Battery1TempAdc", kTi, &P::Battery1TempAdc},
    {"Battery2TempAdc", kTi, &P::Battery2TempAdc},
    {"ChargerStatusByte", kTi, &P::ChargerStatusByte},
    {"ChargerFlagsByte", kTi, &P::ChargerFlagsByte},
}};

}  // namespace

const char* linkText(LinkName link) {
    return link == LinkName::myRobot ? "myRobot" : "robotTI";
}

const std::array<FrameKind, kFrameKinds>& frameKinds() {
    return kKinds;
}

const std::array<FrameProperty, kFrameProperties>& frameProperties() {
    return kProperties;
}

int findFrameKind(std::string_view name) {
    for (int i = 0; i < kFrameKinds; ++i) {
        if (name == kKinds[static_cast<std::size_t>(i)].name) return i;
    }
    return -1;
}

int findFrameProperty(std::string_view name, int hint) {
    for (int tried = 0, i = hint; tried < kFrameProperties; ++tried, ++i) {
        if (i >= kFrameProperties) i = 0;
        if (name == kProperties[static_cast<std::size_t>(i)].name) return i;
    }
    return -1;
}

}  // namespace quorrin
