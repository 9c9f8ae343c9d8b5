// Counts every use of the heap in this test program, to show that no tick needs it in the steady state: a
// tick that allocates can be held up by whatever else the program does with the heap.
#include <gtest/gtest.h>

#include <cstdlib>
#include <new>
#include <random>

#include "navigation/anti_stuck.h"
#include "navigation/gps.h"
#include "navigation/sensor_map_builder.h"
#include "navigation/teleoperation.h"
#include "support/navigation_station.h"
#include "support/silent_link.h"

namespace {
std::size_t allocations = 0;
}

// The compiler cannot see that these replacements belong together.
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"
#endif
void* operator new(std::size_t size) {
    ++allocations;
    if (void* const memory = std::malloc(size == 0 ? 1 : size)) return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace quorrin {
namespace {

TEST(TickAllocation, TheCounterSeesTheHeap) {
    const std::size_t before = allocations;
    const auto text = std::make_unique<std::string>(100, 'x');
    EXPECT_GE(allocations, before + 2);
}

TEST(SilentLinkFake, CountsWheelCommandsAndNothingElse) {
    SilentLink link;
    link.SetDriveVelocities({});
    link.SuspendDrive(0);
    link.SetDriveVelocities({});
    EXPECT_EQ(link.velocityCommands(), 2);
}

class SteadyTicks : public ::testing::Test, protected NavigationStation {
  protected:
    SteadyTicks() {
        values.encoderDataValid = true;
        values.useWanderInput = true;
        values.antiStuckEnabled = true;
        driver.targetDistance = 1.0;
        gps.run();
        map.run();
        antiStuck.run();
        driver.run();
        driver.continue_();
    }
    // Whatever the sensors can see in a cluttered room.
    void newReadings() {
        std::uniform_real_distribution<double> near(0.1, 0.9);
        std::uniform_real_distribution<double> far(0.2, 2.5);
        for (double& range : values.irRange) range = near(random);
        for (double& range : values.sonarRange) range = far(random);
        values.encoderLeft = static_cast<int>(random() % 30000);
        values.motorCurrentLeft = static_cast<double>(random() % 3);
    }
    std::size_t allocationsOf(int ticks) {
        const std::size_t before = allocations;
        for (int i = 0; i < ticks; ++i) {
            newReadings();
            gps.EstTimer_Timer(50);
            map.RunTimer_Timer(100);
            antiStuck.chkTimer_Timer(200);
            driver.ConTimer_Timer(100);
            navigator.RunTimer_Timer(100);
        }
        return allocations - before;
    }
    std::mt19937 random{1};
    SilentLink silent;
    GPS gps{clock, values, values};
    SensorMapBuilder map{clock, values, values, values, controls};
    AntiStuck antiStuck{clock, values, values, silent};
    Teleoperation driver{clock, values, controls, silent};
    speedP2PVFH navigator{clock, values, controls, silent};
};

TEST_F(SteadyTicks, NeedNoHeap) {
    navigator.TargetX = 1;
    navigator.TargetForwardspeed = 0.2;
    navigator.forgetable = true;
    navigator.targettime = 1e3;
    navigator.maxTurnspeed = 0.7;
    navigator.run();
    allocationsOf(20);
    EXPECT_EQ(allocationsOf(5000), 0U);
    EXPECT_GT(silent.velocityCommands(), 100);
}

TEST_F(SteadyTicks, EveryOutcomeOfTheSearchNeedsNoHeap) {
    navigator.TargetX = 1;
    navigator.run();
    values.vfhActive = true;
    navigator.RunTimer_Timer(100);
    const std::size_t before = allocations;
    for (int blocked = 0; blocked < 4096; ++blocked) {
        for (std::size_t i = 0; i < 12; ++i)
            values.binaryHistogram[13 + i] = static_cast<std::int16_t>((blocked >> i) & 1);
        navigator.RunTimer_Timer(100);
    }
    values.binaryHistogram.fill(1);
    navigator.RunTimer_Timer(100);
    EXPECT_EQ(allocations, before);
    EXPECT_EQ(navigator.CAStatus, "stuck");
}

}  // namespace
}  // namespace quorrin
