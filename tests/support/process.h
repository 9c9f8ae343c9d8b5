// A real program that a test started: its folders, its output, its end. Everything has a deadline.
//
// The program gets data, config, cache and state folders under the test's own folder and no other setting;
// its output goes to a file there. What still runs at the end of the test is killed, by its number.
#pragma once

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <optional>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

namespace quorrin {

inline std::string fileText(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

// Looks every 10 ms; false when the deadline has passed.
inline bool eventually(const std::function<bool()>& condition, double deadline_s) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(deadline_s);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return true;
}

class Process {
  public:
    struct Settings {
        std::string folder;     // holds d, c, k, s (the four XDG folders) and the output
        bool diskFull = false;  // no file may grow
    };

    Process(const std::vector<std::string>& command, const Settings& settings, const std::string& outputName)
        : output_(settings.folder + "/" + outputName) {
        pid_ = ::fork();
        if (pid_ != 0) return;
        for (const auto& [name, sub] : {std::pair{"XDG_DATA_HOME", "/d"}, std::pair{"XDG_CONFIG_HOME", "/c"},
                                        std::pair{"XDG_CACHE_HOME", "/k"}, std::pair{"XDG_STATE_HOME", "/s"}})
            ::setenv(name, (settings.folder + sub).c_str(), 1);
        int pipeEnds[2];
        if (settings.diskFull && ::pipe(pipeEnds) == 0) {
            // The output is no file of the program's own: it goes on through a pipe that `cat` writes down.
            if (::fork() == 0) {
                ::dup2(pipeEnds[0], 0);
                redirect(1);
                ::close(pipeEnds[0]);
                ::close(pipeEnds[1]);
                ::execlp("cat", "cat", static_cast<char*>(nullptr));
                ::_exit(127);
            }
            ::dup2(pipeEnds[1], 1);
            ::dup2(pipeEnds[1], 2);
            ::close(pipeEnds[0]);
            ::close(pipeEnds[1]);
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit none{0, 0};
            ::setrlimit(RLIMIT_FSIZE, &none);
        } else {
            redirect(1);
            redirect(2);
        }
        ::close(0);
        ::open("/dev/null", O_RDONLY);
        std::vector<char*> words;
        for (const std::string& word : command) words.push_back(const_cast<char*>(word.c_str()));
        words.push_back(nullptr);
        ::execvp(words[0], words.data());
        ::_exit(127);
    }
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;
    ~Process() {
        if (!status_) {
            ::kill(pid_, SIGKILL);
            ::waitpid(pid_, nullptr, 0);
        }
    }

    std::string output() const { return fileText(output_); }
    bool says(const std::string& text, double deadline_s) const {
        return eventually([&] { return output().find(text) != std::string::npos; }, deadline_s);
    }
    void signal(int number) const { ::kill(pid_, number); }
    // The exit status (minus the signal's number when one ended it); nothing when it does not end in time.
    std::optional<int> ends(double deadline_s) {
        eventually([this] { return collected(); }, deadline_s);
        return status_;
    }
    bool running() { return !collected(); }

  private:
    void redirect(int descriptor) const {
        const int file = ::open(output_.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
        ::dup2(file, descriptor);
        ::close(file);
    }
    bool collected() {
        int status = 0;
        if (!status_ && ::waitpid(pid_, &status, WNOHANG) == pid_)
            status_ = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
        return status_.has_value();
    }

    std::string output_;
    pid_t pid_ = 0;
    std::optional<int> status_;
};

}  // namespace quorrin
