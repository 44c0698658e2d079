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
  unsigned longestSide;  // that its header can tell
  std::function<std::string(unsigned, unsigned)> body;
};

const std::vector<Kind> kinds{
    {Format::JPEG, 65535, [](unsigned width, unsigned height) { return jpeg(width, height); }},
    {Format::PNG, 0xFFFFFFFF, png},
    {Format::GIF, 65535, gif},
    {Format::WebP, 16383, lossyWebP},
    {Format::WebP, 16384, losslessWebP},
    {Format::WebP, 1U << 24U,
     [](unsigned width, unsigned height) { return extendedWebP(width, height); }}};

TEST(PictureHeaderTest, TellsFormatAndSize) {
  for (const Kind& kind : kinds) {
    const auto header = readPictureHeader(kind.body(640, 480));
    ASSERT_TRUE(header);
    EXPECT_EQ(header->format, kind.format);
    EXPECT_EQ(header->width, 640);
    EXPECT_EQ(header->height, 480);
    EXPECT_EQ(header->orientation, 1);
  }
}

TEST(PictureHeaderTest, SidesAre1To65535) {
  for (const Kind& kind : kinds) {
    for (const unsigned side : {1U, 2U, 16383U, 16384U, 65535U, 65536U, 1U << 24U, 0xFFFFFFFFU}) {
      if (side > kind.longestSide) continue;
      EXPECT_EQ(readPictureHeader(kind.body(side, 3)).has_value(), side <= 65535) << side;
      EXPECT_EQ(readPictureHeader(kind.body(3, side)).has_value(), side <= 65535) << side;
      EXPECT_EQ(readPictureHeader(kind.body(side, side)).has_value(), side <= 65535) << side;
    }
  }
}

