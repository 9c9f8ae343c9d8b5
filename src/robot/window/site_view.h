// The simulated robot's window: the site from above, the robot and what its sensors see, boxes and people.
//
// Only looks; nothing of the robot can be changed here. The owner calls refresh() when time has gone on. The
// floor plan is drawn once for each size. Closing the window runs onClosed.
#pragma once

#include <QImage>
#include <QWidget>
#include <deque>
#include <functional>

#include "robot/plan_picture.h"
#include "robot/simulated_robot.h"

class QPainter;

namespace quorrin {

class SiteView : public QWidget {
  public:
    explicit SiteView(const SimulatedRobot& robot);

    void refresh();
    std::function<void()> onClosed;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void drawTrail(QPainter& painter, const PlanFrame& frame) const;
    void drawRays(QPainter& painter, const PlanFrame& frame) const;
    void drawThings(QPainter& painter, const PlanFrame& frame) const;
    void drawRobot(QPainter& painter, const PlanFrame& frame) const;
    void drawWords(QPainter& painter) const;

    const SimulatedRobot& robot_;
    QImage plan_;
    std::deque<Vec2> trail_;
};

}  // namespace quorrin
