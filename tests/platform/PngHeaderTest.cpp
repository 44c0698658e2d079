#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>

#include "platform/graphics/PngHeader.h"
#include "tests/platform/PictureBytes.h"

namespace leafund {
namespace {

using namespace picturebytes;

const std::string pixels = chunk("IDAT", "pixels");
const std::string palette = chunk("PLTE", "rgb");

bool isReadable(const std::string& afterStart) {
  return pngSize(pngStart + afterStart).has_value();
}

TEST(PngHeaderTest, TellsWidthAndHeightApart) {
  const auto size = pngSize(png(3, 2));
  ASSERT_TRUE(size);
  EXPECT_EQ(size->width, 3U);
  EXPECT_EQ(size->height, 2U);
}

TEST(PngHeaderTest, TakesTheFifteenPairsOfDepthAndColourType) {
  const std::set<std::pair<unsigned, unsigned>> pairs{{1, 0}, {2, 0},  {4, 0},  {8, 0}, {16, 0},
                                                      {8, 2}, {16, 2}, {1, 3},  {2, 3}, {4, 3},
                                                      {8, 3}, {8, 4},  {16, 4}, {8, 6}, {16, 6}};
  for (unsigned depth = 0; depth <= 32; ++depth) {
    for (unsigned colourType = 0; colourType <= 8; ++colourType) {
      EXPECT_EQ(isReadable(imageHeader(2, 2, depth, colourType) + palette + pixels),
                pairs.contains({depth, colourType}))
          << depth << " " << colourType;
    }
  }
}

TEST(PngHeaderTest, RefusesUnknownMethods) {
  const std::string start = big32(2) + big32(2) + byte(8) + byte(2);
  const auto withMethods = [&](unsigned compression, unsigned filter, unsigned interlace) {
    return chunk("IHDR", start + byte(compression) + byte(filter) + byte(interlace)) + pixels;
  };
  EXPECT_TRUE(isReadable(withMethods(0, 0, 0)));
  EXPECT_TRUE(isReadable(withMethods(0, 0, 1)));
  EXPECT_FALSE(isReadable(withMethods(1, 0, 0)));
  EXPECT_FALSE(isReadable(withMethods(0, 1, 0)));
  EXPECT_FALSE(isReadable(withMethods(0, 0, 2)));
}

TEST(PngHeaderTest, RefusesADamagedImageHeader) {
  const std::string whole = imageHeader(2, 2);
  ASSERT_TRUE(isReadable(whole + pixels));
  for (std::size_t at = 0; at < whole.size(); ++at) {
    std::string damaged = whole;
    damaged[at] = static_cast<char>(damaged[at] ^ 1);
    EXPECT_FALSE(isReadable(damaged + pixels)) << at;
  }
  EXPECT_FALSE(isReadable(chunk("IHDR", std::string(12, '\1')) + pixels));
}

TEST(PngHeaderTest, PassesOverAncillaryChunksWhateverTheyHold) {
  const std::string damaged = big32(3) + "tEXtabc" + big32(0);
  EXPECT_TRUE(isReadable(imageHeader(2, 2) + chunk("gAMA", "") + damaged + pixels));
}

TEST(PngHeaderTest, RefusesCriticalChunksItDoesNotKnow) {
  EXPECT_FALSE(isReadable(imageHeader(2, 2) + chunk("WHAT", "") + pixels));
  EXPECT_FALSE(isReadable(imageHeader(2, 2) + imageHeader(2, 2) + pixels));
  EXPECT_FALSE(isReadable(imageHeader(2, 2) + chunk("IEND", "") + pixels));
  EXPECT_FALSE(isReadable(imageHeader(2, 2) + chunk("t3xt", "") + pixels));
}

TEST(PngHeaderTest, ColoursByNumberNeedAPalette) {
  const std::string header = imageHeader(2, 2, 8, 3);
  EXPECT_TRUE(isReadable(header + palette + pixels));
  EXPECT_TRUE(isReadable(header + chunk("PLTE", std::string(768, 'c')) + pixels));
  EXPECT_FALSE(isReadable(header + pixels));
  EXPECT_FALSE(isReadable(header + pixels + palette));
  EXPECT_FALSE(isReadable(header + chunk("PLTE", "") + pixels));
  EXPECT_FALSE(isReadable(header + chunk("PLTE", "rg") + pixels));
  EXPECT_FALSE(isReadable(header + chunk("PLTE", std::string(771, 'c')) + pixels));
  EXPECT_FALSE(isReadable(header + big32(3) + "PLTErgb" + big32(0) + pixels)) << "wrong checksum";
}

TEST(PngHeaderTest, RefusesAChunkLongerThanTheBody) {
  EXPECT_FALSE(isReadable(imageHeader(2, 2) + big32(1000) + "tEXt" + pixels));
  EXPECT_FALSE(isReadable(imageHeader(2, 2) + big32(0x7FFFFFFF) + "tEXt" + pixels));
  EXPECT_FALSE(isReadable(imageHeader(2, 2) + big32(0xFFFFFFFF) + "tEXt" + pixels));
  EXPECT_FALSE(isReadable(imageHeader(2, 2) + big32(0x80000000) + "IDAT"));
}

TEST(PngHeaderTest, TheChunksThatAreThereWholeEndWhereOneIsCut) {
  const std::string first = pngStart + imageHeader(2, 2) + pixels;
  const std::string whole = first + chunk("tEXt", "a") + chunk("IEND", "");
  EXPECT_EQ(pngWholeChunks(whole), whole);
  EXPECT_EQ(pngWholeChunks(whole + big32(0x7FFFFFFF) + "tEXt"), whole);
  EXPECT_EQ(pngWholeChunks(whole + big32(0xFFFFFFFF) + "tEXt" + whole), whole);
  EXPECT_EQ(pngWholeChunks(whole + "\x01\x02"), whole);
  EXPECT_EQ(pngWholeChunks(whole.substr(0, first.size() + 12)), first) << "a byte is missing";
  EXPECT_EQ(pngWholeChunks(whole.substr(0, first.size() + 13)), first + chunk("tEXt", "a"));
  EXPECT_EQ(pngWholeChunks(pngStart), pngStart);
}

}  // namespace
}  // namespace leafund
