#include <gtest/gtest.h>

#include <QGuiApplication>
#include <fstream>
#include <regex>

#include "tests/look/TextRendering.h"

namespace leafund {
namespace {

class RenderingRecordTest : public testing::Test {
 protected:
  void TearDown() override { std::filesystem::remove(file_); }

  RenderingRecord record(const char* text) {
    std::ofstream(file_) << text;
    return RenderingRecord(file_);
  }

  std::filesystem::path file_ = std::filesystem::path(testing::TempDir()) / "text-rendering.txt";
};

TEST_F(RenderingRecordTest, TheFirstLineHoldsForAllThatAreNotNamed) {
  const auto both = record("Qt 6.4.2, Inter 4.000\nnews.png Qt 6.8.2, Inter 4.001\n");

  EXPECT_EQ(both.of("browse.png"), "Qt 6.4.2, Inter 4.000");
  EXPECT_EQ(both.of("news.png"), "Qt 6.8.2, Inter 4.001");
  EXPECT_EQ(both.named(), std::vector<std::string>{"news.png"});
}

TEST_F(RenderingRecordTest, WithoutAFileNothingIsKnown) {
  EXPECT_EQ(RenderingRecord(file_).of("browse.png"), "");
}

TEST(TextRenderingTest, ItNamesThreeVersions) {
  int count = 0;
  QGuiApplication application(count, nullptr);

  const std::regex versions(R"(Qt 6\.\d+\.\d+, FreeType 2\.\d+\.\d+, Inter \d\.\d{3})");
  EXPECT_TRUE(std::regex_match(textRendering(), versions)) << textRendering();
}

}  // namespace
}  // namespace leafund
