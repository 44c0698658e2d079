#include <gtest/gtest.h>

#include <string>

#include "platform/graphics/JpegHeader.h"
#include "tests/platform/PictureBytes.h"

namespace leafund {
namespace {

using namespace picturebytes;

const std::string tables = quantisation() + huffman(0x00) + huffman(0x10);

bool isReadable(const std::string& afterStart) {
  return jpegSize(jpegStart + afterStart).has_value();
}

TEST(JpegHeaderTest, TakesSequentialAndProgressiveHuffmanFramesAlone) {
  for (unsigned marker = 0xC0; marker <= 0xCF; ++marker) {
    if (marker == 0xC4) continue;  // Not a frame.
    const bool progressive = marker == 0xC2;
    const std::string body = tables + frame(marker, 3, 2) + scan(1, progressive ? 0 : 63);
    EXPECT_EQ(isReadable(body), marker <= 0xC2) << std::hex << marker;
  }
}

TEST(JpegHeaderTest, TellsWidthAndHeightApart) {
  const auto size = jpegSize(jpegStart + tables + frame(0xC0, 3, 2) + scan());
  ASSERT_TRUE(size);
  EXPECT_EQ(size->width, 3U);
  EXPECT_EQ(size->height, 2U);
}

TEST(JpegHeaderTest, TakesOneThreeOrFourComponents) {
  for (unsigned components = 0; components <= 5; ++components) {
    const bool drawable = components == 1 || components == 3 || components == 4;
    EXPECT_EQ(isReadable(tables + frame(0xC0, 2, 2, components) + scan(components)), drawable)
        << components;
  }
}

TEST(JpegHeaderTest, TakesEightBitsASampleAlone) {
  EXPECT_TRUE(isReadable(tables + frame(0xC1, 2, 2, 1, 8) + scan()));
  EXPECT_FALSE(isReadable(tables + frame(0xC1, 2, 2, 1, 12) + scan()));
}

TEST(JpegHeaderTest, HoldsSamplingFactorsToOneToFour) {
  for (const unsigned sampling : {0x11U, 0x22U, 0x41U, 0x44U}) {
    EXPECT_TRUE(isReadable(tables + frame(0xC0, 2, 2, 1, 8, sampling) + scan())) << sampling;
  }
  for (const unsigned sampling : {0x00U, 0x01U, 0x10U, 0x51U, 0x15U}) {
    EXPECT_FALSE(isReadable(tables + frame(0xC0, 2, 2, 1, 8, sampling) + scan())) << sampling;
  }
  // Three interleaved components of four blocks each exceed the ten that one unit may have.
  EXPECT_FALSE(isReadable(tables + frame(0xC0, 2, 2, 3, 8, 0x22) + scan(3)));
  EXPECT_TRUE(isReadable(tables + frame(0xC0, 2, 2, 3, 8, 0x22) + scan(1)));
}

TEST(JpegHeaderTest, InterleavedComponentsShareAtMostTenBlocks) {
  const auto withLastSampling = [](char sampling) {
    std::string uneven = frame(0xC0, 2, 2, 3, 8, 0x22);
    uneven[uneven.size() - 2] = sampling;  // The last component ends with its quantisation table.
    return tables + uneven + scan(3);
  };
  EXPECT_TRUE(isReadable(withLastSampling(0x12)));   // 4 + 4 + 2
  EXPECT_FALSE(isReadable(withLastSampling(0x13)));  // 4 + 4 + 3
}

TEST(JpegHeaderTest, PassesOverFillBytesStrayBytesAndMarkersThatStandAlone) {
  const std::string rest = tables + frame(0xC0, 2, 2) + scan();
  EXPECT_TRUE(isReadable("\xFF\xFF\xFF" + rest));
  EXPECT_TRUE(isReadable("stray" + rest));
  EXPECT_TRUE(isReadable(std::string("\xFF\0", 2) + rest));
  EXPECT_TRUE(isReadable("\xFF\x01\xFF\xD0\xFF\xD7" + rest));
  EXPECT_TRUE(isReadable(segment(0xE1, "Exif") + segment(0xFE, "words") + rest));
  EXPECT_TRUE(isReadable(segment(0xDD, big16(4)) + rest));
}

TEST(JpegHeaderTest, ReadsNoMarkerInsideASegment) {
  // The picture that a camera puts into its notes is not the picture.
  const std::string inside = jpegStart + tables + frame(0xC0, 160, 120) + scan();
  const auto size =
      jpegSize(jpegStart + segment(0xE1, inside) + tables + frame(0xC0, 3, 2) + scan());
  ASSERT_TRUE(size);
  EXPECT_EQ(size->width, 3U);
}

TEST(JpegHeaderTest, RefusesSegmentsOutOfPlace) {
  const std::string frame2 = frame(0xC0, 2, 2);
  EXPECT_FALSE(isReadable(tables + scan() + frame2)) << "scan before frame";
  EXPECT_FALSE(isReadable(tables + frame2 + frame2 + scan())) << "two frames";
  EXPECT_FALSE(isReadable(tables + frame2 + "\xFF\xD9" + scan())) << "end before scan";
  EXPECT_FALSE(isReadable(tables + frame2)) << "no scan";
  EXPECT_FALSE(isReadable(segment(0x02, "") + tables + frame2 + scan())) << "reserved";
  EXPECT_FALSE(isReadable("\xFF\xD8" + tables + frame2 + scan())) << "two starts";
}

TEST(JpegHeaderTest, RefusesSegmentsOfAWrongLength) {
  const std::string end = frame(0xC0, 2, 2) + scan();
  EXPECT_FALSE(isReadable(std::string("\xFF\xE0\0\1", 4) + tables + end));
  EXPECT_FALSE(
      isReadable(tables + segment(0xC0, byte(8) + big16(2) + big16(2) + byte(1)) + scan()));
  EXPECT_FALSE(isReadable(segment(0xDB, byte(0) + std::string(63, '\1')) + tables + end));
  EXPECT_FALSE(isReadable(segment(0xC4, byte(0) + std::string(15, '\0')) + tables + end));
  EXPECT_FALSE(isReadable(segment(0xC4, byte(0) + std::string(16, '\xFF')) + tables + end));
  EXPECT_FALSE(isReadable(segment(0xDD, "") + tables + end));
  EXPECT_FALSE(isReadable(tables + frame(0xC0, 2, 2) + segment(0xDA, byte(1) + byte(1) + byte(0))));
}

TEST(JpegHeaderTest, AScanNamesComponentsOfTheFrameOnceEach) {
  const std::string start = tables + frame(0xC0, 2, 2, 3);
  const auto scanOf = [](unsigned first, unsigned second) {
    return segment(0xDA,
                   byte(2) + byte(first) + byte(0) + byte(second) + std::string("\0\0\x3F\0", 4));
  };
  EXPECT_TRUE(isReadable(start + scanOf(1, 3)));
  EXPECT_FALSE(isReadable(start + scanOf(1, 9)));
  EXPECT_FALSE(isReadable(start + scanOf(2, 2)));
  EXPECT_FALSE(isReadable(start + segment(0xDA, std::string("\0\0\x3F\0", 4))));
}

TEST(JpegHeaderTest, TheFirstScanNeedsItsQuantisationTable) {
  const std::string end = huffman(0x00) + huffman(0x10) + frame(0xC0, 2, 2) + scan();
  EXPECT_TRUE(isReadable(quantisation(0) + end));
  EXPECT_FALSE(isReadable(quantisation(1) + end));
  EXPECT_FALSE(isReadable(end));
  EXPECT_FALSE(isReadable(quantisation(4) + quantisation(0) + end));
  EXPECT_TRUE(isReadable(segment(0xDB, byte(0x10) + std::string(128, '\1')) + end));
}

TEST(JpegHeaderTest, OnlyASequentialFrameMayLeaveOutTheUsualHuffmanTables) {
  EXPECT_TRUE(isReadable(quantisation() + frame(0xC0, 2, 2) + scan()));
  EXPECT_FALSE(isReadable(quantisation() + frame(0xC2, 2, 2) + scan(1, 0)));
  EXPECT_TRUE(isReadable(quantisation() + huffman(0x00) + frame(0xC2, 2, 2) + scan(1, 0)));
  EXPECT_FALSE(isReadable(quantisation() + huffman(0x10) + frame(0xC2, 2, 2) + scan(1, 0)));
}

TEST(JpegHeaderTest, AHuffmanTableWithTooManyShortCodesIsUnreadableWhereItIsUsed) {
  const auto broken = [](unsigned slot) {
    return segment(0xC4, byte(slot) + byte(3) + std::string(15 + 3, '\0'));
  };
  const std::string end = frame(0xC0, 2, 2) + scan();
  EXPECT_FALSE(isReadable(tables + broken(0x00) + end));
  EXPECT_FALSE(isReadable(tables + broken(0x10) + end));
  EXPECT_TRUE(isReadable(tables + broken(0x01) + end)) << "not used";
  EXPECT_TRUE(isReadable(broken(0x00) + tables + end)) << "written anew";
}

TEST(JpegHeaderTest, ADcTableWithASymbolAbove15IsUnreadableWhereItIsUsed) {
  const auto withSymbol = [](unsigned kindAndSlot, unsigned symbol) {
    return segment(0xC4, byte(kindAndSlot) + byte(1) + std::string(15, '\0') + byte(symbol));
  };
  const std::string end = frame(0xC0, 2, 2) + scan();
  EXPECT_TRUE(isReadable(tables + withSymbol(0x00, 15) + end));
  EXPECT_FALSE(isReadable(tables + withSymbol(0x00, 16) + end));
  EXPECT_TRUE(isReadable(tables + withSymbol(0x10, 0xFF) + end)) << "AC";
}

TEST(JpegHeaderTest, AHuffmanTableHasAtMost256Codes) {
  const auto withCodes = [](unsigned codes) {
    return segment(0xC4, byte(0x11) + std::string(14, '\0') + byte(codes - 200) + byte(200) +
                             std::string(codes, '\0'));
  };
  const std::string end = tables + frame(0xC0, 2, 2) + scan();
  EXPECT_TRUE(isReadable(withCodes(256) + end));
  EXPECT_FALSE(isReadable(withCodes(257) + end));
}

TEST(JpegHeaderTest, AProgressiveScanHoldsOneBand) {
  const auto scanOf = [](unsigned first, unsigned last, unsigned bits) {
    return segment(0xDA, byte(1) + byte(1) + byte(0) + byte(first) + byte(last) + byte(bits));
  };
  const std::string start = tables + frame(0xC2, 2, 2);
  EXPECT_TRUE(isReadable(start + scanOf(0, 0, 0x01)));
  EXPECT_TRUE(isReadable(start + scanOf(1, 63, 0x00)));
  EXPECT_TRUE(isReadable(start + scanOf(1, 5, 0x21)));
  EXPECT_FALSE(isReadable(start + scanOf(0, 63, 0x00)));
  EXPECT_FALSE(isReadable(start + scanOf(5, 1, 0x00)));
  EXPECT_FALSE(isReadable(start + scanOf(1, 64, 0x00)));
  EXPECT_FALSE(isReadable(start + scanOf(0, 0, 0x20)));
  EXPECT_FALSE(isReadable(start + scanOf(0, 0, 0x0E)));
}

}  // namespace
}  // namespace leafund
