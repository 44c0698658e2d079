#include "tests/look/ProofFixture.h"

namespace leafund {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// What MarkMeasure knows by its kind.
const QByteArray kKinds =
    "component FocusRing: Rectangle { anchors { fill: parent; margins: -4 }"
    "  visible: parent.activeFocus; color: 'transparent'; border.width: 3 }\n"
    "component ProgressBar: Item { id: bar; property alias fill: full.color; x: 20; y: 200;"
    "  width: 200; height: 12; objectName: 'bar';"
    "  Rectangle { anchors.fill: parent; color: 'lightgray' }"
    "  Rectangle { id: full; width: 80; height: 12; color: 'black' } }\n"
    "component Box: Rectangle { property Item input: field; x: 20; y: 20; width: 200; height: 60;"
    "  objectName: 'box'; border { width: field.activeFocus ? 2 : 1; color: 'black' }"
    "  TextInput { id: field; anchors.fill: parent; activeFocusOnTab: true } }\n";
const QByteArray kButton =
    "Item { objectName: 'button'; x: 20; y: 100; width: 60; height: 60; activeFocusOnTab: true; ";

class MarkProofTest : public ProofFixture {
 protected:
  std::vector<Fault> faultsInUseOn(const QByteArray& content) {
    auto& page = show(content);
    return faultsInUse(window_, page);
  }
};

TEST_F(MarkProofTest, WhatIsSeenHasNoFault) {
  const QByteArray all = kKinds + "Box {}\nProgressBar {}\n" + kButton + "FocusRing {} }";

  EXPECT_THAT(faultsOn(all), IsEmpty());
  EXPECT_THAT(faultsInUseOn(all), IsEmpty());
}

TEST_F(MarkProofTest, APaleEdgeOfAnInputIsFoundOnEitherSide) {
  EXPECT_THAT(faultsOn(kKinds + "Box { border.color: '#bbbbbb' }"),
              testing::Contains(isFault("too pale for what is in it", "box")));
  EXPECT_THAT(faultsOn("color: 'black'\n" + kKinds + "Box {}"),
              ElementsAre(isFault("too pale for what is around it", "box")));
}

TEST_F(MarkProofTest, APaleBarIsFound) {
  EXPECT_THAT(faultsOn(kKinds + "ProgressBar { fill: 'darkgray' }"),
              ElementsAre(isFault("how full it is", "bar")));
}

TEST_F(MarkProofTest, AFocusThatIsNotSeenIsFound) {
  EXPECT_THAT(faultsInUseOn(kKinds + kButton + "}"),
              ElementsAre(isFault("does not show the focus", "button")));
  EXPECT_THAT(faultsInUseOn(kKinds + "Box { border.width: 1 }"),
              ElementsAre(isFault("does not show the focus", "box")));
  EXPECT_THAT(faultsInUseOn(kKinds + kButton + "FocusRing { border.color: 'silver' } }"),
              testing::Contains(isFault("has too pale an edge", "button")));
}

}  // namespace
}  // namespace leafund
