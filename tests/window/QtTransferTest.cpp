#include <gtest/gtest.h>

#include <QLocale>
#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <future>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "platform/qt/QtTransfer.h"
#include "tests/support/PictureAnswers.h"
#include "tests/support/PictureServer.h"

namespace leafund {
namespace {

using namespace std::chrono_literals;

struct Outcome {
  NSData body;
  std::optional<NSURLResponse> response;
  std::optional<NSError> error;
  std::thread::id thread;

  bool isError() const { return error && !body && !response; }
  bool isResponse(int status, const std::string& text) const {
    return !error && body && *body == text && response && response->statusCode == status;
  }
};

std::future<Outcome> started(QtTransfer& transfer, const std::string& url) {
  auto promise = std::make_shared<std::promise<Outcome>>();
  transfer.start(url, [promise](NSData body, std::optional<NSURLResponse> response,
                                std::optional<NSError> error) {
    promise->set_value({std::move(body), response, std::move(error), std::this_thread::get_id()});
  });
  return promise->get_future();
}

Outcome outcomeOf(std::future<Outcome> future) {
  if (future.wait_for(30s) != std::future_status::ready) throw std::runtime_error("no completion");
  return future.get();
}

Outcome fetched(QtTransfer& transfer, const std::string& url) {
  return outcomeOf(started(transfer, url));
}

class QtTransferTest : public testing::Test {
 protected:
  Outcome answered(PictureServer::Answer answer, QtTransfer::Limits limits = {}) {
    QtTransfer transfer(limits);
    return fetched(transfer, server_.serve("/picture", std::move(answer)));
  }

  // The headers of the one request that a plain fetch sends.
  std::map<std::string, std::string> sentHeaders() {
    answered(answers::ok("bytes"));
    return server_.requests().at(0).headers;
  }

  // /hop/1 leads to /hop/2 and so on; the last one has a picture.
  std::string serveHops(int redirects) {
    for (int hop = 1; hop <= redirects; ++hop) {
      server_.serve("/hop/" + std::to_string(hop), answers::redirect(std::to_string(hop + 1)));
    }
    server_.serve("/hop/" + std::to_string(redirects + 1), answers::ok("at last"));
    return server_.address("/hop/1");
  }

