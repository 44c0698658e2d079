#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

#include "platform/dispatch/MainQueue.h"
#include "platform/foundation/NSURLSession.h"
#include "platform/headless/HeadlessHost.h"
#include "tests/support/ProbeHost.h"

namespace leafund {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

NSURLRequest request(const std::string& address = "http://example.org/picture.jpg") {
  return NSURLRequest::initWithURL(*NSURL::initWithString(address));
}

struct Completion {
  NSData body;
  std::optional<NSURLResponse> response;
  std::optional<NSError> error;
  bool onMain;
};

// What a screen or a cell is to a fetch: it must end on the main thread.
struct Owner {
  explicit Owner(std::vector<bool>& endedOnMain) : ended(endedOnMain) {}
  Owner(const Owner&) = delete;
  Owner& operator=(const Owner&) = delete;
  ~Owner() { ended.push_back(currentHost().onMain()); }
  std::vector<bool>& ended;
};

class NSURLSessionTest : public testing::Test {
 protected:
  void fetch(const std::string& address) { task(address)->resume(); }
  std::shared_ptr<NSURLSessionDataTask> task(const std::string& address) {
    return NSURLSession::sharedSession().dataTaskWithRequestCompletionHandler(
        request(address), [this](NSData body, auto response, auto error) {
          completions.push_back({std::move(body), response, error, host.onMain()});
        });
  }
  HeadlessHost host;
  std::vector<Completion> completions;
};

TEST_F(NSURLSessionTest, ThereIsOneSession) {
  EXPECT_EQ(&NSURLSession::sharedSession(), &NSURLSession::sharedSession());
}

TEST_F(NSURLSessionTest, ATaskThatIsNotResumedFetchesNothing) {
  task("http://example.org/a");
  EXPECT_THAT(host.fetches(), IsEmpty());
}

TEST_F(NSURLSessionTest, ResumingStartsTheFetchAndCompletesNothingItself) {
  fetch("http://example.org/a");
  EXPECT_THAT(host.fetches(), ElementsAre("http://example.org/a"));
  host.drainMainQueue();
  EXPECT_THAT(completions, IsEmpty());
}

TEST_F(NSURLSessionTest, ASecondResumeDoesNothing) {
  const auto twice = task("http://example.org/a");
  twice->resume();
  twice->resume();
  EXPECT_THAT(host.fetches(), ElementsAre("http://example.org/a"));
  host.answer(0, "body");
  twice->resume();
  EXPECT_THAT(host.fetches(), IsEmpty());
  EXPECT_EQ(completions.size(), 1U);
}

TEST_F(NSURLSessionTest, TheCompletionComesOnceWithTheBodyOnAThreadOfTheSessionsOwn) {
  fetch("http://example.org/a");
  host.answer(0, "body");
  ASSERT_EQ(completions.size(), 1U);
  EXPECT_EQ(*completions[0].body, "body");
  EXPECT_EQ(completions[0].response->statusCode, 200);
  EXPECT_FALSE(completions[0].error);
  EXPECT_FALSE(completions[0].onMain);
}

TEST_F(NSURLSessionTest, TheBodyOfAnErrorPageGoesOnWithoutAnError) {
  fetch("http://example.org/a");
  host.answer(0, "Not Found", 404);
  EXPECT_EQ(*completions.at(0).body, "Not Found");
  EXPECT_EQ(completions[0].response->statusCode, 404);
  EXPECT_FALSE(completions[0].error);
}

TEST_F(NSURLSessionTest, AnEmptyBodyIsNoBody) {
  fetch("http://example.org/a");
  host.answer(0, "");
  EXPECT_EQ(completions.at(0).body, nullptr);
  EXPECT_FALSE(completions[0].error);
}

TEST_F(NSURLSessionTest, AFailedFetchHasAnErrorAndNoBody) {
  fetch("http://example.org/a");
  host.fail(0);
  EXPECT_EQ(completions.at(0).body, nullptr);
  EXPECT_TRUE(completions[0].error);
  EXPECT_FALSE(completions[0].response);
}

TEST_F(NSURLSessionTest, FetchesEndInAnyOrderEachByItself) {
  fetch("http://example.org/a");
  fetch("http://example.org/b");
  fetch("http://example.org/a");
  host.answer(1, "b");
  host.fail(1);
  host.answer(0, "a");
  ASSERT_EQ(completions.size(), 3U);
  EXPECT_EQ(*completions[0].body, "b");
  EXPECT_TRUE(completions[1].error);
  EXPECT_EQ(*completions[2].body, "a");
}

TEST_F(NSURLSessionTest, WhatTheHandlerHoldsLivesUntilTheCompletionAndEndsOnTheMainThread) {
  std::vector<bool> endedOnMain;
  NSURLSession::sharedSession()
      .dataTaskWithRequestCompletionHandler(
          request(), [owner = std::make_shared<Owner>(endedOnMain)](auto, auto, auto) {})
      ->resume();
  EXPECT_THAT(endedOnMain, IsEmpty());
  host.completeWithoutDraining(0, nullptr);
  EXPECT_THAT(endedOnMain, IsEmpty());
  host.drainMainQueue();
  EXPECT_THAT(endedOnMain, ElementsAre(true));
}

TEST_F(NSURLSessionTest, WhatAPostedStepTakesOverLivesUntilThatStepHasRun) {
  std::vector<bool> endedOnMain;
  bool applied = false;
  NSURLSession::sharedSession()
      .dataTaskWithRequestCompletionHandler(
          request(),
          [&, owner = std::make_shared<Owner>(endedOnMain)](auto, auto, auto) {
            dispatch_async(dispatch_get_main_queue(), [&, owner] {
              EXPECT_THAT(endedOnMain, IsEmpty());
              applied = host.onMain();
            });
          })
      ->resume();
  host.answer(0, "body");
  EXPECT_TRUE(applied);
  EXPECT_THAT(endedOnMain, ElementsAre(true));
}

TEST(NSURLSessionOnAProbeTest, WhatTheHandlerHoldsEndsOnTheMainThreadWhereAHostKeepsACopyToo) {
  ProbeHost host;
  std::vector<bool> endedOnMain;
  NSURLSession::sharedSession()
      .dataTaskWithRequestCompletionHandler(
          request(), [owner = std::make_shared<Owner>(endedOnMain)](auto, auto, auto) {})
      ->resume();
  CompletionHandler kept = host.transfers.at(0).second;
  host.transfers.clear();
  std::thread([&kept] { kept(nullptr, std::nullopt, NSError{"refused"}); }).join();
  EXPECT_THAT(endedOnMain, IsEmpty());
  for (const auto& step : std::exchange(host.steps, {})) step();
  EXPECT_THAT(endedOnMain, ElementsAre(true));
  std::thread([&kept] { kept = nullptr; }).join();
  EXPECT_THAT(endedOnMain, ElementsAre(true));
}

}  // namespace
}  // namespace leafund
