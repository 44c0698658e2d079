#include "tests/random/WindowUser.h"

#include <algorithm>
#include <cmath>

#include "platform/qt/QtValues.h"

// What the user of a window does for an action.
namespace leafund::random {

namespace {

constexpr int kMostTabs = 30;
constexpr int kTogether = 500;  // milliseconds, in which clicks may be one multiple click,
constexpr double kNear = 35;    // and points
constexpr int kSurelyTogether = 300;
constexpr qsizetype kMostTyped = 120;

QPointF pointIn(const QRectF& area, Chance& how) {
  const auto share = [&] { return static_cast<double>(how.between(4, 96)) / 100; };
  const double x = area.x() + area.width() * share();
  return {x, area.y() + area.height() * share()};
}

std::string told(QPointF point) {
  return std::to_string(std::lround(point.x())) + ", " + std::to_string(std::lround(point.y()));
}

int clicks(Chance& how) {
  const auto lot = how.below(10);
  return lot < 7 ? 1 : lot < 9 ? 2 : 3;
}

}  // namespace

std::string WindowUser::perform(const Action& action) {
  told_.clear();
  Chance how(action.how);
  app_.takeArrived();
  go(action, how);
  expect({}, true, kindName(action.kind));
  if (hand_.serve(how)) told_ += app_.unrest();
  expect({}, true, "nobody");
  return told_;
}

void WindowUser::Earlier::note(int now, QPointF place) {
  where = place;
  at = now;
  since.start();
}

bool WindowUser::Earlier::soonAfter(int now, QPointF place) const {
  return since.isValid() && QLineF(where, place).length() < kNear &&
         (since.elapsed() < kTogether || now - at < kTogether);
}

void WindowUser::go(const Action& action, Chance& how) {
  const bool anywhere = how.percent(8);
  switch (action.kind) {
    case ActionKind::Tap:
      return anywhere ? tapAt(anyPoint(how), how, clicks(how), how.percent(40))
                      : tapView(action.name, how);
    case ActionKind::TapRow:
      return tapRow(action.number, how);
    case ActionKind::TapBeside:
      return tapAt(anyPoint(how), how, clicks(how), how.percent(40));
    case ActionKind::TapBoth:
      tapView(action.name, how);
      return tapView(action.text, how);
    case ActionKind::BeginEditing:
      return tapView(action.name, how);
    case ActionKind::Type:
      return type(action, how);
    case ActionKind::EndEditing:
      if (how.percent(10)) return hand_.keyClick(Qt::Key_Menu);
      return hand_.keyClick(how.percent(50) ? Qt::Key_Tab : Qt::Key_Backtab);
    case ActionKind::PressReturn:
      return pressKeys(Qt::Key_Return, 1, 0, how);
    case ActionKind::TypeIntoHeld:
      return hand_.write(QString::fromStdString(action.text).left(kMostTyped), how);
    case ActionKind::HoldView:
    case ActionKind::HoldRow:
      return how.percent(40) ? longPress(anyPoint(how), how)
                             : drag(anyPoint(how), anyPoint(how), how);
    case ActionKind::Scroll:
      return scroll(action, how);
    case ActionKind::Resize:
      return resize(action, how);
    case ActionKind::GoBack:
      return goBack(how);
    case ActionKind::TellApplication:
      return hideAndShow(how);
    case ActionKind::DrainMainQueue:
      return QCoreApplication::processEvents();
    default:
      return;  // of pictures, and of what is no user's: WindowSequence
  }
}

void WindowUser::tapView(const std::string& name, Chance& how) { tapItem(itemOf(name), how); }

void WindowUser::tapRow(long row, Chance& how) { tapItem(rowItem(row), how); }

void WindowUser::tapItem(QQuickItem* item, Chance& how) {
  if (item == nullptr) return;
  if (how.percent(20)) {
    if (!focusByTab(item->objectName().toStdString(), how)) return;
    return pressKeys(how.percent(50) ? Qt::Key_Return : Qt::Key_Space, clicks(how),
                     how.percent(15) ? 5 : 0, how);
  }
  item = reach(item, how);
  if (item == nullptr) return;
  const auto where = pointIn(inSight(*item), how);
  const auto lot = how.below(20);
  if (lot == 0) return longPress(where, how);
  if (lot == 1) return clickRight(where);
  tapAt(where, how, clicks(how), how.percent(40));
}

void WindowUser::tapAt(QPointF where, Chance& how, int count, bool byTouch) {
  const bool besideThumb = byTouch && how.percent(10) && putThumb();
  const Top before = top();
  bool late = lastClick_.soonAfter(hand_.now(), where);
  for (int click = 0; click < count; ++click) {
    // What comes too late on a busy machine is a tap of its own.
    const bool slow = byTouch && click > 0 && lastTouch_.since.elapsed() > kSurelyTogether;
    const auto place = top() == before || slow ? placeAt(where) : Place{};
    // Qt Quick takes a finger's second tap for a double click, and no area here asks for those.
    const bool again = byTouch && lastTouch_.soonAfter(hand_.now(), where);
    const bool moves = contentMoves();
    const bool menu = menuIsOpen();  // which is closed, and what continues that comes to nothing
    if (byTouch) lastTouch_.note(hand_.now(), where);  // what the first leads to takes time as well
    QElapsedTimer held;
    held.start();
    hand_.press(where, byTouch);
    hand_.release(where, byTouch);
    const bool isLong = byTouch && held.elapsed() >= WindowHost::kLongPress / 2;
    expect(place, moves || late || again || slow || isLong,
           (byTouch ? "touch " : "click ") + std::to_string(click + 1) + " at " + told(where));
    late = late || menu;
    if (top() != before || late) lastClick_.note(hand_.now(), where);
    if (!told_.empty() || click + 1 == count) break;
    if (how.percent(70)) hand_.frames(static_cast<int>(how.between(1, 12)), how);
    expect({}, true, "between clicks");
  }
  if (!besideThumb) return;
  hand_.liftThumb();
  expect({}, false, "a thumb that is lifted");
}

void WindowUser::longPress(QPointF where, Chance& how) {
  auto place = placeAt(where);
  const Top before = top();
  const bool byTouch = how.percent(40);
  if (byTouch) lastTouch_.note(hand_.now(), where);  // which is held for a moment of real time
  hand_.press(where, byTouch);
  hand_.frames(static_cast<int>(how.between(1, 60)), how);
  if (top() != before) place.sure = false;  // nothing of the user's: a picture cannot do it either
  hand_.release(where, byTouch);
  expect(place, true, "a long press");
}

// It is no tap anywhere; of a text it opens the menu.
void WindowUser::clickRight(QPointF where) {
  if (menuIsOpen()) lastClick_.note(hand_.now(), where);
  hand_.clickRight(where);
  expect({}, false, "a click of the right button at " + told(where));
}

void WindowUser::pressKeys(int key, int count, int repeats, Chance& how) {
  const Top before = top();
  bool late = lastKey_.soonAfter(hand_.now(), {}) && lastKey_.key == key;
  const auto modifiers = key == Qt::Key_Left ? Qt::AltModifier : Qt::NoModifier;
  for (int press = 0; press < count; ++press) {
    const auto place = top() == before ? placeInFocus(key) : Place{};
    const bool menu = menuIsOpen();
    hand_.keyDown(key, {}, modifiers);
    expect(place, late, "a key");
    for (int each = 0; each < repeats; ++each) {
      hand_.keyDown(key, {}, modifiers, true);
      if (how.percent(40)) hand_.frames(2, how);
      expect({}, false, "a key that is held");
    }
    hand_.keyUp(key, modifiers);
    late = late || menu;
    if (top() != before || late) {  // each press of a series may have a next one
      lastKey_.note(hand_.now(), {});
      lastKey_.key = key;
    }
    if (!told_.empty()) return;
    if (press + 1 < count) hand_.frames(static_cast<int>(how.between(0, 8)), how);
  }
}

void WindowUser::type(const Action& action, Chance& how) {
  auto* item = itemOf(action.name);
  if (item == nullptr || item->property("readOnly").isNull()) return tapItem(item, how);
  if (!item->hasActiveFocus()) {
    item = reach(item, how);
    if (item == nullptr) return;
    tapAt(pointIn(inSight(*item), how), how, 1, how.percent(40));
  }
  if (!item->hasActiveFocus() || !told_.empty()) return;
  const auto text = QString::fromStdString(action.text).left(kMostTyped);
  hand_.write(text, how);
  const auto typed = text.toStdString();
  const bool plain =
      std::all_of(typed.begin(), typed.end(), [](char c) { return c >= 32 && c < 127; });
  for (const auto* screen : {&reference_.top(), &reference_.shown()}) {
    for (const auto& view : screen->views) {
      if (view.name != action.name || !plain || view.text == typed) continue;
      complain(action.name + " holds \"" + readable(view.text) + "\" where \"" + typed +
               "\" was typed");
      return;
    }
  }
}

QQuickItem* WindowUser::reach(QQuickItem* item, Chance& how) {
  const QPointF middle(app_.window().width() / 2.0, app_.window().height() / 2.0);
  for (int notch = 0; notch < 25; ++notch) {
    if (const auto seen = inSight(*item); seen.height() > 4 && seen.width() > 4) return item;
    const bool below = item->mapToScene({0, 0}).y() > middle.y();
    hand_.wheel(middle, below ? -1 : 1);
    hand_.frames(6, how);
  }
  return nullptr;
}

bool WindowUser::focusByTab(const std::string& name, Chance& how) {
  for (int tab = 0; tab < kMostTabs; ++tab) {
    const auto* focus = app_.window().activeFocusItem();
    if (focus != nullptr && focus->objectName() == qtText(name)) return true;
    hand_.keyClick(Qt::Key_Tab);
    if (how.percent(20)) hand_.frames(1, how);
  }
  return false;
}

QPointF WindowUser::anyPoint(Chance& how) {
  return pointIn(QRectF({0, 0}, app_.window().size()), how);
}

}  // namespace leafund::random
