#include "tests/random/ReferenceScreen.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

namespace leafund::random {

namespace {

const char* kindWord(ViewKind kind) {
  switch (kind) {
    case ViewKind::Label:
      return "label";
    case ViewKind::Button:
      return "button";
    case ViewKind::Field:
      return "field";
    case ViewKind::Area:
      return "area";
    case ViewKind::Picture:
      return "picture";
    case ViewKind::Progress:
      return "progress";
    case ViewKind::Scroll:
      return "scroll";
    case ViewKind::Tab:
      return "tab";
    case ViewKind::TabBar:
      return "tab-bar";
    case ViewKind::Tabs:
      return "tabs";
  }
  return "";
}

}  // namespace

ViewFacts View::facts() const {
  return {.kind = kindWord(kind),
          .name = name,
          .text = text,
          .placeholder = placeholder,
          .spoken = spoken,
          .hidden = hidden,
          .editing = editing,
          .masked = secure && !showsMessage(),
          .message = isInput() && showsMessage(),
          .editable = isInput() && editable,
          .selected = selected,
          .fillsByCutting = fillsByCutting,
          .ink = ink,
          .keyboard = keyboard,
          .progress = progress,
          .progressFrom = progressFrom,
          .picture = picture,
          .border = border};
}

void Table::putAway(const RowRef& row) {
  row->hidden = true;
  waiting.push_back(row);
}

void Table::reload(std::size_t rows) {
  for (const auto& [row, object] : std::exchange(shown, {})) putAway(object);
  count = rows;
  offset = std::clamp(offset, 0.0, greatestOffset());
}

std::vector<std::size_t> Table::missing() {
  offset = std::min(offset, greatestOffset());
  const auto inSight = [&](std::size_t row) {
    const double top = static_cast<double>(row) * kRowHeight;
    return height > 0 && row < count && top < offset + height && top + kRowHeight > offset;
  };
  for (auto each = shown.begin(); each != shown.end();) {
    if (inSight(each->first)) {
      each->second->width = width;
      ++each;
    } else {
      putAway(each->second);
      each = shown.erase(each);
    }
  }
  std::vector<std::size_t> rows;
  for (auto row = static_cast<std::size_t>(offset / kRowHeight); inSight(row); ++row) {
    if (!shown.contains(row)) rows.push_back(row);
  }
  return rows;
}

RowRef Table::take() {
  if (waiting.empty()) return std::make_shared<Row>();
  auto row = waiting.front();
  waiting.pop_front();
  return row;
}

void Table::place(std::size_t row, const RowRef& object) {
  if (std::find(made.begin(), made.end(), object) == made.end()) made.push_back(object);
  object->hidden = false;
  object->top = static_cast<double>(row) * kRowHeight;
  object->width = width;
  ++object->cards;
  object->lastCardWidth = width;
  shown[row] = object;
}

View* Screen::find(const std::string& name) {
  const auto found =
      std::find_if(views.begin(), views.end(), [&](const View& view) { return view.name == name; });
  return found == views.end() ? nullptr : &*found;
}

View& Screen::at(const char* name) {
  if (auto* view = find(name)) return *view;
  throw std::logic_error(std::string("the reference has no view named ") + name);
}

ScreenRef Screen::openTab(Scene wanted) const {
  const auto found = std::find_if(tabs.begin(), tabs.end(),
                                  [&](const ScreenRef& each) { return each->scene == wanted; });
  return found == tabs.end() ? nullptr : *found;
}

}  // namespace leafund::random
