#include "robot/direct_link.h"

#include <algorithm>
#include <utility>

#include "robot/eyes/robot_camera.h"

namespace quorrin {

namespace {

constexpr std::int64_t kTickMs = kMotionFrameMs;
constexpr std::int64_t kConnectMs = 150;  // a gateway program's start and its connection
constexpr std::int64_t kPictureMs = 66;   // a camera with about 15 pictures a second
constexpr int kSoundBytes = 1600;         // 100 ms of 16-bit samples, 8000 a second

constexpr const char* kMotionProgram = "QuorrinGatewaymot";
constexpr const char* kMultimediaProgram = "QuorrinGatewayTI";
constexpr const char* kMotionTitle = "Quorrin Gateway_MotionControl";
constexpr const char* kMultimediaTitle = "Quorrin Gateway_Multimedia";

std::string fileName(const std::string& path) {
    return path.substr(path.find_last_of("/\\") + 1);
}

}  // namespace

// What both link instances share: operations of the other link do nothing.
class DirectLink::Instance : public QuorrinSDK {
  public:
    Instance(DirectLink& owner, RobotLink link) : owner_(owner), link_(link) {}

    void BindGateway(const std::string&) override {}
    void SetDriveControlMode(Integer, Integer) override {}
    void SetDriveVelocities(const SixValues&) override {}
    void MoveDrivesTimed(const SixValues&, Integer) override {}
    void MoveServosTimed(const SixValues&, Integer) override {}
    void SuspendDrive(Integer) override {}
    void ShowLcdBitmap(const std::string&) override {}
    void SelectLandmarks(Integer, Integer, Integer, Integer) override {}
    void WritePowerByte(Integer) override {}
    void RequestImage() override {}
    void SaveFrameToFile(const std::string&) override {}
    void PlaySoundFile(const std::string&) override {}
    void StartSoundCapture(Integer) override {}
    void StopSoundCapture() override {}
    void StopSoundPlayback() override {}

    // The event comes to the station as something that the outside world did.
    void deliver(LinkEvent& event, std::function<void()> setProperties) {
        owner_.clock_.arrive(
            [this, &event, set = std::move(setProperties)] {
                if (!owner_.connected(link_)) return;  // its gateway has gone meanwhile
                set();
                event.raise();
            },
            &event.source);
    }

  protected:
    // The robot as it is now, when the operation can reach it; null otherwise.
    SimulatedRobot* robot() {
        if (!owner_.connected(link_)) return nullptr;
        owner_.catchUp();
        return &owner_.robot_;
    }

    DirectLink& owner_;
    RobotLink link_;
};

class DirectLink::Motion : public DirectLink::Instance {
  public:
    explicit Motion(DirectLink& owner) : Instance(owner, RobotLink::mot) {}

    void SetDriveControlMode(Integer channel, Integer mode) override {
        if (auto* it = robot()) it->setDriveControlMode(channel, mode);
    }
    void SetDriveVelocities(const SixValues& values) override {
        if (auto* it = robot()) it->setDriveVelocities(values[0], values[1]);
    }
    void MoveDrivesTimed(const SixValues& values, Integer durationMs) override {
        if (auto* it = robot()) it->moveDrivesTimed(values[0], values[1], durationMs);
    }
    void MoveServosTimed(const SixValues& values, Integer durationMs) override {
        std::array<int, 6> goals{};
        for (std::size_t i = 0; i < goals.size(); ++i) goals[i] = values[i];
        if (auto* it = robot()) it->moveServosTimed(goals, durationMs);
    }
    void SuspendDrive(Integer channel) override {
        if (auto* it = robot()) it->suspendDrive(channel);
    }
    void ShowLcdBitmap(const std::string& path) override {
        auto* it = robot();
        if (it == nullptr) return;
        if (const auto file = owner_.files_.read(path)) it->showLcd(*file);
    }

