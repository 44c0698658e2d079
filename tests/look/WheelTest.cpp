#include <gtest/gtest.h>

#include <QDateTime>
#include <QTest>
#include <QWheelEvent>
#include <algorithm>

#include "tests/look/Stages.h"
#include "tests/look/WindowItems.h"

namespace leafund {
namespace {

std::vector<std::string> ordinaryStages() {
  std::vector<std::string> names;
  for (const auto& stage : stages()) {
    if (stage.ordinary) names.push_back(stage.name);
  }
  return names;
}

// One notch of a mouse wheel over a place in the window.
void turnWheel(QQuickWindow& window, QPointF place) {
  QWheelEvent event(place, window.mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  event.setTimestamp(static_cast<quint64>(QDateTime::currentMSecsSinceEpoch()));
  QCoreApplication::sendEvent(&window, &event);
}

class WheelTest : public testing::TestWithParam<std::string> {
 protected:
  static constexpr int kMostNotches = 200;

  // Turns the wheel until the window has stood still for a notch.
  void scrollDown(QQuickItem& pane) {
    const auto offset = [&] { return pane.property("contentY").toDouble(); };
    for (int i = 0; i < kMostNotches; ++i) {
      const double before = offset();
      turnWheel(app_.window(), pane.mapToScene({pane.width() / 2, pane.height() / 2}));
      const auto stands = [&] { return !pane.property("moving").toBool(); };
      ASSERT_TRUE(QTest::qWaitFor(stands));
      if (offset() == before) return;
    }
    FAIL() << "no end after " << kMostNotches << " notches";
  }

  const Stage& stage_ = stageNamed(GetParam());
  StageApplication app_{{100, 1}, stage_.pictures, kLeast};
};

// The measures place the content themselves; a user has to turn the wheel.
TEST_P(WheelTest, ItLeadsToTheEndOfEveryPaneInTheLeastWindow) {
  stage_.reach(app_);
  app_.settle();
  for (auto* pane : shownItems(app_.page())) {
    if (!isPane(*pane)) continue;
    const double end = std::max(0.0, pane->property("contentHeight").toDouble() - pane->height());
    scrollDown(*pane);
    EXPECT_NEAR(pane->property("contentY").toDouble(), end, 1) << described(*pane);
  }
}

INSTANTIATE_TEST_SUITE_P(Stages, WheelTest, testing::ValuesIn(ordinaryStages()),
                         [](const auto& each) { return testName(each.param); });

}  // namespace
}  // namespace leafund
