#include <gmock/gmock.h>

#include <QGuiApplication>

#include "interface/qml/LeafundWindow.h"
#include "tests/support/ProbeDelegate.h"
#include "tests/window/WindowFixture.h"

namespace leafund {
namespace {

// The application's delegate writes down what it hears.
class LoopTest : public testing::Test {
 protected:
  LoopTest() { setCurrentHost(&host); }
  ~LoopTest() override {
    host.stop();
    application.reset();
    setCurrentHost(nullptr);
  }

  int argc_ = 1;
  char name_[8] = "leafund";
  char* argv_[2] = {name_, nullptr};
  QtHost host{argc_, argv_, leafundWindow()};
  ProbeLog log;
  std::shared_ptr<UIApplication> application =
      std::make_shared<UIApplication>(host, mainStoryboard(), std::make_shared<ProbeDelegate>(log));
};

TEST_F(LoopTest, TheApplicationHearsOfTheStartFirstAndOfTheEndLast) {
  host.post([&] { host.window()->close(); });
  EXPECT_EQ(host.run(*application), 0);
  EXPECT_EQ(log.front(), "launched");
  EXPECT_EQ(log.back(), "ends");
}

// The system may skip the middle.
TEST_F(LoopTest, TheApplicationHearsOfEachStepIntoTheBackgroundAndBack) {
  host.start(*application);
  emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
  take(log);
  emit qGuiApp->applicationStateChanged(Qt::ApplicationSuspended);
  EXPECT_THAT(take(log), testing::ElementsAre("resigns active", "in background"));
  emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
  EXPECT_THAT(take(log), testing::ElementsAre("to foreground", "active"));
  emit qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
  EXPECT_THAT(take(log), testing::ElementsAre("resigns active"));
  emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
  EXPECT_THAT(take(log), testing::ElementsAre("active"));
}

}  // namespace
}  // namespace leafund
