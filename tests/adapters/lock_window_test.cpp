#include "platform/host/lock_window.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <functional>
#include <stdexcept>
#include <string>

#include "platform/host/posix_files.h"
#include "platform/host/posix_programs.h"
#include "support/real_wait.h"
#include "support/temp_folder.h"

namespace quorrin {
namespace {

const std::string kTitle = "Quorrin Gateway_MotionControl";

// Another process that does something, says so, and waits for a signal.
class Other {
  public:
    explicit Other(
        const std::function<void()>& first, const std::function<void()>& onHangUp = [] {}) {
        int ready[2];
        if (::pipe(ready) != 0) throw std::runtime_error("no pipe");
        process_ = ::fork();
        if (process_ == 0) {
            sigset_t waited;
            ::sigemptyset(&waited);
            ::sigaddset(&waited, SIGHUP);
            ::sigprocmask(SIG_BLOCK, &waited, nullptr);
            first();
            say(ready[1]);
            for (;;) {
                int signal = 0;
                ::sigwait(&waited, &signal);
                onHangUp();
                say(ready[1]);
            }
        }
        ::close(ready[1]);
        ready_ = ready[0];
        listen();
    }
    ~Other() {
        kill();
        ::close(ready_);
    }
    void hangUp() {
        ::kill(process_, SIGHUP);
        listen();
    }
    void kill() {
        if (process_ <= 0) return;
        ::kill(process_, SIGKILL);
        collect();
    }
    // How it ended.
    int collect() {
        int status = 0;
        ::waitpid(process_, &status, 0);
        process_ = 0;
        return status;
    }
    pid_t process() const { return process_; }

