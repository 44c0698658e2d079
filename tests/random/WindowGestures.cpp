#include <algorithm>
#include <cmath>

#include "tests/random/WindowUser.h"

// What the user of a window does besides tapping and typing.
namespace leafund::random {

namespace {
constexpr double kEdge = 30;   // points at the left of a page from which a drag leads back
constexpr double kNotch = 80;  // points that a notch of the wheel leads
}  // namespace

void WindowUser::scroll(const Action& action, Chance& how) {
  const auto& list = reference_.shown().table;
  if (!list) return;
  const double before = list->offset;
  const bool down = action.offset > before;
  const auto middle = [&] {
    return QPointF(app_.window().width() / 2.0, reference_.top().y + list->height / 2);
  };
  const auto by = how.below(5);
  if (by == 0) {
    const auto key = how.percent(50) ? (down ? Qt::Key_PageDown : Qt::Key_PageUp)
                                     : (down ? Qt::Key_Down : Qt::Key_Up);
    for (auto count = how.between(1, 4); count > 0; --count) {
      hand_.keyClick(key);
      hand_.frames(static_cast<int>(how.between(0, 3)), how);
    }
  } else if (by < 3) {
    for (auto count = how.between(1, 9); count > 0; --count) {
      turnWheel(middle(), down ? -1 : 1);  // a new size may have come meanwhile
      hand_.frames(static_cast<int>(how.between(0, 3)), how);
    }
  } else {
    const double way = (down ? -1 : 1) * static_cast<double>(how.between(20, 300));
    const auto from = middle();
    drag(from, from + QPointF(0, std::clamp(way, 60 - from.y(), from.y())), how);
  }
}

// Over the list that is shown; also one that flies is led as far, and no further.
void WindowUser::turnWheel(QPointF where, int notches) {
  const auto& list = reference_.shown().table;
  const double end = std::clamp(list->offset - notches * kNotch, 0.0, list->greatestOffset());
  const auto* page = app_.page();
  const bool slides = page == nullptr || page->x() != 0;
  hand_.wheel(where, notches);
  if (slides || std::abs(list->offset - end) < 0.01) return;
  complain("the wheel led to " + std::to_string(list->offset) + " instead of " +
           std::to_string(end));
}

void WindowUser::drag(QPointF from, QPointF to, Chance& how) {
  const auto place = placeAt(from);
  // In the middle of a slide the page's left edge is elsewhere than the window's.
  const auto* page = app_.page();
  const bool atEdge = page != nullptr && from.x() - page->x() < kEdge;
  const bool byTouch = how.percent(70);
  const auto steps = how.between(3, 12);
  const bool fling = how.percent(50);
  if (byTouch) lastTouch_.note(hand_.now(), from);
  hand_.press(from, byTouch);
  for (long step = 1; step <= steps; ++step) {
    hand_.move(from + (to - from) * static_cast<double>(step) / static_cast<double>(steps),
               byTouch);
    if (!fling || step % 3 == 0) hand_.frames(1, how);
  }
  hand_.release(to, byTouch);
  // From the left edge it leads back, if it goes far enough.
  const auto taps = takeTaps();
  if (atEdge && to.x() > from.x() && taps == Taps{"back"}) return;
  judge(taps, place, true, "a drag");
}

// On the ground, at the edge of a page that stands still.
bool WindowUser::putThumb() {
  const QPointF where(app_.window().width() - 2, app_.window().height() / 2.0);
  const auto place = placeAt(where);
  const auto* page = app_.page();
  const bool stands = page != nullptr && page->x() == 0;
  if (!stands || !place.sure || place.tap != Taps{"beside"}) return false;
  hand_.putThumb(where);
  expect({}, false, "a thumb that is put down");
  return true;
}

void WindowUser::goBack(Chance& how) {
  switch (how.below(8)) {
    case 0:
      return drag({static_cast<double>(how.between(0, 20)), 200},
                  {static_cast<double>(how.between(60, 250)), 210}, how);
    case 1:
      return tapItem(itemOf("backButton"), how);
    case 2:
      return pressKeys(Qt::Key_Back, 1, 0, how);
    case 3:
      return pressKeys(Qt::Key_Left, 1, 0, how);
    case 4:
      hand_.pressBackButton({static_cast<double>(how.between(1, 279)), 100});
      return expect({.tap = {"back"}}, false, "the back button of the pointer");
    default:
      return pressKeys(Qt::Key_Escape, how.percent(80) ? 1 : 2, how.percent(20) ? 4 : 0, how);
  }
}

void WindowUser::resize(const Action& action, Chance& how) {
  const QSize size(static_cast<int>(action.width), static_cast<int>(action.height));
  app_.window().resize(size.boundedTo({1100, 1400}).expandedTo({280, 240}));
  if (how.percent(30)) hand_.frames(1, how);
}

void WindowUser::hideAndShow(Chance& how) {
  app_.window().hide();
  hand_.frames(static_cast<int>(how.between(0, 5)), how);
  app_.window().show();
  app_.window().requestActivate();
  QCoreApplication::processEvents();
}

}  // namespace leafund::random
