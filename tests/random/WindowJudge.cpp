#include <QQuickItem>
#include <algorithm>

#include "platform/qt/QtValues.h"
#include "tests/random/WindowUser.h"

// What a tap must do, by what the reference knows to be there.
namespace leafund::random {

namespace {

constexpr double kEdge = 1.5;  // points, around which a click may go either way

std::string rowWord(long row) { return "row " + std::to_string(row); }

// Empty for what is neither a tap nor a way back.
std::string wordOf(const Action& action) {
  switch (action.kind) {
    case ActionKind::Tap:
      return "tap " + action.name;
    case ActionKind::TapRow:
      return rowWord(action.number);
    case ActionKind::TapBeside:
      return "beside";
    case ActionKind::GoBack:
      return "back";
    default:
      return {};
  }
}

std::string joined(const std::vector<std::string>& words) {
  std::string all;
  for (const auto& word : words) all += (all.empty() ? "" : ", ") + word;
  return all.empty() ? "nothing" : all;
}

// The box of an input takes clicks for it.
const QQuickItem& boxOf(const QQuickItem& input) {
  for (const auto* each = &input; each != nullptr; each = each->parentItem()) {
    if (each->property("userIsIn").isValid()) return *each;
  }
  return input;
}

}  // namespace

QQuickItem* WindowUser::itemOf(const std::string& name) {
  auto* page = app_.page();
  if (page == nullptr) return nullptr;
  for (auto* item : page->findChildren<QQuickItem*>(qtText(name))) {
    if (item->isVisible()) return item;
  }
  return nullptr;
}

QQuickItem* WindowUser::rowItem(long row) {
  auto* page = app_.page();
  if (page == nullptr || !reference_.shown().table) return nullptr;
  for (auto* item : page->findChildren<QQuickItem*>()) {
    const auto name = item->objectName();
    if (name.endsWith('-' + QString::number(row)) && item->isVisible()) return item;
  }
  return nullptr;
}

QRectF WindowUser::inSight(const QQuickItem& item) {
  // Not its boundingRect(), which of an input is that of its text: none of an empty one.
  QRectF seen = item.mapRectToScene({0, 0, item.width(), item.height()});
  for (const auto* each = item.parentItem(); each != nullptr; each = each->parentItem()) {
    if (each->clip()) seen &= each->mapRectToScene(each->boundingRect());
  }
  return seen & QRectF({0, 0}, app_.window().size());
}

WindowUser::Place WindowUser::placeAt(QPointF where) {
  const auto* page = app_.page();
  if (page == nullptr) return {.sure = false};
  if (menuIsOpen()) return {};
  const auto& top = reference_.top();
  const auto& shown = reference_.shown();
  Place place;
  const auto consider = [&](const QRectF& area, const std::string& tap, const std::string& input) {
    if (!area.adjusted(-kEdge, -kEdge, kEdge, kEdge).contains(where)) return;
    place.sure = place.tap.empty() && place.input.empty() &&
                 area.adjusted(kEdge, kEdge, -kEdge, -kEdge).contains(where);
    if (!tap.empty()) place.tap = {tap};
    place.input = input;
  };
  const auto considerViews = [&](const Screen& screen) {
    for (const auto& view : screen.views) {
      auto* item = view.isControl() && !view.hidden ? itemOf(view.name) : nullptr;
      if (item == nullptr || (view.isInput() && !view.editable)) continue;
      if (view.isInput()) {
        consider(inSight(boxOf(*item)), "", view.name);
      } else {
        consider(inSight(*item), "tap " + view.name, "");
      }
    }
  };
  considerViews(top);
  if (&shown != &top) considerViews(shown);
  if (reference_.canGoBack(top)) {
    if (auto* back = itemOf("backButton")) consider(inSight(*back), "back", "");
  }
  if (shown.table) {
    const double y = page->y() + top.y;
    // The rows are a column, and the list is scrolled beside them, too, up to tabs at its side.
    const double start = page->x() + reference_.railWidth();
    const double width = top.width - reference_.railWidth();
    const double margin = std::floor((width - shown.width) / 2);
    const QRectF list =
        QRectF(start, y, width, shown.table->height) & QRectF({0, 0}, app_.window().size());
    // Below its rows a list keeps a tap to itself, and none of its screens has a use for one.
    place.sure = place.sure && !list.contains(where);
    for (const auto& [row, object] : shown.table->shown) {
      const QRectF area(start + margin, y + object->top - shown.table->offset, shown.width,
                        kRowHeight);
      consider(area & list, rowWord(static_cast<long>(row)), "");
    }
  }
  if (place.tap.empty() && place.input.empty()) {
    const QRectF whole(page->x(), page->y(), page->width(), page->height());
    if (whole.contains(where)) place.tap = {"beside"};
  }
  return place;
}

bool WindowUser::menuIsOpen() { return itemOf("editMenu") != nullptr; }

WindowUser::Place WindowUser::placeInFocus(int key) {
  if (menuIsOpen()) return {};
  if (key == Qt::Key_Escape || key == Qt::Key_Back) return {.tap = {"back"}};
  const auto* page = app_.page();
  auto* focus = app_.window().activeFocusItem();
  if (key == Qt::Key_Left) {  // with Alt; an input may have another use for it
    return {
        .tap = {"back"},
        .sure = focus == nullptr || !focus->flags().testFlag(QQuickItem::ItemAcceptsInputMethod)};
  }
  if (focus == nullptr || page == nullptr || !page->isAncestorOf(focus)) return {};
  const auto name = focus->objectName().toStdString();
  if (name == "backButton") return {.tap = {"back"}};
  for (const auto* screen : {&reference_.top(), &reference_.shown()}) {
    for (const auto& view : screen->views) {
      if (view.name != name) continue;
      if (view.isInput() || !view.isControl() || view.hidden) return {};
      return {.tap = {"tap " + name}};
    }
  }
  const auto dash = name.rfind('-');
  if (dash == std::string::npos || !reference_.shown().table) return {};
  return {.tap = {"row " + name.substr(dash + 1)}};
}

bool WindowUser::contentMoves() {
  const auto* page = app_.page();
  if (page == nullptr) return true;
  for (const auto* item : page->findChildren<QQuickItem*>()) {
    if (isOnItsWay(*item)) return true;
  }
  return false;
}

WindowUser::Taps WindowUser::takeTaps() {
  Taps taps;
  for (const auto& action : app_.takeArrived()) {
    if (auto word = wordOf(action); !word.empty()) taps.push_back(std::move(word));
  }
  return taps;
}

void WindowUser::judge(const Taps& taps, const Place& place, bool orNone, const std::string& what) {
  if (orNone && taps.empty()) return;
  if (!place.sure && taps.size() <= 1) return;
  if (taps != place.tap) {
    complain(what + " must be: " + joined(place.tap) + "; was: " + joined(taps));
  }
  if (place.input.empty() || orNone || !place.sure) return;
  for (const auto* screen : {&reference_.top(), &reference_.shown()}) {
    for (const auto& view : screen->views) {
      if (view.name == place.input && !view.editing) complain(place.input + " was not entered");
    }
  }
}

}  // namespace leafund::random