  PictureServer server_;
};

// The policy that is in force when nobody asks for another one.

TEST_F(QtTransferTest, TheLimitsAreTheSessionsUnlessToldOtherwise) {
  const QtTransfer::Limits limits;

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

TEST_F(QtTransferTest, TheThreadIsStartedByTheFirstFetch) {
  QtTransfer transfer;
  EXPECT_FALSE(hasSessionThread());

  fetched(transfer, server_.serve("/picture", answers::ok("bytes")));

  EXPECT_TRUE(hasSessionThread());
}

TEST_F(QtTransferTest, EveryCompletionRunsOnTheOneThreadOfTheFetches) {
  QtTransfer transfer;
  const Outcome good = fetched(transfer, server_.serve("/picture", answers::ok("bytes")));
  const Outcome bad = fetched(transfer, server_.serve("/bad", answers::resetAtOnce()));
  const Outcome refused = fetched(transfer, "file:///etc/passwd");

  EXPECT_NE(good.thread, std::this_thread::get_id());
  EXPECT_EQ(bad.thread, good.thread);
  EXPECT_EQ(refused.thread, good.thread);
}

TEST_F(QtTransferTest, StartReturnsWhileTheThreadIsBusyWithACompletion) {
  QtTransfer transfer;
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

TEST_F(QtTransferTest, EveryCompletionRunsExactlyOnceWhateverTheAnswer) {
  std::map<std::string, std::atomic<int>> calls;
  {
    QtTransfer transfer({.idle = 500ms, .bodyBytes = 1000});
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

TEST_F(QtTransferTest, TheCompletionIsNeverCopied) {
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
  QtTransfer transfer;

  transfer.start(serveHops(2), std::move(completion));

  ASSERT_EQ(done.get_future().wait_for(30s), std::future_status::ready);
  EXPECT_EQ(copies, 0);
}

// What is sent.

TEST_F(QtTransferTest, AFetchIsOneGet) {
  answered(answers::ok("bytes"));

  ASSERT_EQ(server_.requests().size(), 1U);
  EXPECT_EQ(server_.requests()[0].method, "GET");
  EXPECT_EQ(server_.requests()[0].path, "/picture");
}

TEST_F(QtTransferTest, TheUserAgentIsTheSameEverywhere) {
  EXPECT_EQ(sentHeaders().at("user-agent"), "Leafund");
}

TEST_F(QtTransferTest, BodiesAreAskedForAsTheyAre) {
  EXPECT_EQ(sentHeaders().at("accept-encoding"), "identity");
}

TEST_F(QtTransferTest, TheUsersLanguageIsNotTold) {
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  EXPECT_EQ(sentHeaders().at("accept-language"), "*");
}

TEST_F(QtTransferTest, NothingElseIsSent) {
  auto headers = sentHeaders();
  for (const char* known :
       {"host", "connection", "user-agent", "accept-encoding", "accept-language"}) {
    EXPECT_EQ(headers.erase(known), 1U) << known;
  }
  for (const auto& [name, value] : headers) ADD_FAILURE() << name << ": " << value;
}

TEST_F(QtTransferTest, ACookieIsNeitherKeptNorSent) {
  QtTransfer transfer;
  const std::string url =
      server_.serve("/picture", answers::status(200, "bytes", "Set-Cookie: who=you; Path=/\r\n"));
  fetched(transfer, url);
  fetched(transfer, url);

  ASSERT_EQ(server_.requests().size(), 2U);
  EXPECT_FALSE(server_.requests()[1].headers.contains("cookie"));
}

TEST_F(QtTransferTest, APictureIsFetchedAfreshEachTime) {
  QtTransfer transfer;
  const std::string url = server_.serve(
      "/picture",
      answers::status(200, "bytes", "Cache-Control: max-age=3600\r\nETag: \"one\"\r\n"));
  fetched(transfer, url);
  EXPECT_TRUE(fetched(transfer, url).isResponse(200, "bytes"));

  ASSERT_EQ(server_.requests().size(), 2U);
  EXPECT_FALSE(server_.requests()[1].headers.contains("if-none-match"));
}

TEST_F(QtTransferTest, AHostIsAskedOverAtMostSixConnections) {
  QtTransfer transfer;
  server_.serve("/picture", answers::ok("bytes"));
  std::vector<std::future<Outcome>> fetches;
  for (int i = 0; i < 50; ++i) fetches.push_back(started(transfer, server_.address("/picture")));

  for (auto& fetch : fetches) EXPECT_TRUE(outcomeOf(std::move(fetch)).isResponse(200, "bytes"));
  EXPECT_LE(server_.mostConnections(), 6);
}

// Which addresses are fetched.

TEST_F(QtTransferTest, OnlyWholeWebAddressesAreFetched) {
  QtTransfer transfer;
  for (const char* url :
       {"", "foo", "/etc/passwd", "//127.0.0.1/x", "file:///etc/passwd", "ftp://127.0.0.1/x",
        "data:image/gif;base64,R0lGODlhAQABAAAAACw=", "qrc:/x", "http:", "http://", "http:///x",
        "https:x", "http://127.0.0.1:99999/", "http://a b/", "http://127.0.0.1/%zz"}) {
    EXPECT_TRUE(fetched(transfer, url).isError()) << url;
  }
}

TEST_F(QtTransferTest, TheSchemeMayBeWrittenInCapitals) {
  server_.serve("/picture", answers::ok("bytes"));
  const std::string url = "HTTP" + server_.address("/picture").substr(4);
  QtTransfer transfer;

  EXPECT_TRUE(fetched(transfer, url).isResponse(200, "bytes"));
}

TEST_F(QtTransferTest, AHostThatRefusesTheConnectionIsAnError) {
  std::string url;
  {
    const PictureServer closed;
    url = closed.address("/picture");
  }
  QtTransfer transfer;

  EXPECT_TRUE(fetched(transfer, url).isError());
}

TEST_F(QtTransferTest, AServerThatDoesNotSpeakTlsIsAnErrorUnderHttps) {
  const std::string url =
      "https" + server_.serve("/picture", answers::ok("bytes")).substr(std::string("http").size());
  QtTransfer transfer({.idle = 2s});

  EXPECT_TRUE(fetched(transfer, url).isError());
}

// What counts as a response.

TEST_F(QtTransferTest, AWholeBodyComesAsItWasSent) {
  std::string body;
  for (unsigned i = 0; i < 300'000; ++i) body += static_cast<char>(i * 7919 >> 3 & 255);

  EXPECT_TRUE(answered(answers::ok(body)).isResponse(200, body));
}

TEST_F(QtTransferTest, ABodyWithoutALengthEndsWithTheConnection) {
  EXPECT_TRUE(answered(answers::okUntilClosed("bytes")).isResponse(200, "bytes"));
}

TEST_F(QtTransferTest, EveryStatusIsAResponseWithItsBody) {
  for (const int status : {200, 203, 206, 300, 305, 400, 401, 403, 404, 407, 410,
                           418, 429, 451, 499, 500, 501, 502, 503, 504, 511, 599}) {
    EXPECT_TRUE(answered(answers::status(status, "said so")).isResponse(status, "said so"))
        << status;
  }
}

TEST_F(QtTransferTest, AnAnswerWithoutABodyIsAResponseWithAnEmptyOne) {
  for (const auto& [name, answer] : answers::answersWithoutBody()) {
    const Outcome outcome = answered(answer);
    ASSERT_FALSE(outcome.error) << name;
    EXPECT_EQ(*outcome.body, "") << name;
  }
}

TEST_F(QtTransferTest, ABodyIsNotUnpackedWhateverItIsSaidToBe) {
  EXPECT_TRUE(answered(answers::badGzip()).isResponse(200, "no gzip"));
}

TEST_F(QtTransferTest, ABodyThatDoesNotArriveWholeIsAnError) {
  for (const auto& [name, answer] : answers::transportFaults()) {
    EXPECT_TRUE(answered(answer).isError()) << name;
  }
}

// The two ways in which Qt tells of it; which one is a matter of microseconds.
TEST_F(QtTransferTest, ACutChunkIsAnErrorOrGivesWhatCameBeforeTheCut) {
  const Outcome outcome = answered(answers::cutChunk());

  EXPECT_TRUE(outcome.isError() || outcome.isResponse(200, "wholeonly the beginning"));
}

TEST_F(QtTransferTest, ABodyShorterThanItsLengthIsAnErrorHoweverOftenItIsTried) {
  QtTransfer transfer;
  const std::string url = server_.serve("/picture", answers::shortContentLength());
  std::vector<std::future<Outcome>> fetches;
  for (int i = 0; i < 500; ++i) fetches.push_back(started(transfer, url));

  for (auto& fetch : fetches) EXPECT_TRUE(outcomeOf(std::move(fetch)).isError());
}

// Redirects.

TEST_F(QtTransferTest, EveryKindOfRedirectIsFollowed) {
  server_.serve("/there", answers::ok("there"));
  for (const int status : {301, 302, 303, 307, 308}) {
    EXPECT_TRUE(answered(answers::redirect("/there", status)).isResponse(200, "there")) << status;
  }
}

TEST_F(QtTransferTest, ARedirectIsResolvedAgainstTheAddressThatGaveIt) {
  server_.serve("/a/b", answers::redirect("../c/d"));
  server_.serve("/c/d", answers::redirect("e?f"));
  server_.serve("/c/e?f", answers::ok("found"));
  QtTransfer transfer;

  EXPECT_TRUE(fetched(transfer, server_.address("/a/b")).isResponse(200, "found"));
}

TEST_F(QtTransferTest, ARedirectToAnotherServerIsFollowed) {
  PictureServer other;
  const std::string there = other.serve("/there", answers::ok("there"));

  EXPECT_TRUE(answered(answers::redirect(there)).isResponse(200, "there"));
}

TEST_F(QtTransferTest, TwentyRedirectsAreFollowed) {
  QtTransfer transfer;

  EXPECT_TRUE(fetched(transfer, serveHops(20)).isResponse(200, "at last"));
}

TEST_F(QtTransferTest, TheTwentyFirstRedirectIsAnError) {
  QtTransfer transfer;

  EXPECT_TRUE(fetched(transfer, serveHops(21)).isError());
  EXPECT_EQ(server_.requests().size(), 21U);
}

TEST_F(QtTransferTest, ARedirectLoopIsAnError) {
  EXPECT_TRUE(answered(answers::redirect("/picture")).isError());
  EXPECT_EQ(server_.requests().size(), 21U);
}

TEST_F(QtTransferTest, ARedirectIsFollowedOnlyToAWholeWebAddress) {
  for (const char* target :
       {"file:///etc/passwd", "ftp://127.0.0.1/", "data:,x", "http://", "http://a b/", "/%zz"}) {
    EXPECT_TRUE(answered(answers::redirect(target)).isError()) << target;
  }
}

TEST_F(QtTransferTest, TheBodyOfARedirectWithoutATargetIsAResponse) {
  EXPECT_TRUE(answered(answers::redirectWithoutTarget()).isResponse(302, "nowhere"));
  EXPECT_TRUE(answered(answers::redirect("")).isResponse(302, "moved"));
}

// Limits.

TEST_F(QtTransferTest, ASilentServerIsAnErrorAfterTheIdleTime) {
  for (const auto& [name, answer] : answers::silences()) {
    EXPECT_TRUE(answered(answer, {.idle = 300ms}).isError()) << name;
  }
}

TEST_F(QtTransferTest, ASlowBodyMayTakeLongerThanTheIdleTime) {
  const std::string body = "fourteen bytes";

  EXPECT_TRUE(answered(answers::drip(body, 100ms), {.idle = 1s}).isResponse(200, body));
}

TEST_F(QtTransferTest, ABodyOfTheGreatestLengthIsWhole) {
  const std::string body(100'000, 'x');

  EXPECT_TRUE(answered(answers::ok(body), {.bodyBytes = body.size()}).isResponse(200, body));
  EXPECT_TRUE(
      answered(answers::okUntilClosed(body), {.bodyBytes = body.size()}).isResponse(200, body));
}

TEST_F(QtTransferTest, AByteMoreIsAnErrorWithAndWithoutAnAnnouncedLength) {
  const std::string body(100'001, 'x');

  EXPECT_TRUE(answered(answers::ok(body), {.bodyBytes = body.size() - 1}).isError());
  EXPECT_TRUE(answered(answers::okUntilClosed(body), {.bodyBytes = body.size() - 1}).isError());
}

TEST_F(QtTransferTest, AnAnnouncedLengthIsRefusedBeforeTheBodyComes) {
  const auto promise = "HTTP/1.1 200 OK\r\nContent-Length: 67108865\r\n\r\n";

  EXPECT_TRUE(answered(answers::bytes(promise)).isError());
}

TEST_F(QtTransferTest, AnEndlessBodyIsBrokenOffAndItsConnectionClosed) {
  QtTransfer transfer;

  EXPECT_TRUE(fetched(transfer, server_.serve("/picture", answers::endless())).isError());
  EXPECT_TRUE(server_.waitForConnections(0));
}

// The end.

// Tells on which thread a completion that owns it was destroyed.
std::shared_ptr<int> tellingItsEnd(std::thread::id& thread) {
  return {new int(0), [&thread](const int* number) {
            delete number;
            thread = std::this_thread::get_id();
          }};
}

TEST_F(QtTransferTest, WhatIsUnderWayAtTheEndIsGivenUpWithinASecond) {
  std::atomic<int> calls = 0;
  auto transfer = std::make_unique<QtTransfer>();
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

TEST_F(QtTransferTest, ACompletionThatIsGivenUpEndsOnTheMainThread) {
  std::thread::id thread;
  auto transfer = std::make_unique<QtTransfer>();
  transfer->start(server_.serve("/picture", answers::neverAnswers()),
                  [owned = tellingItsEnd(thread)](auto...) { FAIL() << "called"; });
  ASSERT_TRUE(server_.waitForRequests(1));

  transfer.reset();

  EXPECT_EQ(thread, std::this_thread::get_id());
}

TEST_F(QtTransferTest, ACompletionIsNotLostWhenTheEndComesRightAfterTheStart) {
  const std::string url = server_.serve("/picture", answers::neverAnswers());
  for (int round = 0; round < 100; ++round) {
    std::thread::id thread;
    {
      QtTransfer transfer;
      transfer.start(url, [owned = tellingItsEnd(thread)](auto...) { FAIL() << "called"; });
    }
    ASSERT_EQ(thread, std::this_thread::get_id());
  }
}

}  // namespace
}  // namespace leafund
