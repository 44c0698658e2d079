#include <gtest/gtest.h>

#include <cstdio>
#include <future>
#include <map>

#include "platform/curl/CurlTransfer.h"
#include "platform/graphics/PictureHeader.h"
#include "tests/fuzz/AnsweringHost.h"
#include "tests/fuzz/CorpusFiles.h"
#include "tests/fuzz/Fuzzers.h"
#include "tests/fuzz/NetworkFence.h"

namespace leafund {
namespace {

// A broken promise ends the process; the last line written before it names the input.
void holdFor(const std::string& fuzzer, void (*promises)(std::string_view)) {
  const auto files = fuzz::corpus(fuzzer);
  EXPECT_GE(files.size(), 40U);
  for (const auto& [name, bytes] : files) {
    std::fprintf(stderr, "%s\n", name.c_str());
    promises(bytes);
  }
}

TEST(HostCorporaTest, PicturesAreMadeAsTheirHeadersSay) { holdFor("picture", fuzz::picture); }

TEST(HostCorporaTest, EveryFormatIsAmongThePictures) {
  std::map<PictureHeader::Format, int> pictures;
  for (const auto& file : fuzz::corpus("picture")) {
    if (const auto header = readPictureHeader(file.bytes)) ++pictures[header->format];
  }
  EXPECT_GE(pictures[PictureHeader::Format::JPEG], 10);
  EXPECT_GE(pictures[PictureHeader::Format::PNG], 9);
  EXPECT_GE(pictures[PictureHeader::Format::GIF], 7);
  EXPECT_GE(pictures[PictureHeader::Format::WebP], 7);
}

// Port 9 answers nobody, and the name would have to be looked up.
TEST(NetworkFenceTest, AFetchFromAnotherPortLandsOnTheFencedOneAndOneByNameNowhere) {
  fuzz::AnsweringHost host;
  fuzz::fenceIn(host.port());
  fuzz::AnswerScript script("");
  host.begin(script);
  for (const auto& [address, connections] :
       std::map<std::string, std::size_t>{{"http://127.0.0.1:9/", 1}, {"http://name.test/", 0}}) {
    const std::size_t before = host.connections();
    CurlTransfer transfer({.idle = std::chrono::milliseconds{300}});
    std::promise<void> done;
    transfer.start(address, [&](auto...) { done.set_value(); });
    const auto end = done.get_future();
    while (end.wait_for(std::chrono::milliseconds{1}) != std::future_status::ready) host.serve(-1);
    EXPECT_EQ(host.connections() - before, connections) << address;
  }
}

TEST(HostCorporaTest, FetchesEndOnceWhateverTheHostAnswers) { holdFor("stream", fuzz::stream); }

}  // namespace
}  // namespace leafund
