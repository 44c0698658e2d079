#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <thread>

#include "platform/dispatch/MainQueue.h"
#include "platform/headless/HeadlessHost.h"

namespace leafund {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(MainQueueTest, AStepRunsLaterAndInTheOrderPosted) {
  HeadlessHost host;
  std::vector<int> ran;
  for (int i = 0; i < 3; ++i) {
    dispatch_async(dispatch_get_main_queue(), [&ran, i] { ran.push_back(i); });
  }
  EXPECT_THAT(ran, IsEmpty());
  host.drainMainQueue();
  EXPECT_THAT(ran, ElementsAre(0, 1, 2));
}

TEST(MainQueueTest, AStepPostedByAStepComesBehindThoseThatWait) {
  HeadlessHost host;
  std::vector<std::string> ran;
  dispatch_async(dispatch_get_main_queue(), [&] {
    dispatch_async(dispatch_get_main_queue(), [&] { ran.emplace_back("posted by the first"); });
    ran.emplace_back("first");
  });
  dispatch_async(dispatch_get_main_queue(), [&] { ran.emplace_back("second"); });
  host.drainMainQueue();
  EXPECT_THAT(ran, ElementsAre("first", "second", "posted by the first"));
}

TEST(MainQueueTest, StepsOfAnotherThreadRunOnTheMainThreadInItsOrder) {
  HeadlessHost host;
  std::vector<int> ran;
  std::thread other([&] {
    EXPECT_FALSE(host.onMain());
    for (int i = 0; i < 100; ++i) {
      dispatch_async(dispatch_get_main_queue(), [&, i] {
        EXPECT_TRUE(host.onMain());
        ran.push_back(i);
      });
    }
  });
  other.join();
  host.drainMainQueue();
  ASSERT_EQ(ran.size(), 100U);
  EXPECT_TRUE(std::is_sorted(ran.begin(), ran.end()));
}

TEST(MainQueueTest, ThreadsThatPostAtOnceLoseNoStep) {
  HeadlessHost host;
  int ran = 0;
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([&ran] {
      for (int step = 0; step < 1000; ++step) {
        dispatch_async(dispatch_get_main_queue(), [&ran] { ++ran; });
      }
    });
  }
  while (ran < 2000) host.drainMainQueue();  // also while they still post
  for (auto& thread : threads) thread.join();
  host.drainMainQueue();
  EXPECT_EQ(ran, 4000);
}

TEST(MainQueueDeathTest, PostingWithoutAHostIsFatal) {
  EXPECT_DEATH(dispatch_async(dispatch_get_main_queue(), [] {}),
               "Leafund stopped: currentHost: no host is in force");
}

}  // namespace
}  // namespace leafund
