// What a person at the client has before them: the connections to one station, the driver of its robot, and
// the joystick. A window binds to it and to client_face.h, and decides nothing.
//
// Another station means connections and a driver of their own: the robot of the one before is let go and its
// connections are closed. Where that cannot be said to the station any more, nothing is.
//
// Letting go may take a second (drive_sender.h). While the desk is leaving() a station for that, nothing
// drives: a command would call it off.
//
// Clock, calls and joysticks must outlive it. One thread; deeds come in turn, as events of the clock. Errors:
// none.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "client/remote_driver.h"
#include "client/remote_link.h"
#include "client/stick_watch.h"

namespace quorrin {

class ClientDesk {
  public:
    // How long the last words may take to go out.
    static constexpr std::int64_t kEndMs = kCallLingerMs + 500;

    // Connected to nothing yet.
    ClientDesk(Clock& clock, Calls& calls, Joysticks& joysticks, const std::string& host);
    ClientDesk(const ClientDesk&) = delete;
    ClientDesk& operator=(const ClientDesk&) = delete;

    const RemoteLink& link() const { return session_->link; }
    const RemoteDriver& driver() const { return session_->driver; }
    const StickWatch& stick() const { return stick_; }

    // Blanks around the host do not count; nothing happens for an empty one.
    void connect(const std::string& host);
    // Lets the robot go, then closes all six.
    void disconnect();
    // Connected, or trying to be, and not about to end that.
    bool started() const { return link().started() && !leaving_; }
    bool leaving() const { return leaving_; }
    bool canDrive() const { return driver().connected() && !leaving_; }

    // What keys, sliders and buttons do.
    void drive(const std::function<void(RemoteDriver&)>& deed);
    // The focus was lost: neutral.
    void standStill() {
        drive([](RemoteDriver& driver) { driver.standStill(); });
    }
    // Lets go and closes; `ended` is called once, when the last words are out or had their time.
    void end(std::function<void()> ended);

    // Anything may look different now.
    std::function<void()> onChange;
    // What is held down counts for nothing from now on: the stick was lost, or the station was left.
    std::function<void()> onKeysForgotten;

  private:
    struct Session {
        Session(Clock& clock, Calls& calls, const std::string& host)
            : link(clock, calls, host), driver(clock, link) {}
        RemoteLink link;
        RemoteDriver driver;
    };

    void open(const std::string& host);
    // Lets go, closes, and then.
    void leave(std::function<void()> then);
    void goOnLeaving();
    void changed() const;
    void forgetKeys() const;
    void lookForTheEnd();

    Clock& clock_;
    Calls& calls_;
    std::unique_ptr<Session> session_;
    StickWatch stick_;
    bool leaving_ = false;
    TimerMM leave_;
    std::function<void()> afterwards_;
    TimerMM end_;
    std::int64_t endAtMs_ = 0;
    std::function<void()> ended_;
};

// Without blanks around it; "" for nothing but blanks.
std::string hostIn(const std::string& typed);

}  // namespace quorrin
