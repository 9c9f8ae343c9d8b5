// The window of the remote client: binds keys, buttons, sliders and tiles to a desk, and draws what the
// desk's face says. Decides nothing; its texts are those of client_words.h and client_face.h.
//
// What a person does becomes an event of the clock. Losing the focus is a deed too: everything that is held
// down is forgotten and the robot stands. Closing the window ends the desk; `ended` runs once that is done.
//
// Desk and clock must outlive it.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>
#include <array>
#include <functional>

#include "client/client_desk.h"
#include "client/client_face.h"
#include "client/window/drive_card.h"
#include "client/window/head_card.h"
#include "client/window/held_caps.h"
#include "client/window/key_watch.h"
#include "desktop/tiles/glance_tile.h"

namespace quorrin {

class RemoteWindow : public QWidget {
  public:
    RemoteWindow(ClientDesk& desk, Clock& clock, std::function<void()> ended);
    ~RemoteWindow() override;

    // Looks anew at the desk; by itself ten times a second and on each change.
    void refresh();
    // As closing it does.
    void end();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    QWidget* header();
    QWidget* strip();
    QWidget* connections();
    QWidget* footer();
    void bindCards();
    void orderTabs();
    // In turn with everything else that happens.
    void act(std::function<void(ClientDesk&)> deed);
    void drive(std::function<void(RemoteDriver&)> deed);
    void connectOrNot();
    void keysChanged();
    void dropKeys();

    ClientDesk& desk_;
    Clock& clock_;
    std::function<void()> ended_;
    HeldCaps caps_;
    KeyWatch* keys_;
    DriveCard* drive_;
    HeadCard* head_;
    QLineEdit* host_ = nullptr;
    QPushButton* connect_ = nullptr;
    QToolButton* look_ = nullptr;
    QPushButton* mode_ = nullptr;
    QPushButton* release_ = nullptr;
    QLabel* releaseText_ = nullptr;
    std::array<GlanceTile*, 6> tiles_{};  // as ClientTile counts
    std::array<GlanceTile*, kRemoteChannels.size()> channels_{};
    QTimer drawing_;
};

}  // namespace quorrin
