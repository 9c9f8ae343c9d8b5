// What the operator and the robot see of a program error, on a real session.
#include <QElapsedTimer>
#include <QMessageBox>
#include <QTimer>

#include "apps/end_in_crash.h"
#include "windows/real_windows.h"

namespace quorrin {
namespace {

constexpr const char* kBothDrive = R"("modeLeft": "velocity", "modeRight": "velocity")";
constexpr const char* kBothHeld = R"("modeLeft": "suspended", "modeRight": "suspended")";

TEST_F(RealWindows, AProgramErrorHoldsTheRobotWhileItsBoxTellsWhatAndWhere) {
    RealStation real;
    ASSERT_TRUE(real.claim());
    real.firstStart();
    RealSession session(real);
    Station& station = session.station;
    const auto hand = [&] {
        if (station.gui.txtRobotStatus.text() != "wondering" || !truthSays(kBothDrive)) return;
        station.gui.tmrHuman.setHandler([] { throw ProgramError("overflow"); });
        station.gui.tmrHuman.setInterval(1);
        station.gui.tmrHuman.setRunning(true);
    };
    std::string what;
    try {
        session.run(hand);
    } catch (const ProgramError& error) {
        what = error.what();
    }
    ASSERT_EQ(what, "overflow");
    const std::string place = real.time.failedIn();
    EXPECT_FALSE(place.empty());

    std::string told;
    bool held = false;
    bool gatewayLived = false;
    QElapsedTimer since;
    since.start();
    QTimer looks;
    QObject::connect(&looks, &QTimer::timeout, [&] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) return;
        told = box->text().toStdString();
        held = truthSays(kBothHeld);
        gatewayLived = windowHolder(real.host.run, "Quorrin Gateway_MotionControl") != 0;
        constexpr int kLongEnoughMs = 10'000;
        if (held || since.elapsed() > kLongEnoughMs) box->accept();
    });
    looks.start(20);
    Terminal terminal;
    EXPECT_EQ(endInCrash(real, terminal, what), kEndedByProgramError);
    EXPECT_EQ(told, programErrorText(place, "overflow"));
    EXPECT_TRUE(held) << lastTruth();
    // It was the station that held the robot, and not the end of its gateway.
    EXPECT_TRUE(gatewayLived);
}

}  // namespace
}  // namespace quorrin