    void takeRanges(const RangeReadings& r) {
        deliver(SensorFrame, [this, r] {
            IrAdc0 = r.irAdc[0];
            IrAdcHead = r.irAdc[kIrHead];
            IrAdcDisplay = r.irAdc[kIrDisplay];
            for (std::size_t i = 0; i < kSonars; ++i) sonarCm[i] = r.sonarCm[i];
            HumanAdc1 = r.humanAdc[0];
            HumanAdc2 = r.humanAdc[1];
        });
        deliver(IrFrame, [this, r] {
            IrAdc1 = r.irAdc[1];
            IrAdc2 = r.irAdc[2];
            IrAdc3 = r.irAdc[3];
            IrAdc4 = r.irAdc[4];
            IrAdc5 = r.irAdc[5];
            IrAdc6 = r.irAdc[6];
        });
    }
    void takeMotors(const MotorReadings& r) {
        // The station divides by the speed plus 1, so no gateway passes -1.
        const auto passed = [](int speed) { return speed == -1 ? -2 : speed; };
        deliver(MotorFrame, [this, r, passed] {
            EncoderPositionLeft = r.encoder[0];
            EncoderPositionRight = r.encoder[1];
            EncoderSpeedLeft = passed(r.speed[0]);
            EncoderSpeedRight = passed(r.speed[1]);
            DriveCurrentLeft = r.currentAdc[0];
            DriveCurrentRight = r.currentAdc[1];
        });
    }
};

class DirectLink::Multimedia : public DirectLink::Instance {
  public:
    explicit Multimedia(DirectLink& owner)
        : Instance(owner, RobotLink::ti), camera_(owner.clock_, [this] { takePictureNow(); }) {
        camera_.setPeriodic(false);
        camera_.setInterval(kPictureMs);
    }

    void WritePowerByte(Integer value) override {
        if (auto* it = robot()) it->writePowerByte(value);
    }
    void RequestImage() override {
        if (robot() != nullptr) camera_.setEnabled(true);
    }
    void SaveFrameToFile(const std::string& path) override {
        if (view_.frame > 0) owner_.files_.writeVolatile(path, bitmapFile(eyes_.takePicture(view_)));
    }
    void PlaySoundFile(const std::string& path) override {
        auto* it = robot();
        if (it == nullptr) return;
        const std::string ending = "EOF";
        const bool last = path.size() > ending.size() &&
                          path.compare(path.size() - ending.size(), ending.size(), ending) == 0;
        const std::string real = last ? path.substr(0, path.size() - ending.size()) : path;
        if (const auto file = owner_.files_.read(real)) it->playSound(fileName(real), *file);
    }
    void StartSoundCapture(Integer) override { listening_ = robot() != nullptr; }
    void StopSoundCapture() override { listening_ = false; }

    void takePower(const PowerReadings& r) {
        deliver(PowerFrame, [this, r] {
            PowerRefAdc = r.refAdc;
            Battery1Adc = r.batteryAdc[0];
            Battery2Adc = r.batteryAdc[1];
            DcInAdc = r.dcInAdc;
            Battery1TempAdc = r.temperatureAdc[0];
            Battery2TempAdc = r.temperatureAdc[1];
            ChargerStatusByte = r.chargerStatus;
            ChargerFlagsByte = r.chargerFlags;
        });
    }
    void takeSound() {
        if (!listening_ || owner_.robot_.silent(link_)) return;
        soundHandle_ = soundHandle_ % 1'000'000 + 1;
        deliver(SoundFrame, [this, handle = soundHandle_] {
            SoundBufferAddress = handle;
            SoundBufferLength = kSoundBytes;
        });
    }
    void gone() {
        camera_.setEnabled(false);
        listening_ = false;
    }

  private:
    void takePictureNow() {
        owner_.catchUp();
        if (owner_.robot_.silent(link_)) return;
        view_ = owner_.robot_.view(view_.frame + 1);
        deliver(ImageFrame, [] {});
    }

