#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/foundation/NSURLRequest.h"
#include "platform/headless/HeadlessHost.h"
#include "tests/support/HeadlessApplication.h"
#include "tests/support/ProbeScreen.h"

namespace leafund {
namespace {

using testing::ElementsAre;

NSURLRequest request(const std::string& address) {
  return NSURLRequest::initWithURL(*NSURL::initWithString(address));
}

TEST(HeadlessHostTest, ItIsTheHostInForceForItsLife) {
  HeadlessHost host;
  EXPECT_EQ(&currentHost(), &host);
  EXPECT_TRUE(host.onMain());
}

TEST(HeadlessHostTest, TheScreensScaleIsTheOneGiven) {
  EXPECT_EQ(HeadlessHost().screenScale(), 2);
  EXPECT_EQ(HeadlessHost({390, 844}, 3).screenScale(), 3);
}

TEST(HeadlessHostTest, RunningLaunchesAtTheSizeGivenAndReturnsAtOnce) {
  ProbeLog log;
  const UIStoryboard storyboard("Only", {probeScene(log, "Only")}, {});
  HeadlessHost host({320, 568});
  UIApplication application(host, storyboard, std::make_shared<AppDelegate>());
  EXPECT_EQ(host.run(application), 0);
  EXPECT_EQ(application.navigation()->topViewController()->viewIfLoaded()->frame(),
            (CGRect{0, 0, 320, 568}));
  EXPECT_EQ(host.showings(), 1);
}

TEST(HeadlessHostTest, APostedStepIsATurnOfTheRunningApplication) {
  ProbeLog log;
  const UIStoryboard storyboard("Only", {probeScene(log, "Only")}, {});
  HeadlessApplication app(storyboard);
  int showings = -1;
  app.host.post([&] {
    app.shown()->navigationItem().setTitle("Changed");
    showings = app.host.showings();
  });
  app.host.drainMainQueue();
  EXPECT_EQ(app.host.showings(), showings + 1);
}

TEST(HeadlessHostTest, FetchesAreListedInTheOrderStartedAndLeaveTheListWhenTheyEnd) {
  HeadlessHost host;
  std::vector<std::string> bodies;
  for (const char* address : {"http://a", "http://b", "http://c"}) {
    host.transfer(request(address),
                  [&](NSData body, auto, auto) { bodies.push_back(body ? *body : "none"); });
  }
  EXPECT_THAT(host.fetches(), ElementsAre("http://a", "http://b", "http://c"));
  host.answer(1, "b");
  EXPECT_THAT(host.fetches(), ElementsAre("http://a", "http://c"));
  host.fail(1);
  EXPECT_THAT(host.fetches(), ElementsAre("http://a"));
  EXPECT_THAT(bodies, ElementsAre("b", "none"));
}

TEST(HeadlessHostDeathTest, AfterTheHostThereIsNoneInForce) {
  {
    HeadlessHost host;
  }
  EXPECT_DEATH(currentHost(), "Leafund stopped: currentHost: no host is in force");
}

}  // namespace
}  // namespace leafund