  private:
    static void say(int pipe) {
        if (::write(pipe, "x", 1) != 1) ::_exit(1);
    }
    void listen() const {
        char byte = 0;
        if (::read(ready_, &byte, 1) != 1) throw std::runtime_error("the other process ended");
    }
    pid_t process_ = 0;
    int ready_ = -1;
};

class LockWindowTest : public ::testing::Test {
  protected:
    TempFolder folder;
    LockWindow window{folder.path(), kTitle};
    PosixPrograms programs{folder.path()};
    LockWindow theirs{folder.path(), kTitle};
};

TEST_F(LockWindowTest, IsTakenByTheFirstAndFoundByItsTitleOnly) {
    EXPECT_EQ(programs.findWindow(kTitle), 0);
    const Other other([&] { theirs.claim(); });
    EXPECT_EQ(programs.findWindow(kTitle), other.process());
    EXPECT_EQ(programs.findWindow("Quorrin Gateway_Multimedia"), 0);
    EXPECT_TRUE(programs.isWindow(other.process()));
}

TEST_F(LockWindowTest, ASecondClaimIsToldThatTheFirstIsAlive) {
    const Other other([&] { theirs.claim(); });
    EXPECT_EQ(window.claim(), WindowClaim::otherAlive);
}

TEST_F(LockWindowTest, AClosingOneIsNoLongerFoundButStillHoldsTheTitle) {
    Other other([&] { theirs.claim(); }, [&] { theirs.hide(); });
    const auto found = programs.findWindow(kTitle);
    other.hangUp();
    EXPECT_EQ(window.claim(), WindowClaim::otherClosing);
    EXPECT_EQ(programs.findWindow(kTitle), 0);
    EXPECT_FALSE(programs.isWindow(found));
}

TEST_F(LockWindowTest, AKilledOneLeavesNothingBehind) {
    Other other([&] { theirs.claim(); });
    const auto found = programs.findWindow(kTitle);
    other.kill();
    EXPECT_FALSE(programs.isWindow(found));
    EXPECT_EQ(window.claim(), WindowClaim::taken);
}

TEST_F(LockWindowTest, AskingItToCloseTerminatesTheHolder) {
    Other other([&] { theirs.claim(); });
    programs.postClose(programs.findWindow(kTitle));
    const int status = other.collect();
    EXPECT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(WTERMSIG(status), SIGTERM);
}

TEST_F(LockWindowTest, NobodyIsAskedToCloseForAWindowThatWasNeverFound) {
    Other other([&] { theirs.claim(); });
    programs.postClose(other.process());
    EXPECT_EQ(programs.findWindow(kTitle), other.process());
    other.hangUp();  // it still answers
}

TEST_F(LockWindowTest, TwoRunFoldersDoNotMeet) {
    const TempFolder elsewhere;
    const Other other([&] { theirs.claim(); });
    PosixPrograms strangers(elsewhere.path());
    EXPECT_EQ(strangers.findWindow(kTitle), 0);
    LockWindow mine(elsewhere.path(), kTitle);
    EXPECT_EQ(mine.claim(), WindowClaim::taken);
}

TEST_F(LockWindowTest, AFolderThatIsNotThereCannotBeClaimed) {
    LockWindow nowhere(folder.path() + "/none", kTitle);
    EXPECT_NE(nowhere.claim(), WindowClaim::taken);
}

TEST_F(LockWindowTest, OneThatHangsASecondAfterItWasAskedToCloseIsKilledByTheNextStart) {
    Other hung([&] {
        std::signal(SIGTERM, SIG_IGN);
        theirs.claim();
    });
    programs.postClose(programs.findWindow(kTitle));
    programs.start("/bin/true");
    EXPECT_EQ(programs.findWindow(kTitle), hung.process()) << "it has its second";
    waitForReal([] { return false; }, 1000);
    programs.start("/bin/true");
    EXPECT_EQ(programs.findWindow(kTitle), 0);
    EXPECT_EQ(WTERMSIG(hung.collect()), SIGKILL);
}

class PosixProgramsTest : public ::testing::Test {
  protected:
    // A program of the test's own; it runs in the folder of the test.
    std::string script(const std::string& text) {
        const std::string path = folder.path() + "/program";
        files.writeWhole(path, "#!/bin/sh\ncd " + folder.path() + "\n" + text);
        ::chmod(path.c_str(), 0700);
        return path;
    }
    bool appears(const std::string& name) {
        return waitForReal([&] { return files.fileExists(folder.path() + "/" + name); });
    }
    TempFolder folder;
    PosixFiles files;
    PosixPrograms programs{folder.path()};
};

TEST_F(PosixProgramsTest, StartsAProgramWithTheSameEnvironmentAndASessionOfItsOwn) {
    ::setenv("QUORRIN_TEST_WORD", "hello", 1);
    programs.start(script("ps -o sid= -p $$ > sid; echo $QUORRIN_TEST_WORD > word; mv word done"));
    ASSERT_TRUE(appears("done"));
    EXPECT_EQ(files.read(folder.path() + "/done"), "hello\n");
    EXPECT_NE(std::stol(files.read(folder.path() + "/sid").value_or("0")), ::getsid(0));
}

TEST_F(PosixProgramsTest, SaysNothingOfAProgramThatCannotBeStarted) {
    programs.start(folder.path() + "/none");
    programs.start(script("echo $$ > pid; mv pid done"));
    EXPECT_TRUE(appears("done"));
}

TEST_F(PosixProgramsTest, WaitsAtItsEndForAProgramThatItAskedToClose) {
    // Holds the title as a gateway does, and takes a while to close.
    const std::string holder =
        "import fcntl, os, signal, time\n"
        "file = open('" +
        folder.path() + "/" + kTitle +
        ".lock', 'w')\n"
        "signal.signal(signal.SIGTERM, lambda *_: (time.sleep(0.2), open('done', 'w'), os._exit(0)))\n"
        "fcntl.lockf(file, fcntl.LOCK_EX, 1, 0)\n"
        "time.sleep(20)\n";
    files.writeWhole(folder.path() + "/holder.py", holder);
    {
        PosixPrograms own(folder.path());
        own.start(script("exec python3 holder.py"));
        ASSERT_TRUE(waitForReal([&] { return own.findWindow(kTitle) != 0; }));
        own.postClose(own.findWindow(kTitle));
    }
    EXPECT_TRUE(files.fileExists(folder.path() + "/done"));
}

TEST_F(PosixProgramsTest, DoesNotWaitForTheProgram) {
    programs.start(script("echo > up; while [ ! -e go ]; do sleep 0.01; done; mv up done"));
    ASSERT_TRUE(appears("up"));
    EXPECT_FALSE(files.fileExists(folder.path() + "/done"));
    ASSERT_TRUE(files.writeWhole(folder.path() + "/go", ""));
    EXPECT_TRUE(appears("done"));
}

}  // namespace
}  // namespace quorrin
