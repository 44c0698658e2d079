#include <sys/resource.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "tests/support/LoweredLimit.h"
#include "tests/support/ProbeHost.h"
#include "tests/window/TransferFixture.h"

namespace leafund {
namespace {

rlim_t addressSpaceInUse() {
  rlim_t pages = 0;
  std::ifstream("/proc/self/statm") >> pages;
  return pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
}

// What the machine may be short of when the first fetch is made.
class TransferShortageTest : public CurlTransferTest {
 protected:
  void SetUp() override {
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP()
        << "the sanitizer itself needs memory, and a descriptor to look at an object's type";
#endif
  }

  ProbeHost host_;
};

TEST_F(TransferShortageTest, WithoutAThreadTheFetchIsAnErrorOnTheMainQueueAndTheNextOneTriesAgain) {
  server_.serve("/picture", answers::ok("bytes"));
  CurlTransfer transfer;
  std::future<Outcome> first;
  {
    // A thread takes a stack of some megabytes.
    const LoweredLimit space(RLIMIT_AS, addressSpaceInUse() + (1U << 20U));
    first = started(transfer, server_.address("/picture"));
  }

  EXPECT_EQ(first.wait_for(0s), std::future_status::timeout);
  ASSERT_EQ(host_.steps.size(), 1U);
  host_.steps[0]();
  EXPECT_TRUE(outcomeOf(std::move(first)).isError());
  EXPECT_TRUE(fetched(transfer, server_.address("/picture")).isResponse(200, "bytes"));
}

TEST_F(TransferShortageTest, WithoutMemoryForABodyTheFetchIsAnErrorAndTheNextOneTriesAgain) {
#ifdef __SANITIZE_THREAD__
  GTEST_SKIP() << "the thread sanitizer ends a program that finds no memory";
#endif
  server_.serve("/picture", answers::ok("bytes"));
  server_.serve("/endless", answers::endless());
  CurlTransfer transfer;
  ASSERT_TRUE(fetched(transfer, server_.address("/picture")).isResponse(200, "bytes"));
  {
    const LoweredLimit space(RLIMIT_AS, addressSpaceInUse() + (12U << 20U));
    EXPECT_TRUE(fetched(transfer, server_.address("/endless")).isError());
  }

  EXPECT_TRUE(fetched(transfer, server_.address("/picture")).isResponse(200, "bytes"));
}

TEST_F(TransferShortageTest, WithoutMemoryForATransferEachFetchIsAnError) {
  CurlTransfer transfer(CurlTransfer::Limits{}, LEAFUND_CURL_WITHOUT_HANDLES);
  std::future<Outcome> first = started(transfer, server_.address("/picture"));
  std::future<Outcome> second = started(transfer, server_.address("/picture"));
  for (auto* fetch : {&first, &second}) {
    const auto error = outcomeOf(std::move(*fetch)).error;
    ASSERT_TRUE(error);
    EXPECT_EQ(error->reason, "no memory");
  }
}

TEST_F(TransferShortageTest, WithoutADescriptorTheFetchIsAnErrorAndTheNextOneTriesAgain) {
  server_.serve("/picture", answers::ok("bytes"));
  CurlTransfer transfer;
  for (rlim_t spare = 0; spare < 4; ++spare) {
    const LoweredLimit descriptors(RLIMIT_NOFILE, descriptorsInUse() + spare);
    EXPECT_TRUE(fetched(transfer, "http://127.0.0.1:1/").isError()) << spare;
  }

  EXPECT_TRUE(fetched(transfer, server_.address("/picture")).isResponse(200, "bytes"));
}

TEST_F(TransferShortageTest, TheEndIsAtOnceThoughThereWasNoDescriptor) {
  const auto start = std::chrono::steady_clock::now();
  {
    CurlTransfer transfer;
    const LoweredLimit descriptors(RLIMIT_NOFILE, descriptorsInUse());
    EXPECT_TRUE(fetched(transfer, "http://127.0.0.1:1/").isError());
  }
  EXPECT_LT(std::chrono::steady_clock::now() - start, 10s);
}

TEST_F(CurlTransferTest, NoKeysAreLoggedWhateverTheEnvironmentSays) {
  const auto log =
      std::filesystem::temp_directory_path() / ("leafund-keys-" + std::to_string(getpid()));
  setenv("SSLKEYLOGFILE", log.c_str(), 1);
  const PictureServer secret(PictureServer::Speaks::Tls, identityWith(Certificate::SelfSigned));
  CurlTransfer transfer;

  EXPECT_TRUE(fetched(transfer, secret.address("/picture")).isError());

  EXPECT_FALSE(std::filesystem::exists(log));
  std::filesystem::remove(log);
}

}  // namespace
}  // namespace leafund
