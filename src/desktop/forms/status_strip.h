// The strip that tells at a glance how the robot is: mode, who holds it, remote client, links, batteries,
// drives. Shows glances as they come, keeps nothing.
#pragma once

#include <QWidget>

#include "console/glance.h"
#include "desktop/tiles/glance_tile.h"

namespace quorrin {

class StatusStrip : public QWidget {
  public:
    explicit StatusStrip(QWidget* parent = nullptr);

    // `modePicture` as the mode key has it: 1 "wondering", 2 "IDLE", 3 "JOY".
    void show(const DashboardGlances& glances, int modePicture);
    using QWidget::show;

  private:
    GlanceTile* mode_;
    GlanceTile* holder_;
    GlanceTile* remote_;
    GlanceTile* motionLink_;
    GlanceTile* multimediaLink_;
    GlanceTile* battery1_;
    GlanceTile* battery2_;
    GlanceTile* leftDrive_;
    GlanceTile* rightDrive_;
};

// The picture of a mode by the mode key's number.
IconName modePicture(int number);

}  // namespace quorrin
