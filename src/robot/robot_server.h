// The simulated robot on the network: its two doors, its time, and what goes in and out as packets.
//
// The robot runs by the clock from the moment at which the server is made. A time during which this program
// itself was held up does not count as the gateway's silence. A request for a picture is answered by the
// camera, or by what stands in for it, no faster than its rate; a buffer of microphone sound comes every 100
// ms between start and stop. Clock, streams and robot must outlive it.
#pragma once

#include <functional>
#include <string>

#include "robot/eyes/robot_camera.h"
#include "robot/picture_requests.h"
#include "robot/robot_door.h"
#include "robot/simulated_robot.h"

namespace quorrin {

struct CameraSetup {
    CameraSize size;
    double rate = 15;                        // pictures a second, at most
    std::function<CameraPicture()> standIn;  // null: what the robot sees
};

class RobotServer {
  public:
    RobotServer(Clock& clock, Streams& streams, SimulatedRobot& robot,
                std::function<void(const std::string&)> log, CameraSetup camera = {});
    ~RobotServer();
    RobotServer(const RobotServer&) = delete;
    RobotServer& operator=(const RobotServer&) = delete;

    // Listens on `port` (motion) and the next one (multimedia); empty, or why it cannot.
    std::string listen(const std::string& address, int port);
    void close(const std::string& reason);

  private:
    void tick();
    void motionOperation(const wire::Packet& packet);
    void multimediaOperation(const wire::Packet& packet);
    void sendRanges(const RangeReadings& readings);
    void sendMotors(const MotorReadings& readings);
    void sendPower(const PowerReadings& readings);
    bool sendPicture();
    void sendSound();

    Clock& clock_;
    Streams& streams_;
    SimulatedRobot& robot_;
    std::int64_t startMs_;
    Noise microphone_{4711};
    RobotDoor motion_;
    RobotDoor multimedia_;
    RobotCamera eyes_;
    std::function<CameraPicture()> standIn_;
    std::uint32_t frames_ = 0;
    PictureRequests pictures_;
    TimerMM timer_;
    TimerMM sound_;
};

}  // namespace quorrin
