#include "tests/look/DrawnContrast.h"
#include "tests/look/ProofFixture.h"
#include "tests/look/TargetMeasure.h"
#include "tests/look/TextMeasure.h"

namespace leafund {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

using MeasureProofTest = ProofFixture;

TEST_F(MeasureProofTest, APageWithoutFaultHasNone) {
  EXPECT_THAT(faultsOn("Text { x: 8; y: 8; text: 'Words'; font.pixelSize: 16 }"
                       "Item { objectName: 'button'; y: 40; width: 48; height: 48;"
                       "       activeFocusOnTab: true }"),
              IsEmpty());
}

TEST_F(MeasureProofTest, ASmallTargetIsFound) {
  EXPECT_THAT(faultsOn("Item { objectName: 'button'; width: 48; height: 47;"
                       "       activeFocusOnTab: true }"),
              ElementsAre(isFault("too small a target", "button")));
}

TEST_F(MeasureProofTest, ATargetOfWhichAFrameShowsLittleIsFound) {
  EXPECT_THAT(faultsOn("Item { width: 100; height: 40; clip: true;"
                       "  Item { objectName: 'button'; width: 60; height: 60;"
                       "         activeFocusOnTab: true } }"),
              ElementsAre(isFault("too small a target", "button"),
                          isFault("cannot be reached whole", "button")));
}

TEST_F(MeasureProofTest, AnInputIsAsLargeAsTheBoxAroundIt) {
  const QByteArray box =
      "Item { property Item input: field; width: 200; height: %1;"
      "  TextInput { id: field; objectName: 'field'; y: 15; width: 200; height: 16;"
      "              activeFocusOnTab: true } }";

  EXPECT_THAT(faultsOn(QByteArray(box).replace("%1", "52")), IsEmpty());
  EXPECT_THAT(faultsOn(QByteArray(box).replace("%1", "40")),
              ElementsAre(isFault("too small a target", "field")));
}

TEST_F(MeasureProofTest, ControlsThatLieOnOneAnotherAreFound) {
  EXPECT_THAT(faultsOn("Item { objectName: 'upper'; width: 60; height: 60;"
                       "       activeFocusOnTab: true }"
                       "Item { objectName: 'lower'; y: 50; width: 60; height: 60;"
                       "       activeFocusOnTab: true }"),
              ElementsAre(isFault("lies on lower", "upper")));
}

TEST_F(MeasureProofTest, AControlBesideTheWindowIsFound) {
  EXPECT_THAT(faultsOn("Item { objectName: 'button'; x: 300; width: 60; height: 60;"
                       "       activeFocusOnTab: true }"),
              ElementsAre(isFault("too small a target", "button"),
                          isFault("cannot be reached whole", "button")));
}

TEST_F(MeasureProofTest, WhatIsWiderThanTheWindowIsFound) {
  EXPECT_THAT(faultsOn("Rectangle { objectName: 'card'; width: 321; height: 9 }"),
              ElementsAre(isFault("is wider than the window", "card")));
}

TEST_F(MeasureProofTest, APictureThatNoScrollingShowsWholeIsFound) {
  const QByteArray picture = "Rectangle { objectName: 'picture'; y: 380; width: 90; height: 90 }";

  EXPECT_THAT(faultsOn(picture), ElementsAre(isFault("is cut off", "picture")));
  EXPECT_THAT(faultsOn("Flickable { width: 320; height: 400; contentHeight: 470; clip: true;" +
                       picture + " }"),
              IsEmpty());
  EXPECT_THAT(faultsOn("Flickable { width: 320; height: 400; contentHeight: 469; clip: true;" +
                       picture + " }"),
              ElementsAre(isFault("is cut off", "picture")));
}

TEST_F(MeasureProofTest, APaneThatEndsBeforeItsLastItemIsFound) {
  const QByteArray pane =
      "Flickable { objectName: 'pane'; width: 320; height: 200; contentHeight: %1; clip: true;"
      "  Item { objectName: 'button'; y: 300; width: 60; height: 60; activeFocusOnTab: true } }";

  EXPECT_THAT(faultsOn(QByteArray(pane).replace("%1", "360")), IsEmpty());
  EXPECT_THAT(faultsOn(QByteArray(pane).replace("%1", "340")),
              testing::Contains(isFault("cannot be scrolled into sight", "button")));
  EXPECT_THAT(faultsOn(QByteArray(pane).replace("%1", "360; interactive: false")),
              ElementsAre(isFault("cannot be scrolled", "pane")));
}

TEST_F(MeasureProofTest, TextsThatOverlapAreFound) {
  EXPECT_THAT(faultsOn("Text { objectName: 'upper'; text: 'One'; font.pixelSize: 16 }"
                       "Text { objectName: 'lower'; y: 15; text: 'Two'; font.pixelSize: 16 }"),
              ElementsAre(isFault("overlaps lower", "upper")));
}

TEST_F(MeasureProofTest, ATextCutWithoutAnEllipsisIsFound) {
  const QByteArray words = "text: 'Words that need more room'; font.pixelSize: 16";

  EXPECT_THAT(faultsOn("Text { width: 60; elide: Text.ElideRight; " + words + " }"), IsEmpty());
  EXPECT_THAT(faultsOn("Text { width: 60; " + words + " }"),
              ElementsAre(isFault("wider than its place", "Words")));
  EXPECT_THAT(
      faultsOn("Text { width: 60; wrapMode: Text.Wrap; maximumLineCount: 2; " + words + " }"),
      ElementsAre(isFault("without an ellipsis", "Words")));
  EXPECT_THAT(faultsOn("Text { width: 60; height: 30; wrapMode: Text.Wrap; " + words + " }"),
              ElementsAre(isFault("higher than its place", "Words")));
  EXPECT_THAT(faultsOn("Item { width: 60; height: 40; clip: true; Text { " + words + " } }"),
              ElementsAre(isFault("is cut off", "Words")));
}

TEST_F(MeasureProofTest, AWrappedTextOfWhichOneLineIsLeftIsFound) {
  const QByteArray words =
      "Text { width: 60; wrapMode: Text.Wrap; elide: Text.ElideRight; maximumLineCount: %1;"
      "       text: 'Words that need more room than that'; font.pixelSize: 16 }";

  EXPECT_THAT(faultsOn(QByteArray(words).replace("%1", "2")), IsEmpty());
  EXPECT_THAT(faultsOn(QByteArray(words).replace("%1", "1")),
              ElementsAre(isFault("too few lines", "Words")));
}

TEST_F(MeasureProofTest, AMessageThatDoesNotFitIntoItsInputIsFound) {
  EXPECT_THAT(faultsOn("TextInput { width: 90; height: 20; wrapMode: TextInput.Wrap;"
                       "            text: 'Error: Please Enter More'; font.pixelSize: 16 }"),
              testing::Contains(isFault("higher than its place", "Error")));
}

TEST_F(MeasureProofTest, WordsThatStandOutOfTheirButtonAreFound) {
  EXPECT_THAT(faultsOn("Item { objectName: 'button'; y: 100; width: 60; height: 60;"
                       "  activeFocusOnTab: true;"
                       "  Text { y: 50; text: 'Go'; font.pixelSize: 16 } }"),
              ElementsAre(isFault("stands out of its control", "button")));
}

TEST_F(MeasureProofTest, LinesTooLongToFollowAreFound) {
  const QByteArray words = "wrapMode: Text.Wrap; text: 'all the same '.repeat(30)";

  EXPECT_THAT(faultsOn("Text { width: 300; font.pixelSize: 10; " + words + " }"), IsEmpty());
  EXPECT_THAT(faultsOn("Text { width: 300; font.pixelSize: 6; " + words + " }"),
              ElementsAre(isFault("lines too long", "all the same")));
}

TEST_F(MeasureProofTest, PaleTextIsFoundByItsSize) {
  // 4.36:1 on white.
  const QByteArray pale = "text: 'Words'; color: Qt.rgba(83 / 255, 134 / 255, 47 / 255, 1); ";

  EXPECT_THAT(faultsOn("Text { " + pale + "font.pixelSize: 23 }"),
              ElementsAre(isFault("is too pale", "Words")));
  EXPECT_THAT(faultsOn("Text { " + pale + "font { pixelSize: 18; weight: Font.Bold } }"),
              ElementsAre(isFault("is too pale", "Words")));
  EXPECT_THAT(faultsOn("Text { " + pale + "font.pixelSize: 24 }"), IsEmpty());
  EXPECT_THAT(faultsOn("Text { " + pale + "font { pixelSize: 19; weight: Font.Bold } }"),
              IsEmpty());
}

TEST_F(MeasureProofTest, ADarkTextOnADarkGroundIsFound) {
  EXPECT_THAT(faultsOn("Rectangle { width: 200; height: 40; color: 'dimgray';"
                       "  Text { text: 'Words'; font.pixelSize: 16 } }"),
              ElementsAre(isFault("is too pale", "Words")));
}

TEST_F(MeasureProofTest, ATextThatSomethingCoversIsFound) {
  EXPECT_THAT(faultsOn("Text { text: 'Words'; font.pixelSize: 16 }"
                       "Rectangle { width: 200; height: 40 }"),
              ElementsAre(isFault("is not seen", "Words")));
}

TEST_F(MeasureProofTest, ATextThatPalesWhenItIsSelectedOrHeldIsFound) {
  auto& page = show(
      "TextInput { text: 'Words'; font.pixelSize: 16; selectionColor: 'silver';"
      "            selectedTextColor: 'white' }"
      "Item { objectName: 'button'; y: 100; width: 60; height: 60; activeFocusOnTab: true;"
      "  readonly property bool held: area.pressed;"
      "  Text { text: 'Go'; font.pixelSize: 16; color: area.pressed ? 'silver' : 'black' }"
      "  MouseArea { id: area; anchors.fill: parent } }");

  EXPECT_THAT(faultsOf(window_, page), IsEmpty());
  EXPECT_THAT(faultsInUse(window_, page),
              AllOf(Contains(isFault("too pale when held", "button")),
                    Contains(isFault("too pale when selected", "Words"))));
}

TEST_F(MeasureProofTest, AControlThatSomethingKeepsFromThePointerIsFound) {
  auto& page = show(
      "Item { objectName: 'button'; width: 60; height: 60; activeFocusOnTab: true;"
      "  property bool held: false }"
      "MouseArea { anchors.fill: parent }");

  EXPECT_THAT(faultsInUse(window_, page), Contains(isFault("takes no press", "button")));
}

TEST(ContrastTest, ItIsThatOfTheFormula) {
  EXPECT_NEAR(contrast(qRgb(0, 0, 0), qRgb(255, 255, 255)), 21, 0.01);
  EXPECT_NEAR(contrast(qRgb(83, 134, 47), qRgb(255, 255, 255)), 4.36, 0.01);
  EXPECT_NEAR(contrast(qRgb(255, 0, 0), qRgb(255, 255, 255)), 4.0, 0.01);
}

}  // namespace
}  // namespace leafund