TEST(PictureHeaderTest, ASideOfZeroIsNoPicture) {
  for (const auto& body : {jpeg(0, 10), jpeg(10, 0), png(0, 10), png(10, 0), gif(0, 10), gif(10, 0),
                           lossyWebP(0, 10), lossyWebP(10, 0)}) {
    EXPECT_FALSE(readPictureHeader(body));
  }
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
           "RIFF\x24\0\0\0WAVEfmt \x10\0\0\0\1\0\1\0\x44\xAC\0\0"sv,
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
TEST(PictureHeaderTest, IsAPictureFromTheEndOfItsSizeOn) {
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
  EXPECT_EQ(shortestPicture(jpeg(2, 2)), jpeg(2, 2).find("\xFF\xC0") + 9);
  EXPECT_EQ(shortestPicture(png(2, 2)), 24U);
  EXPECT_EQ(shortestPicture(gif(2, 2)), 10U);
  EXPECT_EQ(shortestPicture(lossyWebP(2, 2)), 30U);
  EXPECT_EQ(shortestPicture(losslessWebP(2, 2)), 25U);
  EXPECT_EQ(shortestPicture(extendedWebP(2, 2)), 30U);
}

TEST(PictureHeaderTest, EveryKindOfJpegFrameTellsASize) {
  for (unsigned marker = 0xC0; marker <= 0xCF; ++marker) {
    const bool isFrame = marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
    const std::string body = jpegStart + frame(marker, 5, 4) + scan();
    EXPECT_EQ(readPictureHeader(body).has_value(), isFrame) << marker;
  }
}

TEST(PictureHeaderTest, TheFirstFrameBeforeTheFirstScanCounts) {
  const auto first = readPictureHeader(jpegStart + frame(0xC0, 5, 4) + frame(0xC0, 7, 6) + scan());
  ASSERT_TRUE(first);
  EXPECT_EQ(first->width, 5);
  EXPECT_FALSE(readPictureHeader(jpegStart + scan() + frame(0xC0, 5, 4)));
  EXPECT_FALSE(readPictureHeader(jpegStart + "\xFF\xD9" + frame(0xC0, 5, 4)));
}

TEST(PictureHeaderTest, JpegSegmentsThatDecodersPassOverDoNotMatter) {
  const std::string rest = frame(0xC0, 5, 4) + scan();
  for (const std::string& oddity :
       {std::string("\xFF\xFE\0\0", 4), std::string("\xFF\xFE\0\1", 4),
        std::string("\xFF\xFE\0\2", 4), std::string("\xFF\xFF\xFF"), std::string("\xFF\x01"),
        std::string("\xFF\xD0\xFF\xD8"), segment(0xFE, "stray") + "between", segment(0xE1, "Exif"),
        segment(0xC4, "broken")}) {
    EXPECT_TRUE(readPictureHeader(jpegStart + segment(0xE0, "JFIF") + oddity + rest)) << oddity;
  }
}

TEST(PictureHeaderTest, AnyVersionOfGifIsAPicture) {
  for (const std::string version : {"GIF87a", "GIF89a", "GIF89v", "GIF8\r\n"}) {
    EXPECT_TRUE(readPictureHeader(version + gif(2, 2).substr(6)));
  }
  EXPECT_FALSE(readPictureHeader("GIF79a" + gif(2, 2).substr(6)));
}

TEST(PictureHeaderTest, APngBeginsWithItsHeader) {
  EXPECT_FALSE(readPictureHeader(pngStart + chunk("tEXt", "a") + imageHeader(2, 2)));
}

TEST(PictureHeaderTest, OnlyAKeyFrameOfAWebPTellsASize) {
  std::string body = lossyWebP(2, 2);
  body[body.find('\x9D')] = '\x9C';
  EXPECT_FALSE(readPictureHeader(body));
  body = losslessWebP(2, 2);
  body[body.find('\x2F')] = '\x2E';
  EXPECT_FALSE(readPictureHeader(body));
  EXPECT_FALSE(readPictureHeader(webp(riffChunk("ALPH", std::string(20, '\0')))));
}

std::string times(int count, const std::string& part) {
  std::string parts;
  parts.reserve(part.size() * static_cast<std::size_t>(count));
  for (int each = 0; each < count; ++each) parts += part;
  return parts;
}

// A body of 64 MB holds 33 million markers, which took the window's thread 180 ms.
TEST(PictureHeaderTest, OfAJpegTheFirstMillionMarkersAreLookedAt) {
  for (const std::string& marker : {segment(0xFE, ""), segment(0xE1, "Exif"),
                                    std::string("\xFF\x01"), std::string("x\xFF\0", 3)}) {
    const std::string markers = jpegStart + "\xFF\x01" + times(999'998, marker);
    EXPECT_TRUE(readPictureHeader(markers + frame(0xC0, 5, 4))) << marker;
    EXPECT_FALSE(readPictureHeader(markers + marker + frame(0xC0, 5, 4))) << marker;
  }
}

TEST(PictureHeaderTest, FillAndStrayBytesAreNoMarkers) {
  for (const char byte : {'\xFF', 'x'}) {
    const std::string bytes = jpegStart + segment(0xFE, "") + std::string(2'000'000, byte);
    EXPECT_TRUE(readPictureHeader(bytes + frame(0xC0, 5, 4)));
  }
}

TEST(PictureHeaderTest, InTheFirstMillionChunksAnOrientationIsLookedFor) {
  const auto pngOf = [](int others) {
    return pngStart + imageHeader(2, 2) + times(others, chunk("teXt", "")) + chunk("eXIf", exif(6));
  };
  const auto webpOf = [](int others) {
    return extendedWebP(2, 2, times(others, riffChunk("XMP ", "")) + riffChunk("EXIF", exif(6)));
  };
  EXPECT_EQ(readPictureHeader(pngOf(999'998))->orientation, 6);
  EXPECT_EQ(readPictureHeader(pngOf(999'999))->orientation, 1);
  EXPECT_EQ(readPictureHeader(webpOf(999'999))->orientation, 6);
  EXPECT_EQ(readPictureHeader(webpOf(1'000'000))->orientation, 1);
}

}  // namespace
}  // namespace leafund
