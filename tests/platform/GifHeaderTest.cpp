#include <gtest/gtest.h>

#include <string>

#include "platform/graphics/GifHeader.h"
#include "tests/platform/PictureBytes.h"

namespace leafund {
namespace {

using namespace picturebytes;

const std::string image = frameAt(0, 0, 2, 2) + gifPixels;

bool isReadable(const std::string& afterVersion) {
  return gifSize("GIF89a" + afterVersion).has_value();
}

TEST(GifHeaderTest, KnowsBothVersions) {
  EXPECT_TRUE(beginsAsGif("GIF87a"));
  EXPECT_TRUE(beginsAsGif("GIF89a"));
  EXPECT_FALSE(beginsAsGif("GIF88a"));
  EXPECT_FALSE(beginsAsGif("GIF89"));
  EXPECT_FALSE(beginsAsGif("gif89a"));
}

TEST(GifHeaderTest, TellsTheSizeOfTheScreenAndNotOfTheFirstImage) {
  const auto size = gifSize("GIF89a" + screen(300, 200) + frameAt(7, 8, 90, 50) + gifPixels);
  ASSERT_TRUE(size);
  EXPECT_EQ(size->width, 300U);
  EXPECT_EQ(size->height, 200U);
}

TEST(GifHeaderTest, AScreenWithoutASizeTakesTheExtentOfTheFirstImage) {
  const auto size = gifSize("GIF89a" + screen(0, 0) + frameAt(7, 8, 90, 50) + gifPixels);
  ASSERT_TRUE(size);
  EXPECT_EQ(size->width, 97U);
  EXPECT_EQ(size->height, 58U);
}

TEST(GifHeaderTest, PassesOverColourTablesOfEverySize) {
  for (unsigned bits = 0; bits < 8; ++bits) {
    const std::string table(std::size_t{6} << bits, '\x3B');
    const unsigned flags = 0x80 | bits;
    EXPECT_TRUE(isReadable(screen(2, 2, flags) + table + image)) << bits;
    EXPECT_TRUE(isReadable(screen(2, 2) + frameAt(0, 0, 2, 2, flags) + table + gifPixels)) << bits;
    EXPECT_FALSE(isReadable(screen(2, 2, flags) + table)) << bits;
  }
  EXPECT_FALSE(isReadable(screen(2, 2, 0x87) + image)) << "cut short in the table";
}

TEST(GifHeaderTest, PassesOverExtensions) {
  const std::string control = "\x21\xF9\x04" + std::string(4, '\0') + byte(0);
  const std::string loop = "\x21\xFF\x0BNETSCAPE2.0\x03\x01" + std::string(2, '\0') + byte(0);
  const std::string empty = "\x21\xFE" + byte(0);
  const std::string unknown = "\x21\x77\x01x\x02yz" + byte(0);
  EXPECT_TRUE(isReadable(screen(2, 2) + control + loop + empty + unknown + image));
  EXPECT_FALSE(isReadable(screen(2, 2) + "\x21\xFE\x05" + image.substr(0, 3)));
  EXPECT_FALSE(isReadable(screen(2, 2) + "\x21"));
}

TEST(GifHeaderTest, RefusesABodyWithoutAnImage) {
  EXPECT_FALSE(isReadable(screen(2, 2)));
  EXPECT_FALSE(isReadable(screen(2, 2) + "\x3B"));
  EXPECT_FALSE(isReadable(screen(2, 2) + "\x3B" + image));
  EXPECT_FALSE(isReadable(screen(2, 2) + "junk" + image));
  EXPECT_FALSE(isReadable(screen(2, 2) + frameAt(0, 0, 2, 2)));
}

TEST(GifHeaderTest, HoldsCodesToTwelveBits) {
  const std::string data = byte(1) + byte(0x44) + byte(0);
  EXPECT_TRUE(isReadable(screen(2, 2) + frameAt(0, 0, 2, 2) + byte(12) + data));
  EXPECT_FALSE(isReadable(screen(2, 2) + frameAt(0, 0, 2, 2) + byte(13) + data));
}

}  // namespace
}  // namespace leafund
