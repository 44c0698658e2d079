#include <QQuickWindow>
#include <QSignalSpy>

#include "interface/qml/items/StillText.h"
#include "tests/support/ProcessorTime.h"
#include "tests/window/WindowFixture.h"

namespace leafund {
namespace {

// Words on a white window of their own.
class StillTextTest : public WindowTest {
 protected:
  StillTextTest() {
    window_.setColor(Qt::white);
    window_.resize(300, 200);
    text_.setParentItem(window_.contentItem());
    QFont font;
    font.setPixelSize(16);
    text_.setFont(font);
    text_.setColor(Qt::black);
    text_.setWidth(120);
    text_.setMaximumLineCount(3);
  }

  // As tall as it wants to be, as a row shows it.
  QImage drawn() {
    text_.setHeight(text_.implicitHeight());
    return window_.grabWindow();
  }

  // The darkest pixel's lightness.
  static int darkest(const QImage& image) {
    int least = 255;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) least = std::min(least, qGray(image.pixel(x, y)));
    }
    return least;
  }

  double lineHeight() {
    text_.setText("One");
    return text_.contentHeight();
  }

  QQuickWindow window_;
  StillText text_;
};

TEST_F(StillTextTest, WordsThatFitAreOneLineAndWhole) {
  text_.setText("One");
  EXPECT_EQ(text_.lineCount(), 1);
  EXPECT_FALSE(text_.truncated());
  EXPECT_GT(text_.contentWidth(), 0);
  EXPECT_LT(darkest(drawn()), 80);
}

TEST_F(StillTextTest, WordsWrapAtTheWidthAndAgainWhenItChanges) {
  const double line = lineHeight();
  text_.setText("Five words stand here");
  EXPECT_EQ(text_.lineCount(), 2);
  EXPECT_LE(text_.contentWidth(), text_.width());
  EXPECT_EQ(text_.implicitHeight(), std::ceil(2 * line));
  text_.setWidth(300);
  EXPECT_EQ(text_.lineCount(), 1);
}

TEST_F(StillTextTest, AnEndlessWordIsBrokenInItsMiddle) {
  text_.setText(QString(20, 'm'));
  EXPECT_EQ(text_.lineCount(), 3);
  EXPECT_LE(text_.contentWidth(), text_.width());
}

TEST_F(StillTextTest, MoreThanItsLinesHoldEndsInAnEllipsisWithinTheWidth) {
  text_.setText(QString("words and ").repeated(200));
  EXPECT_EQ(text_.lineCount(), 3);
  EXPECT_TRUE(text_.truncated());
  EXPECT_TRUE(text_.shownText().endsWith(QChar(0x2026)));
  EXPECT_LE(text_.contentWidth(), text_.width());
  EXPECT_EQ(text_.text().size(), 2000);  // what is said of it stays whole
}

TEST_F(StillTextTest, TheEllipsisFindsRoomWhateverTheLettersAndTheWidth) {
  for (const char letter : std::string("nuhilzmWj.")) {
    text_.setText(QString(300, letter));
    for (int width = 40; width < 300; width += 7) {
      text_.setWidth(width);
      EXPECT_TRUE(text_.shownText().endsWith(QChar(0x2026))) << letter << " in " << width;
    }
  }
}

TEST_F(StillTextTest, WhatReachesBeyondALetterAtTheEdgeIsDrawnToo) {
  text_.setPosition({20, 20});
  text_.setFont(QFont("Inter", 30, QFont::Bold));
  text_.setText("j\u00ce\u1ea8");  // a tail to the left, and marks on capitals
  const QImage image = drawn();
  EXPECT_LT(darkest(image.copy(16, 0, 4, 200)), 255) << "nothing stands beside it";
  EXPECT_LT(darkest(image.copy(0, 16, 300, 4)), 255) << "nothing stands above it";
}

TEST_F(StillTextTest, BetweenPixelsItIsAsSharpAsOnThem) {
  text_.setText("One");
  const QImage on = drawn();
  text_.setY(0.4);
  EXPECT_EQ(drawn(), on);
}

TEST_F(StillTextTest, TwentyThousandLettersAreLaidOutAtOnce) {
  const double before = processorSeconds();
  text_.setText(QString(20'000, 'm'));
  EXPECT_LT(processorSeconds() - before, 0.5);
  EXPECT_TRUE(text_.truncated());
}

TEST_F(StillTextTest, EachParagraphBeginsALine) {
  text_.setText("One\nTwo");
  EXPECT_EQ(text_.lineCount(), 2);
  EXPECT_FALSE(text_.truncated());
}

TEST_F(StillTextTest, AParagraphThatIsLeftOutIsToldByAnEllipsisToo) {
  text_.setText("One\nTwo\nThree\nFour");
  EXPECT_EQ(text_.lineCount(), 3);
  EXPECT_TRUE(text_.truncated());
  EXPECT_TRUE(text_.shownText().endsWith(QString("Three") + QChar(0x2026)));
}

TEST_F(StillTextTest, NoWordsAreAsHighAsALineAndDrawNothing) {
  const double line = lineHeight();
  text_.setText({});
  EXPECT_EQ(text_.implicitHeight(), std::ceil(line));
  EXPECT_FALSE(text_.truncated());
  EXPECT_EQ(darkest(drawn()), 255);
}

TEST_F(StillTextTest, OtherWordsAnotherColourAnotherFontAndFewerLinesAreDrawnAnew) {
  text_.setText("Nine short words stand here");
  const QImage first = drawn();
  text_.setText("Five short words stand here");
  const QImage second = drawn();
  EXPECT_NE(second, first);
  text_.setColor(Qt::red);
  const QImage third = drawn();
  EXPECT_NE(third, second);
  QFont font = text_.font();
  font.setBold(true);
  text_.setFont(font);
  const QImage fourth = drawn();
  EXPECT_NE(fourth, third);
  text_.setMaximumLineCount(1);
  EXPECT_NE(drawn(), fourth);
}

TEST_F(StillTextTest, FewerLinesThanOneAreTakenForOne) {
  text_.setMaximumLineCount(0);
  text_.setText(QString("words and ").repeated(200));
  EXPECT_EQ(text_.maximumLineCount(), 1);
  EXPECT_EQ(text_.lineCount(), 1);
}

TEST_F(StillTextTest, TheSameAgainDrawsAndTellsNothing) {
  text_.setText("One");
  const QSignalSpy told(&text_, &StillText::laidOut);
  text_.setText("One");
  text_.setColor(text_.color());
  text_.setFont(text_.font());
  text_.setMaximumLineCount(text_.maximumLineCount());
  EXPECT_EQ(told.count(), 0);
}

}  // namespace
}  // namespace leafund
