#include <gtest/gtest.h>

#include <string>

#include "platform/graphics/PictureHeader.h"
#include "platform/graphics/UIImage.h"
#include "tests/platform/PictureBytes.h"

namespace leafund {
namespace {

using namespace picturebytes;

int orientationOf(const std::string& body) { return readPictureHeader(body).value().orientation; }

std::string jpegWith(const std::string& content) { return jpeg(5, 4, exifSegment(content)); }

std::string pngWith(const std::string& content) {
  return pngStart + imageHeader(5, 4) + chunk("eXIf", content) + chunk("IDAT", "pixels");
}

std::string webpWith(const std::string& content) {
  return extendedWebP(5, 4, riffChunk("VP8 ", "odd") + riffChunk("EXIF", content));
}

TEST(OrientationTest, AllEightAreReadFromEveryFormatInBothByteOrders) {
  for (unsigned orientation = 1; orientation <= 8; ++orientation) {
    for (const bool big : {false, true}) {
      const std::string content = exif(orientation, big);
      for (const auto& body : {jpegWith(content), pngWith(content), webpWith(content)}) {
        EXPECT_EQ(orientationOf(body), static_cast<int>(orientation));
      }
    }
  }
}

TEST(OrientationTest, WhatIsNoOrientationLeavesThePictureAsItIs) {
  for (const std::string& content :
       {std::string(), std::string("II"), std::string("II*\0", 4), exif(0), exif(9), exif(6 << 8),
        exif(6, false, 0x0113), exif(6, false, 0x0112, 4), "XX" + exif(6).substr(2),
        exif(6).substr(0, 21), std::string("II*\0\xFF\xFF\xFF\xFF\1\0", 10)}) {
    EXPECT_EQ(orientationOf(jpegWith(content)), 1);
    EXPECT_EQ(orientationOf(pngWith(content)), 1);
    EXPECT_EQ(orientationOf(webpWith(content)), 1);
  }
}

TEST(OrientationTest, ItIsFoundBehindThePixelsOfAPngAndBehindTheFrameOfAJpeg) {
  EXPECT_EQ(orientationOf(png(5, 4) + chunk("eXIf", exif(3))), 3);
  EXPECT_EQ(orientationOf(jpegStart + frame(0xC0, 5, 4) + exifSegment(exif(3)) + scan()), 3);
  EXPECT_EQ(orientationOf(jpegStart + frame(0xC0, 5, 4) + scan() + exifSegment(exif(3))), 1);
  // The first counts, whatever it says: to look into all that a body can hold takes long.
  const std::string silent = exif(3, false, 0x0113);
  EXPECT_EQ(
      orientationOf(jpegStart + exifSegment(silent) + exifSegment(exif(3)) + frame(0xC0, 5, 4)), 1);
  EXPECT_EQ(
      orientationOf(extendedWebP(2, 2, riffChunk("EXIF", silent) + riffChunk("EXIF", exif(3)))), 1);
}

TEST(OrientationTest, SomeWritersPutTheJpegsWordBeforeItInAWebP) {
  EXPECT_EQ(orientationOf(webpWith(std::string("Exif\0\0", 6) + exif(8))), 8);
}

TEST(OrientationTest, AnImagesSizeIsThatOfTheUprightPicture) {
  for (unsigned orientation = 1; orientation <= 8; ++orientation) {
    const auto image =
        UIImage::initWithData(std::make_shared<const std::string>(jpegWith(exif(orientation))));
    const CGSize upright = orientation < 5 ? CGSize{5, 4} : CGSize{4, 5};
    EXPECT_EQ(image->size(), upright) << orientation;
  }
}

}  // namespace
}  // namespace leafund
