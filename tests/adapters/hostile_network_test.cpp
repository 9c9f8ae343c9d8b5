// A whole station on real sockets, and a network that means it no good: callers that say nothing, hundreds
// that come and break off, connections that break inside any handler.
#include <gmock/gmock.h>

#include <atomic>
#include <thread>

#include "base/program_error.h"
#include "platform/paced_clock.h"
#include "platform/qt/qt_clock.h"
#include "platform/qt/qt_sockets.h"
#include "platform/virtual/memory_files.h"
#include "platform/virtual/scripted_boxes.h"
#include "platform/virtual/scripted_programs.h"
#include "remote/channels.h"
#include "remote/frame_codec.h"
#include "session/station.h"
#include "support/fake_link.h"
#include "support/fake_wave_player.h"
#include "support/plain_client.h"
#include "support/real_wait.h"

namespace quorrin {
namespace {

constexpr int kRingMs = 907;
constexpr int kTickMs = 100;
// What a busy machine may add, in its own time; the session's time knows nothing of that.
constexpr int kMachineMs = 3000;

struct HostileNetwork : testing::Test {
    HostileNetwork()
        : station({time,
                   files,
                   programs,
                   boxes,
                   myRobot,
                   robotTI,
                   Folders{"/app", "/windows", "/voice", "/programs"},
                   [] { throw ProgramEnd{}; },
                   {},
                   nullptr,
                   &sockets,
                   &wave}),
          gui(station.gui) {
        files.createFolder("/app");
        files.createFolder("/windows");
        files.put("/app/Quorrinsdk.ini",
                  "[servo1]\ninit=2100\n[servo2]\ninit=2000\n[servo3]\ninit=2650\n"
                  "[servo5]\ninit=3500\n[servo6]\ninit=2000\n");
        time.begin();
        bool loaded = false;
        time.post([this, &loaded] {
            station.startAtMainForm();
            loaded = true;
        });
        EXPECT_TRUE(waitForReal([&] { return loaded; }));
        tick.setInterval(kTickMs);
        tick.setEnabled(true);
        wave.onPlay = [this] {
            ++rings;
            mostRings = std::max(mostRings, ++ringsSinceTick);
        };
    }
    void ticked() {
        if (ticks++ > 0) {
            longestGap = std::max(longestGap, time.nowMs() - lastTick);
            longestRealGap = std::max(longestRealGap, clock.nowMs() - lastRealTick);
        }
        lastTick = time.nowMs();
        lastRealTick = clock.nowMs();
        ringsSinceTick = 0;
    }
    // Connected, and on the command channel also taken by the station.
    bool calls(PlainClient& client, const Channel& channel) {
        if (!client.connect(channel.port)) return false;
        return channel.port != kCommandChannel.port || waitForReal([&] { return listed(client.port()); });
    }
    bool listed(int port) const {
        const std::string part = "[" + std::to_string(port) + "]";
        for (std::size_t i = 0; i < gui.ConnectionList.count(); ++i) {
            if (gui.ConnectionList.line(i).find(part) != std::string::npos) return true;
        }
        return false;
    }
    // The session falls to silence with the next look of the supervision.
    void dropBySilence() {
        gui.connCheckTicks = 100;
        ASSERT_TRUE(waitForReal([&] { return gui.connCheckTicks == 0; }));
    }
    void expectTheNextClientIsServed() {
        PlainClient command;
        ASSERT_TRUE(calls(command, kCommandChannel));
        PlainClient sensor;
        ASSERT_TRUE(calls(sensor, kSensorChannel));
        command.send(frameOf("PING"));
        // Nothing tells a client that it has been taken but a report.
        int number = 0;
        TimerMM change(time, [&] { gui.txtRobotCurrX.setText("served" + std::to_string(++number)); });
        change.setInterval(50);
        change.setEnabled(true);
        std::string heard;
        EXPECT_TRUE(waitForReal([&] {
            heard += sensor.received();
            return heard.find("served") != std::string::npos;
        }));
        EXPECT_TRUE(station.values.remoteCommandsSeen);
    }

