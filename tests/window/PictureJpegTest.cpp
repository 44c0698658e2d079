#include "tests/support/ProcessMemory.h"
#include "tests/support/ProcessorTime.h"
#include "tests/window/JpegBytes.h"
#include "tests/window/PixelsFixture.h"

namespace leafund {
namespace {

using jpegbytes::quadrantsOf;
using jpegbytes::Wish;
using jpegbytes::written;

std::string quadrantJpeg(QSize size, std::function<void(jpeg_compress_struct&)> options) {
  return written({size, quadrantsOf(size), std::move(options)});
}

TEST(PictureJpegTest, EveryKindThatLibjpegWritesIsDrawn) {
  const QSize size{200, 144};
  const std::vector<std::pair<const char*, std::function<void(jpeg_compress_struct&)>>> kinds{
      {"baseline", [](auto&) {}},
      {"progressive", [](auto& picture) { jpeg_simple_progression(&picture); }},
      {"arithmetic", [](auto& picture) { picture.arith_code = TRUE; }},
      {"arithmetic, progressive",
       [](auto& picture) {
         picture.arith_code = TRUE;
         jpeg_simple_progression(&picture);
       }},
      {"restarts", [](auto& picture) { picture.restart_interval = 1; }},
      {"4:4:4",
       [](auto& picture) {
         picture.comp_info[0].v_samp_factor = picture.comp_info[0].h_samp_factor = 1;
       }},
      {"4:1:1", [](auto& picture) { picture.comp_info[0].h_samp_factor = 4; }},
      {"RGB", [](auto& picture) { jpeg_set_colorspace(&picture, JCS_RGB); }},
  };
  for (const auto& [name, options] : kinds) {
    SCOPED_TRACE(name);
    expectQuadrants(drawn(quadrantJpeg(size, options)));
    expectQuadrants(drawn(quadrantJpeg(size, options), size));
  }
}

TEST(PictureJpegTest, InksAreDrawnAsColours) {
  const QSize size{96, 96};
  for (const J_COLOR_SPACE space : {JCS_CMYK, JCS_YCCK}) {
    for (const boolean isSaid : {TRUE, FALSE}) {
      // Without the mark four components are taken for CMYK.
      if (space == JCS_YCCK && !isSaid) continue;
      const auto options = [&](auto& picture) {
        jpeg_set_colorspace(&picture, space);
        picture.write_Adobe_marker = isSaid;
      };
      expectQuadrants(drawn(written({size, quadrantsOf(size, 4), options, 4})));
    }
  }
}

TEST(PictureJpegTest, APhotoOf48MegapixelsTakesLittleMemory) {
  const QSize size{8064, 6048};
  const std::string body = quadrantJpeg(size, [](auto&) {});
  drawn(quadrantJpeg({64, 64}, [](auto&) {}));
  const long before = kilobytes("VmHWM");

  const double start = processorSeconds();
  expectQuadrants(drawn(body));

  RecordProperty("seconds", std::to_string(processorSeconds() - start));
  EXPECT_LT(kilobytes("VmHWM") - before, 32'000);
}

TEST(PictureJpegTest, WhatWouldTakeMoreThan256MegabytesIsBlank) {
  // 10,000 by 10,000 coefficients of three components: 300 MB.
  const std::string body = quadrantJpeg({256, 256}, [](auto& picture) {
    picture.comp_info[0].v_samp_factor = picture.comp_info[0].h_samp_factor = 1;
    jpeg_simple_progression(&picture);
  });
  std::string huge = body;
  huge.replace(huge.find("\xFF\xC2") + 5, 4, "\x27\x10\x27\x10");
  const long before = kilobytes("VmHWM");

  EXPECT_FALSE(drawn(body).isNull());
  EXPECT_TRUE(drawn(huge).isNull());

  EXPECT_LT(kilobytes("VmHWM") - before, 32'000);
}

TEST(PictureJpegTest, ScansWithoutAnEndTakeBoundedTime) {
  const std::string body =
      quadrantJpeg({1600, 1600}, [](auto& picture) { jpeg_simple_progression(&picture); });
  const auto cost = [&](int scans) {
    const std::string bomb = jpegbytes::withScans(body, scans);
    const double start = processorSeconds();
    expectQuadrants(drawn(bomb));
    return processorSeconds() - start;
  };

  const double few = cost(400);
  const double many = cost(20'000);

  RecordProperty("few", std::to_string(few));
  RecordProperty("many", std::to_string(many));
  EXPECT_LT(many, 2 * few + 0.1);
}

// Of a picture of few pixels a scan is hardly any work, and beginning it is.
TEST(PictureJpegTest, SmallScansWithoutAnEndTakeBoundedTime) {
  const std::string body =
      quadrantJpeg({2, 2}, [](auto& picture) { jpeg_simple_progression(&picture); });
  const auto cost = [&](int scans) {
    const std::string bomb = jpegbytes::withScans(body, scans);
    const double start = processorSeconds();
    EXPECT_FALSE(drawn(bomb).isNull());
    return processorSeconds() - start;
  };
  const double many = cost(600'000);
  const double most = cost(4'000'000);

  RecordProperty("many", std::to_string(many));
  RecordProperty("most", std::to_string(most));
  EXPECT_LT(most, 2 * many + 0.1);
}

TEST(PictureJpegTest, ArithmeticCodesTakeBoundedTime) {
  const QSize size{3000, 2000};
  jpegbytes::Row noise(3UL * static_cast<std::size_t>(size.width()));
  const auto rowOf = [&](int) -> jpegbytes::Row& {
    for (auto& byte : noise) byte = static_cast<unsigned char>(std::rand());
    return noise;
  };
  // Eighteen megabytes, which took three seconds and more.
  const std::string body = written({size, rowOf, [](auto& picture) {
                                      picture.arith_code = TRUE;
                                      picture.comp_info[0].h_samp_factor = 1;
                                      picture.comp_info[0].v_samp_factor = 1;
                                      jpeg_set_quality(&picture, 100, TRUE);
                                    }});
  const double start = processorSeconds();

  EXPECT_FALSE(drawn(body).isNull());

  const double seconds = processorSeconds() - start;
  RecordProperty("seconds", std::to_string(seconds));
  RecordProperty("bytes", std::to_string(body.size()));
  EXPECT_LT(seconds, 2);
}

TEST(PictureJpegTest, ASmallBodyThatClaimsTheLargestSizeIsSoonDrawn) {
  std::string body = quadrantJpeg({64, 64}, [](auto&) {});
  body.replace(body.find("\xFF\xC0") + 5, 4, "\xFF\xFF\xFF\xFF");
  const double start = processorSeconds();

  const QImage image = drawn(body);

  EXPECT_TRUE(image.isNull());
  EXPECT_LT(processorSeconds() - start, 1);
}

TEST(PictureJpegTest, ABrokenProfileDoesNotMatter) {
  const std::string body = quadrantJpeg({64, 64}, [](auto&) {});
  const std::string profile = std::string("ICC_PROFILE\0\1\1", 14) + std::string(200, 'x');
  const std::string segment =
      std::string("\xFF\xE2\0", 3) + static_cast<char>(profile.size() + 2) + profile;

  expectQuadrants(drawn(body.substr(0, 2) + segment + body.substr(2)));
}

// libjpeg, asked to keep segments, goes through all it has for each one more.
TEST(PictureJpegTest, SegmentsWhereProfilesStandTakeBoundedTime) {
  const std::string body = quadrantJpeg({64, 64}, [](auto&) {});
  std::string segments;
  for (int each = 0; each < 50'000; ++each) segments += std::string("\xFF\xE2\0\2", 4);
  const double start = processorSeconds();

  expectQuadrants(drawn(body.substr(0, 2) + segments + body.substr(2)));

  EXPECT_LT(processorSeconds() - start, 1);
}

// Behind the end stands what a decoder that reads on would take for the rest of the picture: what a
// string held before it was made shorter.
TEST(PictureJpegTest, ASegmentThatClaimsMoreThanTheBodyEndsIt) {
  const std::string body = quadrantJpeg({64, 64}, [](auto&) {});
  const std::size_t scan = body.find("\xFF\xDA");
  auto claiming =
      std::make_shared<std::string>(body.substr(0, scan) + std::string("\xFF\xFE\1\0", 4) +
                                    std::string(254, 'x') + body.substr(scan));
  const auto whole = UIImage::initWithData(std::make_shared<const std::string>(*claiming));
  expectQuadrants(picturePixels(*whole, {128, 128}, stretch));

  claiming->resize(scan + 4 + 100);

  const auto cut = UIImage::initWithData(claiming);
  EXPECT_TRUE(picturePixels(*cut, {128, 128}, stretch).isNull());
}

TEST(PictureJpegTest, WhateverIsCutOffTheRestIsDrawn) {
  for (const bool isProgressive : {false, true}) {
    const std::string body = quadrantJpeg({640, 480}, [&](auto& picture) {
      if (isProgressive) jpeg_simple_progression(&picture);
    });
    for (const int percent : {25, 50, 75, 95}) {
      const QImage image =
          drawn(body.substr(0, body.size() * static_cast<std::size_t>(percent) / 100));
      ASSERT_FALSE(image.isNull()) << percent;
      EXPECT_TRUE(shows(image, 10, 2, Qt::red, 40)) << percent << isProgressive;
    }
  }
}

}  // namespace
}  // namespace leafund
