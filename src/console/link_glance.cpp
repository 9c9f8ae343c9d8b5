#include "console/link_glance.h"

#include <algorithm>

#include "base/number_text.h"

namespace quorrin {

namespace {

// A link is up with the frame that comes after the ten that do not count.
constexpr int kWarmupFrames = 11;
constexpr int kSilentTicksAllowed = 200;
constexpr int kSilenceShownFrom = 10;  // ticks: one second
constexpr int kSilenceBadFrom = 100;   // ticks: ten seconds
constexpr double kTicksPerSecond = 10;
constexpr int kStartTicks = 40;

std::string of(int number, int all) {
    return std::to_string(number) + " of " + std::to_string(all);
}

Glance warmingUp(int frames) {
    return {"starting", "frame " + of(frames, kWarmupFrames), Tone::busy,
            static_cast<double>(frames) / kWarmupFrames};
}

Glance linkThatIsUp(int silentTicks) {
    if (silentTicks < kSilenceShownFrom) return {"up", "", Tone::good};
    const std::string silence = "silent " + formatFixed(silentTicks / kTicksPerSecond, 1) + " s of " +
                                formatFixed(kSilentTicksAllowed / kTicksPerSecond, 0) + " s";
    const Tone tone = silentTicks < kSilenceBadFrom ? Tone::warning : Tone::bad;
    return {"silent", silence, tone, std::min(1.0, static_cast<double>(silentTicks) / kSilentTicksAllowed)};
}

Glance idle(const PublicValues& values) {
    const int step = values.startStep.value();
    if (!values.requestWander && !values.requestJoy)
        return {"IDLE",
                step == 0 ? "The robot sits." : "The start waits at tick " + of(step, kStartTicks) + ".",
                Tone::off};
    const std::string count = "tick " + of(step, kStartTicks);
    return {"IDLE",
            values.motLinkUp || step == 0 ? "starting: " + count : "waiting for the motion link: " + count,
            Tone::busy, std::min(1.0, static_cast<double>(step) / kStartTicks)};
}

}  // namespace

bool recovering(const ModeValues& mode, const MainFormValues& form) {
    return !mode.tickEnabled && mode.autoStartPending && form.resetMOTTI;
}

Glance modeGlance(const PublicValues& values, const frmGUI& gui) {
    if (recovering(values, gui)) return {"comm wrong", "The gateways are being started again.", Tone::bad};
    if (!values.tickEnabled)
        return values.autoStartPending ? Glance{"no session", "Waiting for the multimedia link.", Tone::busy}
                                       : Glance{"no session", "The session is suspended.", Tone::off};
    switch (values.robotMode.value()) {
        case kModeIdle:
            return idle(values);
        case kModeWondering:
            return {"wondering", "The robot drives by itself.", Tone::good};
        case kModeJoy:
            return {"JOY", "The robot follows its operator.", Tone::good};
        default:
            return {"starting", "", Tone::busy};
    }
}

Glance motionLinkGlance(const PublicValues& values, const frmGUI& gui) {
    if (values.motLinkUp) return linkThatIsUp(values.motSilentTicks.value());
    if (values.motWarmupCount > 0) return warmingUp(values.motWarmupCount.value());
    if (recovering(values, gui)) return {"lost", "The gateway was closed.", Tone::bad};
    // The motion gateway runs from the first tick of the start sequence until the robot is idle again.
    const bool started = values.tickEnabled && (values.robotMode != kModeIdle || values.startStep > 0);
    if (started) return {"waiting", "frame " + of(0, kWarmupFrames), Tone::busy, 0};
    return {"closed", "The gateway is closed.", Tone::off};
}

Glance multimediaLinkGlance(const PublicValues& values, const frmGUI& gui) {
    if (values.tiLinkUp) {
        Glance up = linkThatIsUp(values.tiSilentTicks.value());
        // The capture's own place may be folded in.
        if (up.tone == Tone::good && !gui.lblCaptureNote.caption().empty())
            up = {up.word, "capture stopped", Tone::warning};
        return up;
    }
    if (values.tiWarmupCount > 0) return warmingUp(values.tiWarmupCount.value());
    if (recovering(values, gui))
        return {"lost", "Waiting for the gateway: frame " + of(0, kWarmupFrames), Tone::bad, 0};
    return {"waiting", "frame " + of(0, kWarmupFrames), Tone::busy, 0};
}

}  // namespace quorrin
