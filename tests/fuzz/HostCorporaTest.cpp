#include <gtest/gtest.h>

#include <cstdio>
#include <map>

#include "platform/graphics/PictureHeader.h"
#include "tests/fuzz/CorpusFiles.h"
#include "tests/fuzz/Fuzzers.h"

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
}

TEST(HostCorporaTest, FetchesEndOnceWhateverTheHostAnswers) { holdFor("stream", fuzz::stream); }

}  // namespace
}  // namespace leafund
