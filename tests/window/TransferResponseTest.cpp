#include "tests/support/PictureAnswersProtocol.h"
#include "tests/window/TransferFixture.h"

namespace leafund {
namespace {

// What counts as a response.

TEST_F(CurlTransferTest, AWholeBodyComesAsItWasSent) {
  std::string body;
  for (unsigned i = 0; i < 300'000; ++i) body += static_cast<char>(i * 7919 >> 3 & 255);

  EXPECT_TRUE(answered(answers::ok(body)).isResponse(200, body));
}

TEST_F(CurlTransferTest, ABodyWithoutALengthEndsWithTheConnection) {
  EXPECT_TRUE(answered(answers::okUntilClosed("bytes")).isResponse(200, "bytes"));
}

TEST_F(CurlTransferTest, EveryStatusIsAResponseWithItsBody) {
  for (const int status : {200, 203, 206, 300, 305, 400, 401, 403, 404, 407, 410,
                           418, 429, 451, 499, 500, 501, 502, 503, 504, 511, 599}) {
    EXPECT_TRUE(answered(answers::status(status, "said so")).isResponse(status, "said so"))
        << status;
  }
}

TEST_F(CurlTransferTest, AnAnswerWithoutABodyIsAResponseWithAnEmptyOne) {
  for (const auto& [name, answer] : answers::answersWithoutBody()) {
    const Outcome outcome = answered(answer);
    ASSERT_FALSE(outcome.error) << name;
    EXPECT_EQ(*outcome.body, "") << name;
  }
}

TEST_F(CurlTransferTest, ABodyIsNotUnpackedWhateverItIsSaidToBe) {
  EXPECT_TRUE(answered(answers::badGzip()).isResponse(200, "no gzip"));
}

// libcurl unpacks what was packed for the way, layer upon layer, and nothing bounds that work: what
// unpacks to nothing never comes to the limit of a body.
TEST_F(CurlTransferTest, ABodyThatIsPackedForTheWayIsAnError) {
  for (const char* codings : {"deflate", "Deflate", "identity, deflate"}) {
    EXPECT_TRUE(answered(answers::packedForTheWay("bytes", codings)).isError()) << codings;
  }
  const std::string chunks = "5\r\nbytes\r\n0\r\n\r\n";
  for (const char* coding : {"chunked", "Chunked ", "identity, chunked"}) {
    const std::string said = std::string("Transfer-Encoding:  ") + coding + "\r\n";
    EXPECT_TRUE(answered(answers::withHeaders(said, chunks)).isResponse(200, "bytes")) << coding;
  }
}

TEST_F(CurlTransferTest, ABodyThatDoesNotArriveWholeIsAnError) {
  for (const auto& [name, answer] : answers::transportFaults()) {
    EXPECT_TRUE(answered(answer).isError()) << name;
  }
}

// A close that is seen before the last bytes must not pass for the end of the body.
TEST_F(CurlTransferTest, ABodyThatIsCutIsAnErrorHoweverOftenItIsTried) {
  CurlTransfer transfer;
  for (const auto& answer : {answers::shortContentLength(), answers::cutChunk()}) {
    const std::string url = server_.serve("/picture", answer);
    std::vector<std::future<Outcome>> fetches;
    for (int i = 0; i < 500; ++i) fetches.push_back(started(transfer, url));

    for (auto& fetch : fetches) EXPECT_TRUE(outcomeOf(std::move(fetch)).isError());
  }
}

TEST_F(CurlTransferTest, TwoDifferentLengthsAreAnErrorAndTheSameOneTwiceIsNot) {
  const auto said = [this](const std::string& headers) {
    return answered(answers::withHeaders(headers, "bytes"));
  };

  EXPECT_TRUE(said("Content-Length: 5\r\nContent-Length: 5\r\n").isResponse(200, "bytes"));
  for (const char* headers :
       {"Content-Length: 5\r\nContent-Length: 4\r\n", "Content-Length: 4\r\nCONTENT-LENGTH:5\r\n",
        "Content-Length: 5\r\nX: y\r\nContent-Length: 500\r\n", "Content-Length: 5, 4\r\n"}) {
    EXPECT_TRUE(said(headers).isError()) << headers;
  }
}

TEST_F(CurlTransferTest, TheLengthOfARedirectIsForgotten) {
  server_.serve("/there", answers::ok("there at last"));

  EXPECT_TRUE(answered(answers::redirect("/there")).isResponse(200, "there at last"));
}

TEST_F(CurlTransferTest, AnAnswerThatOnlySwitchesProtocolsIsAnError) {
  const auto switching = "HTTP/1.1 101 Switching Protocols\r\nUpgrade: x\r\n\r\nbytes";

  EXPECT_TRUE(answered(answers::bodyWithoutHead(switching)).isError());
}

// Redirects.

TEST_F(CurlTransferTest, EveryKindOfRedirectIsFollowed) {
  server_.serve("/there", answers::ok("there"));
  for (const int status : {301, 302, 303, 307, 308}) {
    EXPECT_TRUE(answered(answers::redirect("/there", status)).isResponse(200, "there")) << status;
  }
}

TEST_F(CurlTransferTest, ARedirectIsResolvedAgainstTheAddressThatGaveIt) {
  server_.serve("/a/b", answers::redirect("../c/d"));
  server_.serve("/c/d", answers::redirect("e?f"));
  server_.serve("/c/e?f", answers::ok("found"));
  CurlTransfer transfer;

  EXPECT_TRUE(fetched(transfer, server_.address("/a/b")).isResponse(200, "found"));
}

TEST_F(CurlTransferTest, ARedirectToAnotherServerIsFollowed) {
  PictureServer other;
  const std::string there = other.serve("/there", answers::ok("there"));

  EXPECT_TRUE(answered(answers::redirect(there)).isResponse(200, "there"));
}

TEST_F(CurlTransferTest, TwentyRedirectsAreFollowed) {
  CurlTransfer transfer;

  EXPECT_TRUE(fetched(transfer, serveHops(20)).isResponse(200, "at last"));
}

TEST_F(CurlTransferTest, TheTwentyFirstRedirectIsAnError) {
  CurlTransfer transfer;

  EXPECT_TRUE(fetched(transfer, serveHops(21)).isError());
  EXPECT_EQ(server_.requests().size(), 21U);
}

TEST_F(CurlTransferTest, ARedirectLoopIsAnError) {
  EXPECT_TRUE(answered(answers::redirect("/picture")).isError());
  EXPECT_EQ(server_.requests().size(), 21U);
}

TEST_F(CurlTransferTest, ARedirectIsFollowedOnlyToAWholeWebAddress) {
  for (const char* target :
       {"file:///etc/passwd", "ftp://127.0.0.1/", "data:,x", "http://", "http://a b/"}) {
    EXPECT_TRUE(answered(answers::redirect(target)).isError()) << target;
  }
}

TEST_F(CurlTransferTest, TheBodyOfARedirectWithoutATargetIsAResponse) {
  EXPECT_TRUE(answered(answers::redirectWithoutTarget()).isResponse(302, "nowhere"));
  EXPECT_TRUE(answered(answers::redirect("")).isResponse(302, "moved"));
}

// Limits.

TEST_F(CurlTransferTest, ASilentServerIsAnErrorAfterTheIdleTime) {
  for (const auto& [name, answer] : answers::silences()) {
    EXPECT_TRUE(answered(answer, {.idle = 300ms}).isError()) << name;
  }
}

TEST_F(CurlTransferTest, ASlowBodyMayTakeLongerThanTheIdleTime) {
  const std::string body = "fourteen bytes";

  EXPECT_TRUE(answered(answers::drip(body, 100ms), {.idle = 1s}).isResponse(200, body));
}

TEST_F(CurlTransferTest, ABodyOfTheGreatestLengthIsWhole) {
  const std::string body(100'000, 'x');

  EXPECT_TRUE(answered(answers::ok(body), {.bodyBytes = body.size()}).isResponse(200, body));
  EXPECT_TRUE(
      answered(answers::okUntilClosed(body), {.bodyBytes = body.size()}).isResponse(200, body));
}

TEST_F(CurlTransferTest, AByteMoreIsAnErrorWithAndWithoutAnAnnouncedLength) {
  const std::string body(100'001, 'x');

  EXPECT_TRUE(answered(answers::ok(body), {.bodyBytes = body.size() - 1}).isError());
  EXPECT_TRUE(answered(answers::okUntilClosed(body), {.bodyBytes = body.size() - 1}).isError());
}

TEST_F(CurlTransferTest, AnAnnouncedLengthIsRefusedBeforeTheBodyComes) {
  const auto promise = "HTTP/1.1 200 OK\r\nContent-Length: 67108865\r\n\r\n";

  EXPECT_TRUE(answered(answers::bytes(promise)).isError());
}

// The limits of a head are ours: what libcurl takes depends on its version.
TEST_F(CurlTransferTest, AHeadMayBeThreeHundredKilobytesLong) {
  const auto fields = [](int times) {
    std::string all;
    for (int i = 0; i < times; ++i) all += "X-Filler: " + std::string(1012, 'x') + "\r\n";  // 1 KB
    return answers::under("HTTP/1.1 200 OK", "bytes", all);
  };

  EXPECT_TRUE(answered(fields(299)).isResponse(200, "bytes"));
  EXPECT_TRUE(answered(fields(300)).isError());
}

TEST_F(CurlTransferTest, AHeadMayHaveFiveThousandLines) {
  // Beside its fields it has a status, a length and an empty line.
  EXPECT_TRUE(answered(answers::manyHeaders("bytes", 4997)).isResponse(200, "bytes"));
  EXPECT_TRUE(answered(answers::manyHeaders("bytes", 4998)).isError());
}

TEST_F(CurlTransferTest, TheHeadsOfAnAnswerCountTogether) {
  EXPECT_TRUE(answered(answers::interim("bytes", 2498)).isResponse(200, "bytes"));
  EXPECT_TRUE(answered(answers::interim("bytes", 2499)).isError());
}

TEST_F(CurlTransferTest, AStatusHasThreeDigits) {
  for (const char* line : {"HTTP/1.1 200", "HTTP/1.0 200 ", "HTTP/1.1 200 OK", "HTTP/1.1 200 20"}) {
    EXPECT_TRUE(answered(answers::under(line, "bytes")).isResponse(200, "bytes")) << line;
  }
  for (const char* line : {"HTTP/1.1 20 OK", "HTTP/1.1 2000 OK", "HTTP/1.1 20x OK", "HTTP/1.1 +20",
                           "HTTP/1.1  200 OK", "HTTP/1.10 200 OK", "HTTP/2 200 OK"}) {
    EXPECT_TRUE(answered(answers::under(line, "bytes")).isError()) << line;
  }
}

TEST_F(CurlTransferTest, WithoutALibraryEachFetchIsAnErrorAndTheEndIsAtOnce) {
  CurlTransfer transfer({}, "no-such-library");
  const std::string url = server_.serve("/picture", answers::ok("bytes"));

  EXPECT_TRUE(fetched(transfer, url).isError());
  auto second = started(transfer, url);
  auto third = started(transfer, url);
  EXPECT_TRUE(outcomeOf(std::move(second)).isError());
  EXPECT_TRUE(outcomeOf(std::move(third)).isError());
  EXPECT_TRUE(server_.requests().empty());
}

TEST_F(CurlTransferTest, AnEndlessBodyIsBrokenOffAndItsConnectionClosed) {
  CurlTransfer transfer;

  EXPECT_TRUE(fetched(transfer, server_.serve("/picture", answers::endless())).isError());
  EXPECT_TRUE(server_.waitForConnections(0));
}

}  // namespace
}  // namespace leafund
