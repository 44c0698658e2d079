#include <atomic>
#include <filesystem>
#include <fstream>

#include "tests/window/TransferFixture.h"

namespace leafund {
namespace {

// The policy that is in force when nobody asks for another one.

TEST_F(CurlTransferTest, TheLimitsAreTheSessionsUnlessToldOtherwise) {
  const CurlTransfer::Limits limits;

  EXPECT_EQ(limits.redirects, 20);
  EXPECT_EQ(limits.idle, 60s);
  EXPECT_EQ(limits.bodyBytes, 64U * 1024 * 1024);
}

// Where and when the completion runs.

bool hasSessionThread() {
  for (const auto& task : std::filesystem::directory_iterator("/proc/self/task")) {
    std::string name;
    if (std::getline(std::ifstream(task.path() / "comm"), name) && name == "session") return true;
  }
  return false;
}

TEST_F(CurlTransferTest, TheThreadIsStartedByTheFirstFetch) {
  CurlTransfer transfer;
  EXPECT_FALSE(hasSessionThread());

  fetched(transfer, server_.serve("/picture", answers::ok("bytes")));

  EXPECT_TRUE(hasSessionThread());
}

TEST_F(CurlTransferTest, EveryCompletionRunsOnTheOneThreadOfTheFetches) {
  CurlTransfer transfer;
  const Outcome good = fetched(transfer, server_.serve("/picture", answers::ok("bytes")));
  const Outcome bad = fetched(transfer, server_.serve("/bad", answers::resetAtOnce()));
  const Outcome refused = fetched(transfer, "file:///etc/passwd");

  EXPECT_NE(good.thread, std::this_thread::get_id());
  EXPECT_EQ(bad.thread, good.thread);
  EXPECT_EQ(refused.thread, good.thread);
}

TEST_F(CurlTransferTest, StartReturnsWhileTheThreadIsBusyWithACompletion) {
  CurlTransfer transfer;
  std::promise<void> entered, release;
  transfer.start(server_.serve("/picture", answers::ok("bytes")), [&](auto...) {
    entered.set_value();
    release.get_future().wait();
  });
  ASSERT_EQ(entered.get_future().wait_for(30s), std::future_status::ready);

  auto second = started(transfer, server_.address("/picture"));
  auto refused = started(transfer, "file:///etc/passwd");

  EXPECT_EQ(second.wait_for(0s), std::future_status::timeout);
  EXPECT_EQ(refused.wait_for(0s), std::future_status::timeout);
  release.set_value();
  EXPECT_TRUE(outcomeOf(std::move(second)).isResponse(200, "bytes"));
  EXPECT_TRUE(outcomeOf(std::move(refused)).isError());
}

TEST_F(CurlTransferTest, EveryCompletionRunsExactlyOnceWhateverTheAnswer) {
  std::map<std::string, std::atomic<int>> calls;
  {
    CurlTransfer transfer({.idle = 500ms, .bodyBytes = 1000});
    std::vector<std::future<void>> completions;
    const auto start = [&](const std::string& name, const std::string& url) {
      auto done = std::make_shared<std::promise<void>>();
      completions.push_back(done->get_future());
      transfer.start(url, [done, &count = calls[name]](auto...) {
        if (++count == 1) done->set_value();
      });
    };
    for (const auto& table :
         {answers::transportFaults(), answers::silences(), answers::answersWithoutBody()}) {
      for (const auto& [name, answer] : table) start(name, server_.serve("/" + name, answer));
    }
    start("ok", server_.serve("/ok", answers::ok("bytes")));
    start("missing", server_.address("/missing"));
    start("cutChunk", server_.serve("/cutChunk", answers::cutChunk()));
    start("endless", server_.serve("/endless", answers::endless()));
    start("long", server_.serve("/long", answers::ok(std::string(1001, 'x'))));
    start("loop", server_.serve("/loop", answers::redirect("/loop")));
    start("file", "file:///etc/passwd");
    for (auto& completion : completions) {
      ASSERT_EQ(completion.wait_for(30s), std::future_status::ready);
    }
  }  // The thread has ended: whatever was still to come has come.
  for (const auto& [name, count] : calls) EXPECT_EQ(count, 1) << name;
}

TEST_F(CurlTransferTest, TheCompletionIsNeverCopied) {
  struct CountsCopies {
    explicit CountsCopies(std::atomic<int>& count) : copies(&count) {}
    CountsCopies(const CountsCopies& other) : copies(other.copies) { ++*copies; }
    CountsCopies(CountsCopies&&) = default;
    CountsCopies& operator=(const CountsCopies&) = delete;
    ~CountsCopies() = default;
    std::atomic<int>* copies;
  };
  std::atomic<int> copies = 0;
  std::promise<void> done;
  CompletionHandler completion = [&done, counter = CountsCopies(copies)](auto...) {
    done.set_value();
  };
  copies = 0;
  CurlTransfer transfer;

  transfer.start(serveHops(2), std::move(completion));

  ASSERT_EQ(done.get_future().wait_for(30s), std::future_status::ready);
  EXPECT_EQ(copies, 0);
}

// The end.

// Tells on which thread a completion that owns it was destroyed.
std::shared_ptr<int> tellingItsEnd(std::thread::id& thread) {
  return {new int(0), [&thread](const int* number) {
            delete number;
            thread = std::this_thread::get_id();
          }};
}

TEST_F(CurlTransferTest, WhatIsUnderWayAtTheEndIsGivenUpWithinASecond) {
  std::atomic<int> calls = 0;
  auto transfer = std::make_unique<CurlTransfer>();
  const std::string url = server_.serve("/picture", answers::neverAnswers());
  for (int i = 0; i < 200; ++i) transfer->start(url, [&](auto...) { ++calls; });
  ASSERT_TRUE(server_.waitForRequests(6));

  const auto start = std::chrono::steady_clock::now();
  transfer.reset();
  const auto time = std::chrono::steady_clock::now() - start;

  RecordProperty("milliseconds", std::to_string(time / 1ms));
  EXPECT_LT(time, 1s);
  EXPECT_EQ(calls, 0);
  EXPECT_TRUE(server_.waitForConnections(0));
}

TEST_F(CurlTransferTest, ACompletionThatIsGivenUpEndsOnTheMainThread) {
  std::thread::id thread;
  auto transfer = std::make_unique<CurlTransfer>();
  transfer->start(server_.serve("/picture", answers::neverAnswers()),
                  [owned = tellingItsEnd(thread)](auto...) { FAIL() << "called"; });
  ASSERT_TRUE(server_.waitForRequests(1));

  transfer.reset();

  EXPECT_EQ(thread, std::this_thread::get_id());
}

TEST_F(CurlTransferTest, ACompletionIsNotLostWhenTheEndComesRightAfterTheStart) {
  const std::string url = server_.serve("/picture", answers::neverAnswers());
  for (int round = 0; round < 100; ++round) {
    std::thread::id thread;
    {
      CurlTransfer transfer;
      transfer.start(url, [owned = tellingItsEnd(thread)](auto...) { FAIL() << "called"; });
    }
    ASSERT_EQ(thread, std::this_thread::get_id());
  }
}

}  // namespace
}  // namespace leafund
