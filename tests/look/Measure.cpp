#include "tests/look/Measure.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>
#include <functional>

#include "tests/look/ContrastMeasure.h"
#include "tests/look/MarkMeasure.h"
#include "tests/look/TargetMeasure.h"
#include "tests/look/TextMeasure.h"

namespace leafund {

namespace {

// A little less than a page, so that what a page's edge cuts is whole on one of two.
constexpr double kStep = 0.6;

QQuickItem* paneIn(QQuickItem& root) {
  for (auto* each : shownItems(root)) {
    if (isPane(*each)) return each;
  }
  return nullptr;
}

// Once at each scroll position of the pane, and at last back at the top.
void atEachPosition(QQuickWindow& window, QQuickItem& root, const std::function<void()>& visit) {
  QQuickItem* pane = paneIn(root);
  if (pane == nullptr) return visit();
  const double end = std::max(0.0, pane->property("contentHeight").toDouble() - pane->height());
  // Between two pixels the software renderer may leave a speck of what it drew before.
  const double step = std::max(1.0, std::round(pane->height() * kStep));
  const auto scrollTo = [&](double offset) {
    pane->setProperty("contentY", offset);
    QCoreApplication::processEvents();
    window.grabWindow();  // lays out what came into sight
  };
  for (double offset = 0; offset < end; offset += step) {
    scrollTo(offset);
    visit();
  }
  scrollTo(end);
  visit();
  scrollTo(0);
}

void addNew(std::vector<Fault>& all, std::vector<Fault> found) {
  for (auto& fault : found) {
    const auto same = [&](const Fault& known) {
      return known.what == fault.what && known.item == fault.item;
    };
    if (std::none_of(all.begin(), all.end(), same)) all.push_back(std::move(fault));
  }
}

}  // namespace

std::vector<Fault> faultsOf(QQuickWindow& window, QQuickItem& root) {
  std::vector<Fault> all = frameFaults(window, shownItems(root));
  atEachPosition(window, root, [&] {
    const auto shown = shownItems(root);
    addNew(all, targetFaults(shown));
    addNew(all, textFaults(shown));
    addNew(all, contrastFaults(window, shown));
    addNew(all, markFaults(window, shown));
  });
  return all;
}

std::vector<Fault> faultsInUse(QQuickWindow& window, QQuickItem& root) {
  std::vector<Fault> all;
  atEachPosition(window, root, [&] {
    addNew(all, heldContrastFaults(window, shownItems(root)));
    addNew(all, selectedContrastFaults(window, shownItems(root)));
    addNew(all, focusFaults(window, shownItems(root)));
  });
  return all;
}

}  // namespace leafund
