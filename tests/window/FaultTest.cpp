#include <gtest/gtest.h>

#include <QTest>
#include <chrono>
#include <cstdlib>
#include <memory>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

#include "tests/window/FaultApplication.h"

namespace leafund {
namespace {

using namespace std::chrono_literals;

// Milliseconds: longer than any answer on the loopback address takes.
constexpr int kAWhile = 300;

bool isColour(QColor colour, QColor other) {
  constexpr int rounding = 8;  // what JPEG makes of one colour
  return std::abs(colour.red() - other.red()) <= rounding &&
         std::abs(colour.green() - other.green()) <= rounding &&
         std::abs(colour.blue() - other.blue()) <= rounding;
}

// What the toolkit holds, and that the window agrees.
Settled seen(FaultApplication& app, const UIImage* before) {
  const auto* image = app.imageView().image().get();
  const QColor colour = app.colour();
  if (image == before) {
    EXPECT_TRUE(isColour(colour, kOldColour)) << colour.name().toStdString();
    return Settled::Kept;
  }
  if (image != nullptr && isColour(colour, kNewColour)) return Settled::Picture;
  EXPECT_TRUE(isColour(colour, app.ground())) << colour.name().toStdString();
  return image == nullptr ? Settled::Empty : Settled::Blank;
}

class FaultTest : public testing::TestWithParam<std::tuple<Fault, Place>> {
 protected:
  const Fault& fault() const { return std::get<0>(GetParam()); }
  Place place() const { return std::get<1>(GetParam()); }

  void run() {
    address = fault().address(app->hosts);
    app->open(place(), address);
    before = app->imageView().image();
  }
  // Until the fetch of the fault has ended, with all that it does; whether it has.
  bool ends() {
    return app->window.waitUntil([&] { return app->host.ended(address) > 0; });
  }
  // Until the server has heard the request, or every other fetch has ended.
  bool isUnderWay() {
    return app->window.waitUntil([&] {
      return app->hosts.server().requestsFor("/fault") > 0 ||
             app->host.ended() == app->host.started() - 1;
    });
  }

  std::unique_ptr<FaultApplication> app;
  std::string address;
  std::shared_ptr<const UIImage> before;
};

// Whatever the host does, the window is gone soon after it was closed.
void expectToCloseSoon(std::unique_ptr<FaultApplication> app) {
  const auto start = std::chrono::steady_clock::now();
  app.reset();
  EXPECT_LT(std::chrono::steady_clock::now() - start, 3s);
}

TEST_P(FaultTest, EndsAsSettled) {
  const Settled settled = fault().in(place());
  if (settled == Settled::Fatal) {
    // The whole application in the process that ends: nothing of it outlives a fork.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(
        {
          app = std::make_unique<FaultApplication>();
          run();
          ends();
        },
        "Leafund stopped: FundCampaignVC: the downloaded body is not a picture");
    return;
  }
  app = std::make_unique<FaultApplication>();
  run();
  if (settled == Settled::Waits) {
    EXPECT_TRUE(isUnderWay());
    EXPECT_FALSE(QTest::qWaitFor([&] { return app->host.ended(address) > 0; }, kAWhile));
    EXPECT_EQ(seen(*app, before.get()), Settled::Kept);
  } else {
    EXPECT_TRUE(ends());
    EXPECT_EQ(seen(*app, before.get()), settled);
  }
  expectToCloseSoon(std::move(app));
}

std::string nameOf(const testing::TestParamInfo<FaultTest::ParamType>& info) {
  std::ostringstream name;
  name << std::get<0>(info.param) << "In" << std::get<1>(info.param);
  return name.str();
}

const auto everyPlace = testing::Values(Place::Row, Place::Detail, Place::Update);

INSTANTIATE_TEST_SUITE_P(Host, FaultTest, testing::Combine(testing::ValuesIn(faults()), everyPlace),
                         nameOf);

using ImpatientFaultTest = FaultTest;

TEST_P(ImpatientFaultTest, KeepsWhatWasThereAfterTheIdleTime) {
  app = std::make_unique<FaultApplication>();
  app->host.limit({.idle = 200ms});
  run();
  EXPECT_TRUE(ends());
  EXPECT_EQ(seen(*app, before.get()), Settled::Kept);
  expectToCloseSoon(std::move(app));
}

// Those that are waited for; the place makes no difference to a fetch that ends without a body.
std::vector<Fault> silences() {
  std::vector<Fault> found;
  for (const auto& fault : faults()) {
    if (fault.row == Settled::Waits) found.push_back(fault);
  }
  return found;
}

INSTANTIATE_TEST_SUITE_P(Host, ImpatientFaultTest,
                         testing::Combine(testing::ValuesIn(silences()),
                                          testing::Values(Place::Row)),
                         nameOf);

}  // namespace
}  // namespace leafund
