#include <QTest>
#include <memory>
#include <utility>

#include "interface/qml/LeafundWindow.h"
#include "platform/qt/QtHost.h"
#include "platform/qt/QtWindow.h"
#include "tests/contract/HostUnderTest.h"
#include "tests/support/PictureAnswers.h"
#include "tests/support/PictureServer.h"

namespace leafund {

namespace {

constexpr int kPatience = 20'000;  // milliseconds

// The real window, and the network of the loopback address.
class QtHostUnderTest final : public HostUnderTest {
 public:
  QtHostUnderTest() { setCurrentHost(&host_); }
  ~QtHostUnderTest() override {
    host_.stop();
    setCurrentHost(nullptr);
  }

  Host& host() override { return host_; }
  void start(UIApplication& application) override { host_.start(application); }
  bool runUntil(const std::function<bool()>& done) override {
    return QTest::qWaitFor(done, kPatience);
  }

  std::string serve(const std::string& path, std::string body, int status) override {
    return server().serve(path, answers::status(status, std::move(body)));
  }
  std::string deadAddress() override { return PictureServer::closedAddress("/"); }

 private:
  // Made when first asked for: it needs the application object, which the host makes.
  PictureServer& server() {
    if (!server_) server_ = std::make_unique<PictureServer>();
    return *server_;
  }

  static inline int argc_ = 1;
  static inline char name_[] = "leafund";
  static inline char* argv_[] = {name_, nullptr};

  QtHost host_{argc_, argv_, leafundWindow()};
  std::unique_ptr<PictureServer> server_;
};

}  // namespace

std::unique_ptr<HostUnderTest> HostUnderTest::make() { return std::make_unique<QtHostUnderTest>(); }

}  // namespace leafund
