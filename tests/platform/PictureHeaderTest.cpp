#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/graphics/PictureHeader.h"
#include "tests/platform/PictureBytes.h"

namespace leafund {
namespace {

using namespace picturebytes;
using namespace std::string_view_literals;
using Format = PictureHeader::Format;

struct Kind {
  Format format;
  std::function<std::string(unsigned, unsigned)> body;
};

const std::vector<Kind> kinds{{Format::JPEG, jpeg}, {Format::PNG, png}, {Format::GIF, gif}};

TEST(PictureHeaderTest, TellsFormatAndSize) {
  for (const Kind& kind : kinds) {
    const auto header = readPictureHeader(kind.body(640, 480));
    ASSERT_TRUE(header);
    EXPECT_EQ(header->format, kind.format);
    EXPECT_EQ(header->width, 640);
    EXPECT_EQ(header->height, 480);
  }
}

TEST(PictureHeaderTest, HoldsSizesToItsLimits) {
  struct Size {
    unsigned width;
    unsigned height;
    bool isPicture;
  };
  for (const Kind& kind : kinds) {
    for (const auto& [width, height, isPicture] : {
             Size{1, 1, true},
             Size{1, 16384, true},
             Size{16384, 1, true},
             Size{1, 16385, false},
             Size{16385, 1, false},
             Size{16384, 2048, true},  // 128 MB to the byte.
             Size{2048, 16384, true},
             Size{16384, 2049, false},
             Size{5792, 5792, true},
             Size{5793, 5793, false},
             Size{65000, 65000, false},
             Size{65535, 65535, false},
         }) {
      EXPECT_EQ(readPictureHeader(kind.body(width, height)).has_value(), isPicture)
          << width << "x" << height << " format " << static_cast<int>(kind.format);
    }
  }
}

TEST(PictureHeaderTest, ASideOfZeroIsNoPicture) {
  for (const Kind& kind : kinds) {
    EXPECT_FALSE(readPictureHeader(kind.body(0, 10)));
    EXPECT_FALSE(readPictureHeader(kind.body(10, 0)));
  }
}

TEST(PictureHeaderTest, SidesBeyond32BitsDoNotWrapAround) {
  EXPECT_FALSE(readPictureHeader(png(0xFFFFFFFF, 1)));
  EXPECT_FALSE(readPictureHeader(png(0x80000000, 0x80000000)));
  EXPECT_FALSE(readPictureHeader(png(0x40000001, 4)));
}

TEST(PictureHeaderTest, OtherBodiesAreNoPictures) {
  for (const auto body : {
           ""sv,
           "\0"sv,
           "<html><body>404</body></html>"sv,
           "<svg xmlns='http://www.w3.org/2000/svg' width='1' height='1'/>"sv,
           "\xFF\xD8"sv,
           "\xFF\xD8\xFF"sv,
           "\xFF\xD8\xFF\xD9"sv,
           "\x89PNG\r\n\x1A\n"sv,
           "GIF89a"sv,
           "BM\x3A\0\0\0\0\0\0\0"sv,
           "RIFF\x1A\0\0\0WEBPVP8L"sv,
       }) {
    EXPECT_FALSE(readPictureHeader(body)) << body;
  }
  EXPECT_FALSE(readPictureHeader(std::string(1'000'000, '\0')));
  EXPECT_FALSE(readPictureHeader(std::string(1'000'000, '\xFF')));
}

TEST(PictureHeaderTest, BytesBeforeThePictureMakeItNone) {
  for (const Kind& kind : kinds) {
    EXPECT_FALSE(readPictureHeader("\n" + kind.body(2, 2)));
    EXPECT_FALSE(readPictureHeader(kind.body(2, 2).substr(1)));
  }
}

// Each prefix stands in memory of its own size, where a sanitizer build sees a read past its end.
TEST(PictureHeaderTest, IsAPictureFromTheEndOfItsHeaderOn) {
  const auto shortestPicture = [](const std::string& body) {
    std::size_t shortest = 0;
    for (std::size_t size = 0; size <= body.size(); ++size) {
      const std::vector<char> prefix(body.begin(),
                                     body.begin() + static_cast<std::ptrdiff_t>(size));
      const bool isPicture = readPictureHeader({prefix.data(), prefix.size()}).has_value();
      if (isPicture && shortest == 0) shortest = size;
      EXPECT_EQ(isPicture, shortest != 0) << size;
    }
    return shortest;
  };
  EXPECT_EQ(shortestPicture(jpeg(2, 2)), jpeg(2, 2).size() - 1);
  EXPECT_EQ(shortestPicture(png(2, 2)), (pngStart + imageHeader(2, 2)).size() + 8);
  EXPECT_EQ(shortestPicture(gif(2, 2)), gif(2, 2).size() - 2);
}

TEST(PictureHeaderTest, ReadsALongHeaderInReasonableTime) {
  std::string jpegs = jpegStart;
  std::string pngs = pngStart + imageHeader(2, 2);
  std::string gifs = "GIF89a" + screen(2, 2);
  for (int round = 0; round < 500'000; ++round) {
    jpegs += segment(0xFE, "");
    pngs += chunk("teXt", "");
    gifs += "\x21\xFE\x01x" + byte(0);
  }
  EXPECT_TRUE(readPictureHeader(jpegs + jpeg(2, 2).substr(2)));
  EXPECT_TRUE(readPictureHeader(pngs + chunk("IDAT", "")));
  EXPECT_TRUE(readPictureHeader(gifs + frameAt(0, 0, 2, 2) + gifPixels));
  EXPECT_FALSE(readPictureHeader(jpegs));
  EXPECT_FALSE(readPictureHeader(pngs));
  EXPECT_FALSE(readPictureHeader(gifs));
}

}  // namespace
}  // namespace leafund
