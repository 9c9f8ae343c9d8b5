#include "platform/host/posix_programs.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <ctime>

#include "platform/host/lock_window.h"

namespace quorrin {

namespace {

constexpr int kLooks = 200;
constexpr timespec kPause{0, 5'000'000};
constexpr std::int64_t kHungMs = 1000;

std::int64_t steadyMs() {
    timespec now{};
    ::clock_gettime(CLOCK_MONOTONIC, &now);
    return std::int64_t{now.tv_sec} * 1000 + now.tv_nsec / 1'000'000;
}

// In the child, between fork and exec: only calls that are safe there.
[[noreturn]] void becomeProgram(const char* path) {
    ::setsid();
    sigset_t none;
    ::sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE, SIGCHLD}) std::signal(signal, SIG_DFL);
    const int nothing = ::open("/dev/null", O_RDWR);
    for (const int standard : {0, 1, 2}) ::dup2(nothing, standard);
    ::close_range(3, ~0U, 0);
    ::execl(path, path, static_cast<char*>(nullptr));
    ::_exit(127);
}

}  // namespace

PosixPrograms::~PosixPrograms() {
    collect();
    for (int i = 0; i < kLooks && closing(); ++i) {
        ::nanosleep(&kPause, nullptr);
        collect();
    }
}

void PosixPrograms::start(const std::string& path) {
    killHung();
    collect();
    const pid_t child = ::fork();
    if (child == 0) becomeProgram(path.c_str());
    if (child > 0) started_.push_back(child);
}

void PosixPrograms::killHung() {
    for (auto asked = asked_.begin(); asked != asked_.end();) {
        const auto [window, askedMs] = *asked;
        const bool shown = isWindow(window);
        if (shown && steadyMs() - askedMs < kHungMs) {
            ++asked;
            continue;
        }
        if (shown) ::kill(static_cast<pid_t>(window), SIGKILL);
        for (int i = 0; i < kLooks && isWindow(window); ++i) ::nanosleep(&kPause, nullptr);
        asked = asked_.erase(asked);
    }
}

void PosixPrograms::collect() {
    started_.erase(std::remove_if(started_.begin(), started_.end(),
                                  [](pid_t child) { return ::waitpid(child, nullptr, WNOHANG) != 0; }),
                   started_.end());
}

bool PosixPrograms::closing() const {
    return std::any_of(started_.begin(), started_.end(),
                       [this](pid_t started) { return asked_.count(started) != 0; });
}

Programs::Window PosixPrograms::findWindow(const std::string& title) {
    collect();
    const Window window = windowHolder(runFolder_, title);
    if (window != 0) titles_[window] = title;
    return window;
}

bool PosixPrograms::isWindow(Window window) {
    const auto title = titles_.find(window);
    return title != titles_.end() && windowHolder(runFolder_, title->second) == window;
}

void PosixPrograms::postClose(Window window) {
    if (!isWindow(window)) return;
    asked_.emplace(window, steadyMs());
    ::kill(static_cast<pid_t>(window), SIGTERM);
}

}  // namespace quorrin
