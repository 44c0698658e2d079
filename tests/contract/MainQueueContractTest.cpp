#include <algorithm>
#include <array>
#include <thread>

#include "platform/dispatch/MainQueue.h"
#include "tests/contract/ContractTest.h"

namespace leafund {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MainQueueContract : public ContractTest {
 protected:
  static void post(std::function<void()> step) {
    dispatch_async(dispatch_get_main_queue(), std::move(step));
  }
};

TEST_F(MainQueueContract, AStepRunsLaterOnTheMainThreadInTheOrderPosted) {
  std::vector<int> ran;
  for (int i = 0; i < 100; ++i) {
    post([&, i] {
      EXPECT_TRUE(underTest->host().onMain());
      ran.push_back(i);
    });
  }
  EXPECT_THAT(ran, IsEmpty());
  settle();
  ASSERT_EQ(ran.size(), 100U);
  EXPECT_TRUE(std::is_sorted(ran.begin(), ran.end()));
}

TEST_F(MainQueueContract, StepsOfSeveralThreadsAllRunOnTheMainThreadEachThreadsInItsOrder) {
  constexpr int kThreads = 4;
  constexpr int kSteps = 500;
  std::array<std::vector<int>, kThreads> ran;  // touched on the main thread alone
  std::vector<std::thread> threads;
  for (auto& own : ran) {
    threads.emplace_back([&own, &host = underTest->host()] {
      EXPECT_FALSE(host.onMain());
      for (int step = 0; step < kSteps; ++step) {
        post([&own, &host, step] {
          EXPECT_TRUE(host.onMain());
          own.push_back(step);
        });
      }
    });
  }
  const auto all = [&ran] {
    return std::all_of(ran.begin(), ran.end(),
                       [](const auto& own) { return own.size() == kSteps; });
  };
  EXPECT_TRUE(underTest->runUntil(all));
  for (auto& thread : threads) thread.join();
  for (const auto& own : ran) EXPECT_TRUE(std::is_sorted(own.begin(), own.end()));
}

TEST_F(MainQueueContract, EachStepIsATurnOfItsOwn) {
  std::vector<std::string> ran;
  for (const char* name : {"one", "two"}) {
    post([&, name] {
      application->turn([&, name] { ran.push_back(name + std::string(", raised")); });
      ran.emplace_back(name);
    });
  }
  settle();
  EXPECT_THAT(ran, ElementsAre("one", "one, raised", "two", "two, raised"));
}

TEST_F(MainQueueContract, AStepPostedByAStepComesBehindThoseThatWait) {
  std::vector<std::string> ran;
  bool done = false;
  post([&] {
    post([&] {
      ran.emplace_back("posted by the first");
      done = true;
    });
    ran.emplace_back("first");
  });
  post([&] { ran.emplace_back("second"); });
  EXPECT_TRUE(underTest->runUntil([&] { return done; }));
  EXPECT_THAT(ran, ElementsAre("first", "second", "posted by the first"));
}

TEST_F(MainQueueContract, WhatAStepHoldsIsLetGoOnTheMainThreadWhenItHasRun) {
  std::thread::id endedOn;
  std::shared_ptr<int> held(new int(1), [&endedOn](int* value) {
    endedOn = std::this_thread::get_id();
    delete value;
  });
  const std::weak_ptr<int> watch = held;
  std::thread([&held] { post([kept = std::move(held)] {}); }).join();
  EXPECT_FALSE(watch.expired());
  settle();
  EXPECT_TRUE(underTest->runUntil([&] { return watch.expired(); }));
  EXPECT_EQ(endedOn, std::this_thread::get_id());
}

}  // namespace
}  // namespace leafund
