// A link that prints every operation as a replay does, and passes operations and frames through to another
// one.
#pragma once

#include "replay/scripted_link.h"

namespace quorrin {

class PrintingLink : public ScriptedLink {
  public:
    PrintingLink(QuorrinSDK& inner, LinkName name, Output& output, Files& files,
                 const std::string& applicationFolder = "/app")
        : ScriptedLink(name, output, files, applicationFolder), inner_(inner) {
        for (const FrameKind& kind : frameKinds()) {
            if (kind.link != name) continue;
            (inner.*kind.event).handler = [this, &kind] {
                static_cast<LinkProperties&>(*this) = inner_;
                (this->*kind.event).raise();
            };
        }
    }

    void BindGateway(const std::string& name) override {
        ScriptedLink::BindGateway(name);
        inner_.BindGateway(name);
    }
    void SetDriveControlMode(Integer channel, Integer mode) override {
        ScriptedLink::SetDriveControlMode(channel, mode);
        inner_.SetDriveControlMode(channel, mode);
    }
    void SetDriveVelocities(const SixValues& v) override {
        ScriptedLink::SetDriveVelocities(v);
        inner_.SetDriveVelocities(v);
    }
    void MoveDrivesTimed(const SixValues& v, Integer ms) override {
        ScriptedLink::MoveDrivesTimed(v, ms);
        inner_.MoveDrivesTimed(v, ms);
    }
    void MoveServosTimed(const SixValues& v, Integer ms) override {
        ScriptedLink::MoveServosTimed(v, ms);
        inner_.MoveServosTimed(v, ms);
    }
    void SuspendDrive(Integer channel) override {
        ScriptedLink::SuspendDrive(channel);
        inner_.SuspendDrive(channel);
    }
    void ShowLcdBitmap(const std::string& path) override {
        ScriptedLink::ShowLcdBitmap(path);
        inner_.ShowLcdBitmap(path);
    }
    void WritePowerByte(Integer value) override {
        ScriptedLink::WritePowerByte(value);
        inner_.WritePowerByte(value);
    }

  private:
    QuorrinSDK& inner_;
};

}  // namespace quorrin
