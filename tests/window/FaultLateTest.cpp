#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QStyleHints>
#include <atomic>
#include <memory>
#include <sstream>
#include <tuple>

#include "tests/support/PictureAnswers.h"
#include "tests/support/PictureAnswersProtocol.h"
#include "tests/window/FaultApplication.h"
#include "tests/window/FaultBodies.h"

namespace leafund {
namespace {

// The screen is left before its picture comes, and what comes then is good or bad.
class FaultLateTest : public testing::TestWithParam<std::tuple<Place, bool>> {
 protected:
  Place place() const { return std::get<0>(GetParam()); }
  bool isPicture() const { return std::get<1>(GetParam()); }

  std::shared_ptr<UIViewController> screen() { return app.window.shown(); }
  void leave() {
    auto& navigation = app.window.navigation();
    app.window.application->turn(
        [&] { navigation.popToViewController(navigation.viewControllers().front()); });
    app.window.settle();
  }

  void SetUp() override { QGuiApplication::styleHints()->setCursorFlashTime(0); }

  FaultApplication app;
  std::shared_ptr<std::atomic<bool>> open = std::make_shared<std::atomic<bool>>(false);
};

TEST_P(FaultLateTest, APictureForAScreenThatIsGoneIsAppliedUnseenAndLetsTheScreenGo) {
  const std::string body = isPicture() ? bodies::jpeg(kNewColour) : bodies::errorPage();
  const std::string address = app.hosts.with(answers::whenOpen(open, answers::ok(body)));
  app.open(place(), address);
  const std::weak_ptr<UIViewController> left = screen();
  const auto before = app.imageView().image();
  ASSERT_TRUE(app.window.waitUntil([&] { return app.hosts.server().requestsFor("/fault") == 1; }));
  leave();
  ASSERT_FALSE(left.expired());
  ASSERT_EQ(app.imageView().image(), before);
  const QImage shot = app.window.window().grabWindow();

  *open = true;

  ASSERT_TRUE(app.window.waitUntil([&] { return app.host.ended(address) == 1; }));
  EXPECT_EQ(app.imageView().image() != nullptr, isPicture());
  EXPECT_NE(app.imageView().image(), before);
  EXPECT_TRUE(app.window.waitUntil([&] { return left.expired(); }));
  EXPECT_EQ(app.window.window().grabWindow(), shot);
}

std::string nameOf(const testing::TestParamInfo<FaultLateTest::ParamType>& info) {
  std::ostringstream name;
  name << (std::get<1>(info.param) ? "Picture" : "Page") << "In" << std::get<0>(info.param);
  return name.str();
}

INSTANTIATE_TEST_SUITE_P(Detail, FaultLateTest,
                         testing::Combine(testing::Values(Place::Detail, Place::Update),
                                          testing::Bool()),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(List, FaultLateTest,
                         testing::Combine(testing::Values(Place::Row), testing::Values(true)),
                         nameOf);

}  // namespace
}  // namespace leafund
