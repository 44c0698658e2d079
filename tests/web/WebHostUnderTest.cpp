#include "platform/web/Bridge.h"
#include "platform/web/WebHost.h"
#include "tests/contract/HostUnderTest.h"

namespace leafund {

namespace page {
// Answered by tests/web/suite.html. The first two suspend the program while the page goes on.
LEAFUND_FROM_PAGE(pass) void pass();
LEAFUND_FROM_PAGE(lay)
void lay(const char* path, std::size_t size, const char* body, std::size_t bodySize, int status);
LEAFUND_FROM_PAGE(milliseconds) double milliseconds();
// The address of the page's server, which the caller frees.
LEAFUND_FROM_PAGE(server) char* server();
}  // namespace page

namespace {

constexpr double kPatience = 20'000;  // milliseconds

std::string serverAddress() {
  char* address = page::server();
  std::string text(address);
  std::free(address);
  return text;
}

// The real page, and the network of the loopback address.
class WebHostUnderTest final : public HostUnderTest {
 public:
  Host& host() override { return WebHost::shared(); }
  void start(UIApplication& application) override {
    WebHost::shared().setSize({390, 844});
    WebHost::shared().run(application);
  }
  bool runUntil(const std::function<bool()>& done) override {
    for (const double end = page::milliseconds() + kPatience; !done(); page::pass()) {
      if (page::milliseconds() > end) return false;
    }
    return true;
  }
  std::string serve(const std::string& path, std::string body, int status) override {
    page::lay(path.data(), path.size(), body.data(), body.size(), status);
    return serverAddress() + path;
  }
  // A port that nobody may be given.
  std::string deadAddress() override { return "http://127.0.0.1:1/"; }
};

}  // namespace

std::unique_ptr<HostUnderTest> HostUnderTest::make() {
  return std::make_unique<WebHostUnderTest>();
}

void runAsAnotherThread(const std::function<void()>& work) { WebHost::shared().runInSession(work); }
bool onAnotherThread() { return !WebHost::shared().onMain(); }

}  // namespace leafund