    RobotCamera eyes_{owner_.robot_.site()};
    CameraView view_;  // of the last frame, drawn when it is saved; number 0: none yet
    TimerMM camera_;
    int soundHandle_ = 0;
    bool listening_ = false;
};

DirectLink::DirectLink(Clock& clock, SimulatedRobot& robot, Files& files)
    : clock_(clock),
      robot_(robot),
      files_(files),
      startMs_(clock.nowMs() - robot.nowMs()),
      motion_(std::make_unique<Motion>(*this)),
      multimedia_(std::make_unique<Multimedia>(*this)),
      timer_(clock, [this] { tick(); }) {
    robot_.onRanges = [this](const RangeReadings& r) {
        if (connected(RobotLink::mot)) motion_->takeRanges(r);
    };
    robot_.onMotors = [this](const MotorReadings& r) {
        if (connected(RobotLink::mot)) motion_->takeMotors(r);
    };
    robot_.onPower = [this](const PowerReadings& r) {
        if (connected(RobotLink::ti)) multimedia_->takePower(r);
    };
    robot_.onDrop = [this](RobotLink link) { disconnect(link); };
    timer_.setInterval(kTickMs);
    timer_.setEnabled(true);
}

DirectLink::~DirectLink() {
    robot_.onRanges = nullptr;
    robot_.onMotors = nullptr;
    robot_.onPower = nullptr;
    robot_.onDrop = nullptr;
}

QuorrinSDK& DirectLink::myRobot() {
    return *motion_;
}

QuorrinSDK& DirectLink::robotTI() {
    return *multimedia_;
}

bool DirectLink::connected(RobotLink link) const {
    return gateways_.at(static_cast<std::size_t>(link)).connected;
}

void DirectLink::gatewayStarted(RobotLink link) {
    Gateway& it = gateway(link);
    if (it.running) return;  // the second one sees the first and ends
    it.running = true;
    it.connectAtMs = clock_.nowMs() + kConnectMs;
}

void DirectLink::gatewayClosed(RobotLink link) {
    catchUp();
    disconnect(link);
    gateway(link).running = false;
}

void DirectLink::programStarted(const std::string& program) {
    const std::string name = fileName(program);
    if (name.rfind(kMotionProgram, 0) == 0) gatewayStarted(RobotLink::mot);
    if (name.rfind(kMultimediaProgram, 0) == 0) gatewayStarted(RobotLink::ti);
}

void DirectLink::windowClosed(const std::string& title) {
    if (title == kMotionTitle) gatewayClosed(RobotLink::mot);
    if (title == kMultimediaTitle) gatewayClosed(RobotLink::ti);
}

void DirectLink::disconnect(RobotLink link) {
    Gateway& it = gateway(link);
    it.connectAtMs = clock_.nowMs() + kConnectMs;
    if (!it.connected) return;
    it.connected = false;
    if (link == RobotLink::mot)
        robot_.motionPeerGone();
    else
        multimedia_->gone();
}

void DirectLink::connectWhatIsDue() {
    for (const RobotLink link : {RobotLink::mot, RobotLink::ti}) {
        Gateway& it = gateway(link);
        if (!it.running || it.connected || clock_.nowMs() < it.connectAtMs || robot_.refused(link)) continue;
        it.connected = true;
        if (link == RobotLink::mot) robot_.motionPeerCame();
    }
}

void DirectLink::catchUp() {
    const std::int64_t now = clock_.nowMs() - startMs_;
    // A gateway speaks all the time, also while the station's thread is held up.
    while (robot_.nowMs() + kRobotStepMs <= now) {
        if (connected(RobotLink::mot)) robot_.motionPeerHeard();
        robot_.advanceTo(std::min(now, robot_.nowMs() + kTickMs));
    }
}

void DirectLink::tick() {
    catchUp();
    connectWhatIsDue();
    if (connected(RobotLink::ti)) multimedia_->takeSound();
}

}  // namespace quorrin
