#include <QPointer>
#include <QTcpSocket>
#include <QTimer>
#include <atomic>
#include <memory>

#include "tests/support/PictureAnswersProtocol.h"
#include "tests/window/TransferFixture.h"

namespace leafund {
namespace {

// Connections that are kept, and what comes on them behind an answer.
class TransferConnectionTest : public CurlTransferTest {
 protected:
  // The picture, and the bytes in a packet of their own: the client has them once `sent_` counts.
  PictureServer::Answer withBytesBehind(const std::string& bytes, std::chrono::milliseconds pause) {
    return [sent = sent_, bytes, pause](QTcpSocket& client) {
      answers::ok(kPicture)(client);
      client.flush();
      QTimer::singleShot(pause, [sent, bytes, kept = QPointer(&client)] {
        if (kept && kept->isOpen()) {
          kept->write(bytes.data(), static_cast<qint64>(bytes.size()));
          kept->flush();
        }
        ++*sent;
        sent->notify_all();
      });
    };
  }

  // How many of so many fetches one after the other bring the picture, each begun when all that
  // came of the one before has come.
  int picturesOneByOne(int count) {
    CurlTransfer transfer;
    int pictures = 0;
    for (int i = 0; i < count; ++i) {
      if (fetched(transfer, server_.address("/picture")).isResponse(200, kPicture)) ++pictures;
      waitUntilSent(i + 1);
    }
    return pictures;
  }

  void waitUntilSent(int count) const {
    for (int sent = *sent_; sent < count; sent = *sent_) sent_->wait(sent);
  }

  int picturesAtOnce(int count, const std::string& path = "/picture") {
    CurlTransfer transfer;
    return picturesAtOnce(transfer, count, path);
  }
  int picturesAtOnce(CurlTransfer& transfer, int count, const std::string& path) {
    std::vector<std::future<Outcome>> fetches;
    for (int i = 0; i < count; ++i) fetches.push_back(started(transfer, server_.address(path)));
    int pictures = 0;
    for (auto& fetch : fetches) {
      if (outcomeOf(std::move(fetch)).isResponse(200, kPicture)) ++pictures;
    }
    return pictures;
  }

  static inline const std::string kPicture = "picture";
  static inline const std::string kSecondAnswer =
      "HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\njunk";

