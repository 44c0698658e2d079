#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/graphics/JpegSegments.h"
#include "tests/platform/PictureBytes.h"

namespace leafund {
namespace {

using namespace picturebytes;

std::string part(unsigned number, unsigned count, const std::string& content) {
  return segment(0xE2, std::string("ICC_PROFILE\0", 12) + byte(number) + byte(count) + content);
}

std::string profileOf(const std::string& segments) { return jpegProfile(jpeg(2, 2, segments)); }

TEST(JpegSegmentsTest, EachIsFoundWithWhatTheBodyHasOfIt) {
  const std::string body = jpegStart + segment(0xE0, "one") +
                           std::string("stray\xFF\0\xFF\x01", 9) + segment(0xFE, "") +
                           segment(0xFE, "three").substr(0, 6);
  std::vector<std::string> found;
  JpegSegments segments(body);
  while (const auto each = segments.next()) found.emplace_back(each->content);
  EXPECT_EQ(found, (std::vector<std::string>{"one", "", "th"}));
  EXPECT_FALSE(segments.next());
}

TEST(JpegSegmentsTest, TheyEndAtTheFirstScan) {
  const std::string body = jpegStart + segment(0xFE, "") + scan() + segment(0xFE, "");
  JpegSegments segments(body);
  EXPECT_TRUE(segments.next());
  EXPECT_FALSE(segments.next());
  EXPECT_FALSE(segments.next());
}

TEST(JpegSegmentsTest, AProfileIsPutTogetherInTheOrderOfItsNumbers) {
  EXPECT_EQ(profileOf(part(1, 1, "whole")), "whole");
  EXPECT_EQ(profileOf(part(2, 3, "b") + segment(0xE2, "MPF") + part(3, 3, "c") + part(1, 3, "a")),
            "abc");
  std::string parts;
  for (unsigned number = 1; number <= 255; ++number) parts += part(number, 255, "x");
  EXPECT_EQ(profileOf(parts), std::string(255, 'x'));
}

TEST(JpegSegmentsTest, AProfileOfWhichAPartIsMissingOrThereTwiceIsNone) {
  EXPECT_EQ(profileOf(""), "");
  EXPECT_EQ(profileOf(part(1, 2, "a")), "");
  EXPECT_EQ(profileOf(part(2, 2, "b")), "");
  EXPECT_EQ(profileOf(part(1, 1, "a") + part(1, 1, "a")), "");
  EXPECT_EQ(profileOf(part(0, 1, "a")), "");
  EXPECT_EQ(profileOf(part(1, 0, "a")), "");
  EXPECT_EQ(profileOf(part(1, 1, "a") + part(2, 2, "b")), "");
  EXPECT_EQ(profileOf(part(1, 2, "a") + part(2, 1, "b")), "");
}

TEST(JpegSegmentsTest, ASegmentTooShortForANumberIsNoPart) {
  const std::string name("ICC_PROFILE\0", 12);
  EXPECT_EQ(profileOf(segment(0xE2, name) + segment(0xE2, name + "\1") + part(1, 1, "a")), "a");
}

}  // namespace
}  // namespace leafund
