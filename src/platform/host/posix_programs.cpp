#include "platform/host/posix_programs.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "platform/host/lock_window.h"

namespace quorrin {

namespace {

// In the grandchild, between fork and exec: only calls that are safe there.
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

void PosixPrograms::start(const std::string& path) {
    const pid_t child = ::fork();
    if (child == 0) {
        // A second fork leaves the program to init, so that nobody has to collect it.
        if (::fork() == 0) becomeProgram(path.c_str());
        ::_exit(0);
    }
    if (child > 0) ::waitpid(child, nullptr, 0);
}

Programs::Window PosixPrograms::findWindow(const std::string& title) {
    const Window window = windowHolder(runFolder_, title);
    if (window != 0) titles_[window] = title;
    return window;
}

bool PosixPrograms::isWindow(Window window) {
    const auto title = titles_.find(window);
    return title != titles_.end() && windowHolder(runFolder_, title->second) == window;
}

void PosixPrograms::postClose(Window window) {
    if (isWindow(window)) ::kill(static_cast<pid_t>(window), SIGTERM);
}

}  // namespace quorrin