 private:
  // The server may still be telling that it counted when the test has ended.
  const std::shared_ptr<std::atomic<int>> sent_ = std::make_shared<std::atomic<int>>(0);
};

TEST_F(TransferConnectionTest, AConnectionIsUsedAgainWhileItIsQuiet) {
  CurlTransfer transfer({.quiet = 0ms});
  server_.serve("/picture", answers::ok(kPicture));

  for (int i = 0; i < 20; ++i) {
    EXPECT_TRUE(fetched(transfer, server_.address("/picture")).isResponse(200, kPicture));
  }

  EXPECT_EQ(server_.connectionsSoFar(), 1);
}

TEST_F(TransferConnectionTest, TwoHundredFetchesTakeSixConnections) {
  CurlTransfer transfer({.quiet = 0ms});
  server_.serve("/picture", answers::ok(kPicture));
  fetched(transfer, server_.address("/picture"));

  EXPECT_EQ(picturesAtOnce(transfer, 200, "/picture"), 200);
  EXPECT_EQ(server_.connectionsSoFar(), 6);
}

TEST_F(TransferConnectionTest, AHostThatStaysQuietIsTrustedAfterAWhile) {
  CurlTransfer transfer;
  server_.serve("/picture", answers::ok(kPicture));
  const auto begin = std::chrono::steady_clock::now();
  int fetches = 0;
  do {
    fetched(transfer, server_.address("/picture"));
    ++fetches;
  } while (server_.connectionsSoFar() == fetches);

  EXPECT_GE(std::chrono::steady_clock::now() - begin, CurlTransfer::Limits{}.quiet);
  EXPECT_EQ(picturesAtOnce(transfer, 200, "/picture"), 200);
  EXPECT_LE(server_.connectionsSoFar(), fetches + 4);
}

TEST_F(TransferConnectionTest, ALineBreakBehindEachPictureCostsNone) {
  server_.serve("/picture", withBytesBehind("\n", 0ms));

  EXPECT_EQ(picturesOneByOne(40), 40);
}

TEST_F(TransferConnectionTest, ALineBreakBehindEachPictureOfACrowdCostsNone) {
  for (const auto pause : {0ms, 1ms, 5ms}) {
    server_.serve("/picture", withBytesBehind("\n", pause));
    EXPECT_EQ(picturesAtOnce(60), 60) << pause / 1ms;
  }
}

TEST_F(TransferConnectionTest, ASecondAnswerIsNotTakenForTheNextOne) {
  server_.serve("/picture", withBytesBehind(kSecondAnswer, 0ms));

  EXPECT_EQ(picturesOneByOne(60), 60);
}

TEST_F(TransferConnectionTest, ASecondAnswerThatComesLateIsNotTakenForTheNextOneEither) {
  for (const auto pause : {0ms, 1ms, 2ms, 5ms, 10ms, 20ms}) {
    server_.serve("/picture", withBytesBehind(kSecondAnswer, pause));
    EXPECT_EQ(picturesAtOnce(60), 60) << pause / 1ms;
  }
}

// What comes when the next request has left is taken for its answer, so some are lost at first.
// What comes later waits on the connections to be heard.
TEST_F(TransferConnectionTest, AHostThatWasTrustedAndSaysTooMuchIsFoundOutAfterAPause) {
  CurlTransfer transfer({.quiet = 0ms});
  server_.serve("/picture", answers::ok(kPicture));
  EXPECT_EQ(picturesAtOnce(transfer, 60, "/picture"), 60);
  server_.serve("/loud", withBytesBehind(kSecondAnswer, 5ms));

  RecordProperty("wrong", 60 - picturesAtOnce(transfer, 60, "/loud"));
  waitUntilSent(static_cast<int>(server_.requestsFor("/loud")));
  const int connections = server_.connectionsSoFar();

  EXPECT_EQ(picturesAtOnce(transfer, 60, "/loud"), 60);
  EXPECT_EQ(server_.connectionsSoFar(), connections + 60);
}

TEST_F(TransferConnectionTest, BytesInTheSamePacketCostNoPicture) {
  for (const std::string& rest : {std::string("\n"), kSecondAnswer}) {
    server_.serve("/picture", answers::longerThanItsLength(kPicture, rest));
    EXPECT_EQ(picturesAtOnce(60), 60) << rest;
  }
}

TEST_F(TransferConnectionTest, TheBodyOfAnAnswerThatHasNoneCostsNoPicture) {
  server_.serve("/picture", answers::ok(kPicture));
  server_.serve("/204", answers::under("HTTP/1.1 204 No Content", "HTTP/1.1 200 OK\r\n\r\n"));
  CurlTransfer transfer;

  for (int i = 0; i < 10; ++i) {
    EXPECT_TRUE(fetched(transfer, server_.address("/204")).isResponse(204, ""));
    EXPECT_TRUE(fetched(transfer, server_.address("/picture")).isResponse(200, kPicture));
  }
}

// Asked once more, a host that only talks nonsense is left alone.
TEST_F(TransferConnectionTest, WhatIsNoAnswerIsAskedForOnceMoreAtMost) {
  server_.serve("/picture", answers::ok(kPicture));
  server_.serve("/nonsense", answers::noHttp());
  CurlTransfer transfer({.quiet = 0ms});
  fetched(transfer, server_.address("/picture"));

  EXPECT_TRUE(fetched(transfer, server_.address("/nonsense")).isError());
  EXPECT_EQ(server_.requestsFor("/nonsense"), 2U);
}

}  // namespace
}  // namespace leafund
