// Fixed numbers that several rooms share. Angles use these literals and no library value: sector boundaries
// depend on them.
#pragma once

namespace quorrin::GeneralConstants {

constexpr double kPi = 3.1415926;
constexpr double kTwoPi = 6.2831852;
constexpr double kHalfPi = 1.5707963;
constexpr double kQuarterPi = 0.78539815;

constexpr double kDriveUnitsPerAmpere = 728;
constexpr double kAdcFullScale = 4095;
constexpr double kReferenceNumerator = 6142.5;  // 1.5 times full scale
constexpr double kPowerDivider = 8;
constexpr double kSmallestStoredIrRange_m = 0.23;
constexpr int kHumanRest = 2048;
constexpr int kHumanDeviation = 500;

constexpr double kWheelRadius_m = 0.075;
constexpr double kWheelBase_m = 0.227;
constexpr double kCountsPerTurn = 1200;
constexpr int kEncoderModulus = 32767;
constexpr int kEncoderJumpLimit = 600;

// Lamp colours, red in the low byte.
constexpr int kGreen = 49152;
constexpr int kRed = 255;
constexpr int kLightGreen = 8454016;

// Window titles of the gateway programs.
constexpr const char* kMotionGatewayTitle = "Quorrin Gateway_MotionControl";
constexpr const char* kMultimediaGatewayTitle = "Quorrin Gateway_Multimedia";

}  // namespace quorrin::GeneralConstants
