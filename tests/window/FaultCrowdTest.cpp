#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

#include "model/Catalogue.h"
#include "platform/graphics/DrawingContext.h"
#include "platform/uikit/UITableView.h"
#include "platform/uikit/UITableViewCell.h"
#include "tests/support/PictureAnswers.h"
#include "tests/support/PictureAnswersProtocol.h"
#include "tests/window/FaultApplication.h"
#include "tests/window/FaultBodies.h"
#include "tests/window/HeldTime.h"

namespace leafund {
namespace {

using namespace std::chrono_literals;

constexpr int kCampaigns = 200;
constexpr double kRowHeight = 160;
constexpr int kRowsAStep = 4;  // fewer than are in sight, so that none is passed over

class FaultCrowdTest : public testing::Test {
 protected:
  // The browse list, long, and every picture of it at that address.
  void open(const std::string& address) {
    auto& list = otherCampaigns();
    while (list.size() < kCampaigns) list.push_back(list.front());
    lead(address);
    app->signIn();
    app->window.settle();
  }

  static void lead(const std::string& address) {
    for (const auto& campaign : otherCampaigns()) campaign->setPhoto(address);
  }

  // Down the whole list in the window, a frame a step.
  void scrollDown() {
    auto& table = app->window.require("table");
    int frames = 0;
    QObject context;
    QObject::connect(&app->window.window(), &QQuickWindow::afterRendering, &context,
                     [&] { ++frames; });
    for (int row = kRowsAStep; row < kCampaigns; row += kRowsAStep) {
      const int before = frames;
      table.setProperty("contentY", std::min(row * kRowHeight, app->table().greatestOffset()));
      ASSERT_TRUE(app->window.waitUntil([&] { return frames > before; }));
    }
  }
  void scrollUp() {
    app->window.require("table").setProperty("contentY", 0.0);
    app->window.settle();
  }

  // The picture host, with connections that are counted apart from those of the other pictures.
  PictureServer& crowded() {
    if (!crowded_) crowded_ = std::make_unique<PictureServer>();
    return *crowded_;
  }

  std::unique_ptr<FaultApplication> app = std::make_unique<FaultApplication>();

 private:
  std::unique_ptr<PictureServer> crowded_;
};

TEST_F(FaultCrowdTest, ASilentHostIsHeldOverSixConnectionsHoweverFarTheListIsScrolled) {
  open(crowded().serve("/silent", answers::neverAnswers()));
  scrollDown();
  EXPECT_GE(app->host.started(), kCampaigns);
  EXPECT_EQ(app->host.ended(), 0);
  EXPECT_EQ(crowded().mostConnections(), 6);
  EXPECT_EQ(crowded().requestsFor("/silent"), 6U);
}

// The same rows are built and the same fetches begin; what differs is whether they end.
TEST_F(FaultCrowdTest, ScrollingCostsAsMuchBesideASilentHostAsBesideAClosedOne) {
  open(FaultHosts::closed());
  const std::string silent = crowded().serve("/silent", answers::neverAnswers());
  double closedCost = 1e9;
  double silentCost = 1e9;
  for (int round = 0; round < 3; ++round) {
    for (const bool isSilent : {false, true}) {
      scrollUp();
      lead(isSilent ? silent : FaultHosts::closed());
      const int fetches = app->host.started();
      const double before = computedMilliseconds();
      scrollDown();
      double& cost = isSilent ? silentCost : closedCost;
      cost = std::min(cost, computedMilliseconds() - before);
      EXPECT_GE(app->host.started() - fetches, kCampaigns - 10);
    }
  }
  RecordProperty("closed", std::to_string(closedCost));
  RecordProperty("silent", std::to_string(silentCost));
  EXPECT_LT(silentCost, 1.5 * closedCost + 20);
}

TEST_F(FaultCrowdTest, TheApplicationClosesWithinASecondWithTwoHundredFetchesUnderWay) {
  open(crowded().serve("/silent", answers::neverAnswers()));
  scrollDown();
  ASSERT_GE(app->host.started() - app->host.ended(), kCampaigns);
  const std::weak_ptr<UIViewController> screen = app->window.shown();
  const auto start = std::chrono::steady_clock::now();
  app.reset();
  const auto time = std::chrono::steady_clock::now() - start;
  RecordProperty("milliseconds", std::to_string(time / 1ms));
  EXPECT_LT(time, 1s);
  EXPECT_TRUE(screen.expired());
  EXPECT_TRUE(crowded().waitForConnections(0));
}

TEST_F(FaultCrowdTest, TwoHundredSlowAnswersAreAllAppliedInTheEnd) {
  const auto answer = answers::after(10ms, answers::ok(bodies::jpeg(kNewColour)));
  open(crowded().serve("/slow", answer));
  scrollDown();
  const auto fetches = static_cast<std::size_t>(app->host.started());
  EXPECT_GE(fetches, 1U * kCampaigns);
  // Each one that was applied has left its drawing context.
  EXPECT_TRUE(app->window.waitUntil([&] { return drawingContextCount() == fetches; }));
  EXPECT_EQ(crowded().requestsFor("/slow"), fetches);
  EXPECT_LE(crowded().mostConnections(), 6);
  for (const auto& [row, cell] : app->table().visibleCells()) {
    EXPECT_NE(cell->imageView()->image(), nullptr) << row;
  }
}

TEST_F(FaultCrowdTest, TheApplicationClosesWhileTwoHundredAnswersArrive) {
  const auto answer = answers::after(5ms, answers::ok(bodies::jpeg(kNewColour)));
  open(crowded().serve("/slow", answer));
  scrollDown();
  const std::weak_ptr<UIViewController> screen = app->window.shown();
  ASSERT_TRUE(app->window.waitUntil([&] { return drawingContextCount() > 10; }));
  const auto start = std::chrono::steady_clock::now();
  app.reset();
  EXPECT_LT(std::chrono::steady_clock::now() - start, 1s);
  EXPECT_TRUE(screen.expired());
}

}  // namespace
}  // namespace leafund
