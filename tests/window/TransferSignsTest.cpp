#include <QTcpSocket>
#include <QTimer>

#include "tests/support/PictureAnswersProtocol.h"
#include "tests/window/TransferFixture.h"

namespace leafund {
namespace {

// A line of the head at a time.
PictureServer::Answer dripHead(int lines, std::chrono::milliseconds pause) {
  return [lines, pause](QTcpSocket& client) {
    client.write("HTTP/1.1 200 OK\r\nContent-Length: 5\r\n");
    auto* timer = new QTimer(&client);
    QObject::connect(timer, &QTimer::timeout, &client, [&client, timer, left = lines]() mutable {
      if (--left > 0) {
        client.write("X-More: to come\r\n");
        return;
      }
      client.write("\r\nbytes");
      timer->stop();
    });
    timer->start(pause);
  };
}

TEST_F(CurlTransferTest, ASlowHeadMayTakeLongerThanTheIdleTime) {
  EXPECT_TRUE(answered(dripHead(14, 100ms), {.idle = 1s}).isResponse(200, "bytes"));
}

// What fetched the quick one has then been silent for longer than the idle time.
TEST_F(CurlTransferTest, EachFetchHasItsIdleTimeToItself) {
  CurlTransfer transfer({.idle = 1s});
  const auto slow = server_.serve("/slow", dripHead(14, 100ms));
  const auto quick = server_.serve("/quick", answers::ok("bytes"));
  auto first = started(transfer, slow);
  EXPECT_TRUE(fetched(transfer, quick).isResponse(200, "bytes"));
  EXPECT_TRUE(outcomeOf(std::move(first)).isResponse(200, "bytes"));
  auto second = started(transfer, slow);
  EXPECT_TRUE(fetched(transfer, quick).isResponse(200, "bytes"));
  EXPECT_TRUE(outcomeOf(std::move(second)).isResponse(200, "bytes"));
}

// What was used for one answer is used for the next.
TEST_F(CurlTransferTest, EachOfManyAnswersMayHaveALongHead) {
  CurlTransfer transfer;
  std::string wide;
  for (int i = 0; i < 200; ++i) wide += "X-Filler: " + std::string(1012, 'x') + "\r\n";  // 1 KB
  const auto lines = server_.serve("/lines", answers::manyHeaders("bytes", 4'000));
  const auto bytes = server_.serve("/bytes", answers::under("HTTP/1.1 200 OK", "bytes", wide));
  for (int i = 0; i < 3; ++i) {
    EXPECT_TRUE(fetched(transfer, lines).isResponse(200, "bytes")) << i;
    EXPECT_TRUE(fetched(transfer, bytes).isResponse(200, "bytes")) << i;
  }
}

TEST_F(CurlTransferTest, WhoWaitsBehindASilentHostIsIdleTooAndIsNeverAsked) {
  CurlTransfer transfer({.idle = 1s});
  // They all begin at once, however busy the machine is: who begins later is idle later.
  std::promise<void> all;
  transfer.start(server_.serve("/first", answers::ok("bytes")),
                 [added = all.get_future().share()](auto&&...) { added.wait(); });
  const auto url = server_.serve("/picture", answers::neverAnswers());
  std::vector<std::future<Outcome>> outcomes;
  for (int i = 0; i < 9; ++i) outcomes.push_back(started(transfer, url));
  all.set_value();
  for (auto& outcome : outcomes) EXPECT_TRUE(outcomeOf(std::move(outcome)).isError());
  EXPECT_EQ(server_.requests().size(), 1U + 6U);
}

}  // namespace
}  // namespace leafund
