#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <string>
#include <thread>

namespace leafund {
namespace {

using namespace std::chrono_literals;

// The program without a screen, started in surroundings that are short of something.
class ShortageTest : public testing::Test {
 protected:
  ~ShortageTest() override {
    if (process_ <= 0) return;
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
  }

  void start(const std::function<void()>& prepare) {
    process_ = fork();
    if (process_ != 0) return;
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    prepare();
    execl(LEAFUND_PROGRAM, "leafund", nullptr);
    _exit(127);
  }

  // Whether it comes to rest: it waits for events, as only an open window does, and goes on to.
  bool rests() const {
    for (int quiet = 0, i = 0; i < 200; ++i) {
      std::this_thread::sleep_for(50ms);
      if (waitpid(process_, nullptr, WNOHANG) != 0) return false;
      quiet = isWaiting() ? quiet + 1 : 0;
      if (quiet == 20) return true;
    }
    return false;
  }

 private:
  bool isWaiting() const {
    char state = 0;
    const std::string path = "/proc/" + std::to_string(process_) + "/stat";
    if (FILE* file = fopen(path.c_str(), "r")) {
      if (fscanf(file, "%*d %*s %c", &state) != 1) state = 0;
      fclose(file);
    }
    return state == 'S';
  }

  pid_t process_ = 0;
};

void limit(decltype(RLIMIT_AS) which, rlim_t most) {
  const rlimit lowered{most, most};
  setrlimit(which, &lowered);
}

TEST_F(ShortageTest, AFullDiskBehindTheStandardStreamsStopsNothing) {
  start([] {
    const int full = open("/dev/full", O_WRONLY);
    dup2(full, STDOUT_FILENO);
    dup2(full, STDERR_FILENO);
  });
  EXPECT_TRUE(rests());
}

TEST_F(ShortageTest, ClosedStandardStreamsStopNothing) {
  start([] {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) close(stream);
  });
  EXPECT_TRUE(rests());
}

TEST_F(ShortageTest, TheWindowOpensWithThirtyTwoDescriptors) {
  start([] { limit(RLIMIT_NOFILE, 32); });
  EXPECT_TRUE(rests());
}

TEST_F(ShortageTest, TheWindowOpensIn400MegabytesOfAddresses) {
#if defined(__SANITIZE_ADDRESS__)
  GTEST_SKIP() << "the sanitizer alone takes terabytes of addresses";
#endif
  start([] { limit(RLIMIT_AS, rlim_t{400} << 20U); });
  EXPECT_TRUE(rests());
}

}  // namespace
}  // namespace leafund
