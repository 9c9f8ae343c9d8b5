// What a person at the client has before them: the connections to one station, the driver of its robot, and
// the joystick. A window binds to it and to client_face.h, and decides nothing.
//
// Another station means connections and a driver of their own: the robot of the one before is let go and its
// connections are closed. Where that cannot be said to the station any more, nothing is.
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
    RemoteDriver& driver() { return session_->driver; }
    const RemoteDriver& driver() const { return session_->driver; }
    const StickWatch& stick() const { return stick_; }

    // Blanks around the host do not count; nothing happens for an empty one.
    void connect(const std::string& host);
    // Lets the robot go, then closes all six.
    void disconnect();
    // Connected, or trying to be.
    bool started() const { return link().started(); }

    // The focus was lost: neutral.
    void standStill() { driver().standStill(); }
    // Lets go and closes; `ended` is called once, when the last words are out or had their time.
    void end(std::function<void()> ended);

    // Anything may look different now.
    std::function<void()> onChange;
    // What is held down counts for nothing from now on: the stick was lost, or the station is another one.
    std::function<void()> onKeysForgotten;

  private:
    struct Session {
        Session(Clock& clock, Calls& calls, const std::string& host)
            : link(clock, calls, host), driver(clock, link) {}
        RemoteLink link;
        RemoteDriver driver;
    };

    void open(const std::string& host);
    void changed() const;
    void forgetKeys() const;
    void lookForTheEnd();

    Clock& clock_;
    Calls& calls_;
    std::unique_ptr<Session> session_;
    StickWatch stick_;
    TimerMM end_;
    std::int64_t endAtMs_ = 0;
    std::function<void()> ended_;
};

// Without blanks around it; "" for nothing but blanks.
std::string hostIn(const std::string& typed);

}  // namespace quorrin
