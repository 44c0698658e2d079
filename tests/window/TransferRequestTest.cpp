#include "tests/window/TransferFixture.h"

namespace leafund {
namespace {

// What is sent.

TEST_F(CurlTransferTest, AFetchIsOneGet) {
  answered(answers::ok("bytes"));

  ASSERT_EQ(server_.requests().size(), 1U);
  EXPECT_EQ(server_.requests()[0].method, "GET");
  EXPECT_EQ(server_.requests()[0].path, "/picture");
}

TEST_F(CurlTransferTest, TheUserAgentIsTheSameEverywhere) {
  EXPECT_EQ(sentHeaders().at("user-agent"), "Leafund");
}

TEST_F(CurlTransferTest, BodiesAreAskedForAsTheyAre) {
  EXPECT_EQ(sentHeaders().at("accept-encoding"), "identity");
}

TEST_F(CurlTransferTest, NothingElseIsSent) {
  auto headers = sentHeaders();
  for (const char* known : {"host", "user-agent", "accept-encoding"}) {
    EXPECT_EQ(headers.erase(known), 1U) << known;
  }
  for (const auto& [name, value] : headers) ADD_FAILURE() << name << ": " << value;
}

TEST_F(CurlTransferTest, NoProxyOfTheEnvironmentIsAsked) {
  for (const char* variable : {"http_proxy", "all_proxy", "ALL_PROXY"}) {
    setenv(variable, "http://127.0.0.1:9", 1);
  }
  unsetenv("no_proxy");
  unsetenv("NO_PROXY");
  EXPECT_TRUE(answered(answers::ok("bytes")).isResponse(200, "bytes"));
}

TEST_F(CurlTransferTest, ANameAndAPasswordInTheAddressAreNotSent) {
  CurlTransfer transfer;
  server_.serve("/picture",
                answers::status(401, "bytes", "WWW-Authenticate: Basic realm=\"x\"\r\n"));
  const std::string url = "http://wren:secret@" + server_.address("/picture").substr(7);

  EXPECT_TRUE(fetched(transfer, url).isResponse(401, "bytes"));
  ASSERT_EQ(server_.requests().size(), 1U);
  EXPECT_FALSE(server_.requests()[0].headers.contains("authorization"));
}

TEST_F(CurlTransferTest, ACookieIsNeitherKeptNorSent) {
  CurlTransfer transfer;
  const std::string url =
      server_.serve("/picture", answers::status(200, "bytes", "Set-Cookie: who=you; Path=/\r\n"));
  fetched(transfer, url);
  fetched(transfer, url);

  ASSERT_EQ(server_.requests().size(), 2U);
  EXPECT_FALSE(server_.requests()[1].headers.contains("cookie"));
}

TEST_F(CurlTransferTest, APictureIsFetchedAfreshEachTime) {
  CurlTransfer transfer;
  const std::string url = server_.serve(
      "/picture",
      answers::status(200, "bytes", "Cache-Control: max-age=3600\r\nETag: \"one\"\r\n"));
  fetched(transfer, url);
  EXPECT_TRUE(fetched(transfer, url).isResponse(200, "bytes"));

  ASSERT_EQ(server_.requests().size(), 2U);
  EXPECT_FALSE(server_.requests()[1].headers.contains("if-none-match"));
}

TEST_F(CurlTransferTest, AHostIsAskedOverAtMostSixConnections) {
  CurlTransfer transfer;
  server_.serve("/picture", answers::ok("bytes"));
  std::vector<std::future<Outcome>> fetches;
  for (int i = 0; i < 50; ++i) fetches.push_back(started(transfer, server_.address("/picture")));

  for (auto& fetch : fetches) EXPECT_TRUE(outcomeOf(std::move(fetch)).isResponse(200, "bytes"));
  EXPECT_EQ(server_.mostConnections(), 6);
}

// Which addresses are fetched.

TEST_F(CurlTransferTest, OnlyWholeWebAddressesAreFetched) {
  CurlTransfer transfer;
  for (const char* url :
       {"", "foo", "/etc/passwd", "//127.0.0.1/x", "file:///etc/passwd", "ftp://127.0.0.1/x",
        "data:image/gif;base64,R0lGODlhAQABAAAAACw=", "qrc:/x", "http:", "http://", "http:///x",
        "https:x", "http://127.0.0.1:99999/", "http://a b/",
        // Addresses by the grammar, but no name can be looked up that holds these.
        "http://a%00b/", "http://a%0Ab/", "http://a%20b/", "http://a%2Fb/", "http://a%3Ab/",
        "http://a%40b/"}) {
    EXPECT_TRUE(fetched(transfer, url).isError()) << url;
  }
}

TEST_F(CurlTransferTest, TheSchemeMayBeWrittenInCapitals) {
  server_.serve("/picture", answers::ok("bytes"));
  const std::string url = "HTTP" + server_.address("/picture").substr(4);
  CurlTransfer transfer;

  EXPECT_TRUE(fetched(transfer, url).isResponse(200, "bytes"));
}

TEST_F(CurlTransferTest, AHostThatRefusesTheConnectionIsAnError) {
  std::string url;
  {
    const PictureServer closed;
    url = closed.address("/picture");
  }
  CurlTransfer transfer;

  EXPECT_TRUE(fetched(transfer, url).isError());
}

TEST_F(CurlTransferTest, AServerThatDoesNotSpeakTlsIsAnErrorUnderHttps) {
  const std::string url =
      "https" + server_.serve("/picture", answers::ok("bytes")).substr(std::string("http").size());
  CurlTransfer transfer({.idle = 2s});

  EXPECT_TRUE(fetched(transfer, url).isError());
}

}  // namespace
}  // namespace leafund