    QtClock clock;
    PacedClock time{clock};
    MemoryFiles files;
    ScriptedPrograms programs;
    ScriptedBoxes boxes;
    FakeLink myRobot;
    FakeLink robotTI;
    QtSockets sockets{time};
    FakeWavePlayer wave;
    Station station;
    frmGUI& gui;
    int rings = 0;
    int ringsSinceTick = 0;
    int mostRings = 0;
    int ticks = 0;
    std::int64_t lastTick = 0;
    std::int64_t lastRealTick = 0;
    std::int64_t longestGap = 0;
    std::int64_t longestRealGap = 0;
    TimerMM tick{time, [this] { ticked(); }};
};

TEST_F(HostileNetwork, FiveHundredCallsThatBreakOffHoldTheTimersUpByOneRingAtMost) {
    std::atomic<bool> over = false;
    std::atomic<int> made = 0;
    std::thread flood([&over, &made] {
        for (int i = 0; i < 500; ++i) {
            // Each call on 7060 that is taken rings.
            const Channel& channel =
                i % 60 == 0 ? kCommandChannel : kChannels[1 + static_cast<std::size_t>(i % 5)];
            PlainClient client;
            made += client.connect(channel.port) ? 1 : 0;
            client.reset();
        }
        over = true;
    });
    EXPECT_TRUE(waitForReal([&] { return over.load(); }, 60'000));
    flood.join();
    EXPECT_EQ(made, 500);
    // Who calls last has all of them before him: there is no room left on the side channels.
    std::vector<PlainClient> last(kChannels.size());
    for (std::size_t i = 0; i < last.size(); ++i) ASSERT_TRUE(last[i].connect(kChannels[i].port));
    for (std::size_t i = 1; i < last.size(); ++i)
        EXPECT_TRUE(waitForReal([&] { return last[i].ended(); })) << kChannels[i].name;
    EXPECT_TRUE(waitForReal([&] { return listed(last[0].port()); }));
    EXPECT_EQ(rings, 10);
    EXPECT_EQ(mostRings, 1) << "two calls rang without the timers between them";
    EXPECT_LE(longestGap, kTickMs + kRingMs);
    EXPECT_LT(longestRealGap, kTickMs + kRingMs + kMachineMs);
    dropBySilence();
    expectTheNextClientIsServed();
}

TEST_F(HostileNetwork, ConnectionsThatNeverSendAreDroppedAndTheirPlacesServeOthers) {
    std::vector<PlainClient> silent(2 + 5 * 33);
    ASSERT_TRUE(calls(silent[0], kCommandChannel));
    ASSERT_TRUE(calls(silent[1], kCommandChannel));
    ticks = 0;
    longestGap = 0;
    longestRealGap = 0;
    std::size_t next = 2;
    for (std::size_t channel = 1; channel < kChannels.size(); ++channel) {
        for (int i = 0; i < 33; ++i) ASSERT_TRUE(silent[next++].connect(kChannels[channel].port));
    }
    const auto ended = [&silent] {
        return std::count_if(silent.begin(), silent.end(), [](PlainClient& one) { return one.ended(); });
    };
    // One too many on each of the five.
    EXPECT_TRUE(waitForReal([&] { return ended() == 5; }));
    EXPECT_LE(longestGap, kTickMs);
    EXPECT_LT(longestRealGap, kTickMs + kMachineMs);
    dropBySilence();
    EXPECT_TRUE(waitForReal([&] { return ended() == static_cast<std::ptrdiff_t>(silent.size()); }));
    expectTheNextClientIsServed();
}

TEST_F(HostileNetwork, ACallerThatBreaksOffWhileItsCallRingsIsABrokenElement) {
    PlainClient client;
    const auto ring = wave.onPlay;
    wave.onPlay = [&] {
        ring();
        client.reset();
    };
    ASSERT_TRUE(client.connect(kCommandChannel.port));
    ASSERT_TRUE(waitForReal([&] { return rings == 1 && gui.imgStatus.number() == 1; }));
    // Its line stays until the session is dropped.
    EXPECT_EQ(gui.ConnectionList.count(), 1U);
    wave.onPlay = ring;
    dropBySilence();
    EXPECT_EQ(gui.ConnectionList.count(), 0U);
    expectTheNextClientIsServed();
}

TEST_F(HostileNetwork, ACallerThatBreaksOffInsideItsOwnCommandIsABrokenElement) {
    PlainClient client;
    ASSERT_TRUE(calls(client, kCommandChannel));
    gui.txtMouthUD.onChange = [&client] { client.reset(); };
    client.send(frameOf("0,10000,10000,2000,2000,2650,1,1") + frameOf("0,10000,10000,2000,2000,2651,1,2"));
    // Both were one read.
    ASSERT_TRUE(waitForReal([&] { return station.values.mouthCmd == 2651; }));
    gui.txtMouthUD.onChange = nullptr;
    EXPECT_EQ(gui.ConnectionList.count(), 1U);
    dropBySilence();
    expectTheNextClientIsServed();
}

TEST_F(HostileNetwork, AClientThatBreaksOffBeforeItsReportGoesOutCostsTheOthersNothing) {
    PlainClient broken;
    ASSERT_TRUE(calls(broken, kCommandChannel));
    PlainClient brokenSensor;
    ASSERT_TRUE(calls(brokenSensor, kSensorChannel));
    ASSERT_TRUE(waitForReal([&] { return gui.sensorClientConnected; }));
    bool changed = false;
    time.post([&] {
        station.values.remoteCommandsSeen = true;
        brokenSensor.reset();
        gui.txtRobotCurrY.setText("1");
        gui.txtRobotCurrY.setText("2");
        changed = true;
    });
    ASSERT_TRUE(waitForReal([&] { return changed && !gui.sensorClientConnected; }));
    broken.reset();
    dropBySilence();
    expectTheNextClientIsServed();
}

}  // namespace
}  // namespace quorrin
