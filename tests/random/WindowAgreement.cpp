#include <QQuickItem>
#include <algorithm>
#include <cmath>
#include <map>

#include "interface/qml/bridge/TextBridge.h"
#include "platform/uikit/UIButton.h"
#include "platform/uikit/UILabel.h"
#include "platform/uikit/UINavigationController.h"
#include "platform/uikit/UITabContainer.h"
#include "platform/uikit/UITableView.h"
#include "platform/uikit/UITableViewCell.h"
#include "tests/random/WindowUnderTest.h"

// The window equals the toolkit: whatever the screen shown holds is seen as it is held.
namespace leafund::random {

namespace {

using Items = std::multimap<QString, QQuickItem*>;

void collect(const UIView& root, bool hidden, std::map<const UIView*, bool>& views) {
  for (const auto& view : root.subviews()) {
    const bool gone = hidden || view->hidden();
    if (!view->name().empty()) views[view.get()] = gone;
    collect(*view, gone, views);
  }
}

// What differs, a line each.
class Differences {
 public:
  template <class Value>
  void expect(const std::string& what, const Value& held, const Value& seen) {
    if (held == seen) return;
    told += "  in the window: " + what;
    if constexpr (std::is_same_v<Value, QString>) {
      told += " says \"" + readable(seen.toStdString()) + "\" instead of \"" +
              readable(held.toStdString()) + '"';
    } else if constexpr (std::is_arithmetic_v<Value>) {
      told += " is " + std::to_string(seen) + " instead of " + std::to_string(held);
    } else {
      told += " differs";
    }
    told += '\n';
  }
  void expectNear(const std::string& what, double held, double seen) {
    if (std::abs(held - seen) > 0.01) expect(what, held, seen);
  }

  std::string told;
};

void compareInput(const UITextInput& input, const QQuickItem& item, Differences& differences) {
  const auto words = input.editable() ? qtText(input.text()) : wordsToRead(input.text());
  differences.expect(input.name(), words, item.property("text").toString());
  // Whoever reads and never writes sees the skin's own colour instead of the toolkit's plain black.
  const QColor colour = qtColor(input.textColor().CGColor());
  if (input.editable() || colour != Qt::black) {
    differences.expect(input.name() + " colour", colour, item.property("color").value<QColor>());
  }
  const auto* field = dynamic_cast<const UITextField*>(&input);
  if (field == nullptr || !field->secureTextEntry()) return;
  if (item.property("preeditText").toString().isEmpty()) {
    const bool masked = item.property("echoMode").toInt() != 0;
    differences.expect(input.name() + " masked", field->masked(), masked);
  }
}

void compareWords(const UIView& view, const QQuickItem& item, Differences& differences) {
  if (const auto* input = dynamic_cast<const UITextInput*>(&view)) {
    return compareInput(*input, item, differences);
  }
  const auto shown = item.property("text").toString();
  if (const auto* label = dynamic_cast<const UILabel*>(&view)) {
    differences.expect(view.name(), wordsToRead(label->text()), shown);
  }
  if (const auto* button = dynamic_cast<const UIButton*>(&view)) {
    differences.expect(view.name(), qtText(button->title()), shown);
  }
  if (const auto* tab = dynamic_cast<const UITabBarItem*>(&view)) {
    const bool lit = item.property("iconColor") == item.property("tint");
    differences.expect(view.name() + " selected", tab->selected(), lit);
  }
}

void compareRow(const UITableViewCell& cell, const QQuickItem& item, Differences& differences) {
  const auto name = item.objectName().toStdString();
  const auto frame = cell.frame();
  differences.expectNear(name + " y", frame.y, item.y());
  differences.expectNear(name + " width", frame.width, item.width());
  differences.expectNear(name + " height", frame.height, item.height());
  differences.expect(name + " visible", true, item.isVisible());
  QStringList words;
  for (const auto* text : item.findChildren<QQuickItem*>()) {
    if (text->inherits("leafund::StillText")) words << text->property("text").toString();
  }
  const QStringList held{wordsToRead(cell.textLabel()->text()),
                         wordsToRead(cell.detailTextLabel()->text())};
  differences.expect(name, held.join(u'|'), words.join(u'|'));
}

void compareTable(const UITableView& table, const Items& items, Differences& differences) {
  const QQuickItem* flickable = nullptr;
  for (auto [each, end] = items.equal_range("table"); each != end; ++each) {
    if (each->second->isVisible()) flickable = each->second;
  }
  if (flickable == nullptr) {
    differences.told += "  in the window: no list is shown\n";
    return;
  }
  // On its way the list may be past its end for a frame, the further the longer that took.
  constexpr double mostSwing = 4;  // points
  const double offset = flickable->property("contentY").toDouble();
  const double within = std::clamp(offset, 0.0, table.greatestOffset());
  const bool moving = isOnItsWay(*flickable);
  differences.expectNear("contentY", table.contentOffset().y,
                         moving && std::abs(offset - within) < mostSwing ? within : offset);
  differences.expectNear("contentHeight", table.contentHeight(),
                         flickable->property("contentHeight").toDouble());
  const QQuickItem* rows = nullptr;
  for (const auto& [row, cell] : table.visibleCells()) {
    const auto name = qtText(cell->reuseIdentifier()) + '-' + QString::number(row);
    const auto count = items.count(name);
    differences.expect("items named " + name.toStdString(), std::size_t{1}, count);
    if (count != 1) continue;
    rows = items.find(name)->second->parentItem();
    compareRow(*cell, *items.find(name)->second, differences);
  }
  if (rows == nullptr) return;
  double below = -1;
  std::size_t seen = 0;
  for (const auto* row : rows->childItems()) {
    if (row->objectName().isEmpty()) continue;
    differences.expect(row->objectName().toStdString() + " in order", true, row->y() > below);
    below = row->y();
    ++seen;
  }
  differences.expect("rows", table.visibleCells().size(), seen);
}

}  // namespace

QQuickItem* WindowUnderTest::page() {
  const auto& top = application().navigation()->topViewController();
  QQuickItem* found = nullptr;
  for (auto* each : window().contentItem()->childItems()) {
    if (each->objectName() != qtText(top->className()) || !each->isVisible()) continue;
    if (!each->isEnabled()) continue;
    if (found != nullptr) return nullptr;
    found = each;
  }
  return found;
}

bool isOnItsWay(const QQuickItem& item) {
  return item.property("moving").toBool() || item.property("flicking").toBool();
}

std::string WindowUnderTest::disagreement() {
  const auto& navigation = *application().navigation();
  const auto& top = navigation.topViewController();
  const auto* shown = page();
  if (shown == nullptr)
    return "  in the window: no page, or several, for " + top->className() + "\n";
  Items items;
  for (auto* item : shown->findChildren<QQuickItem*>()) items.emplace(item->objectName(), item);
  Differences differences;
  std::map<const UIView*, bool> views;
  collect(*top->view(), false, views);
  for (const auto& [view, hidden] : views) {
    const auto name = qtText(view->name());
    const auto count = items.count(name);
    differences.expect("items named " + view->name(), std::size_t{1}, count);
    if (count != 1) continue;
    const auto& item = *items.find(name)->second;
    differences.expect(view->name() + " visible", !hidden, item.isVisible());
    compareWords(*view, item, differences);
  }
  if (const auto list = table()) compareTable(*list, items, differences);
  const auto bar = [&](const char* name, bool visible) {
    const auto found = items.find(name);
    const bool seen = found != items.end() && found->second->isVisible();
    differences.expect(std::string(name) + " visible", visible, seen);
    return seen ? found->second : nullptr;
  };
  bar("backButton", navigation.canGoBack(*top));
  if (items.contains("barTitle")) {
    if (const auto* title = bar("barTitle", navigation.showsBar(*top))) {
      differences.expect("barTitle", qtText(navigation.barTitle(*top)),
                         title->property("text").toString());
    }
  }
  return differences.told;
}

std::string WindowUnderTest::unrest() {
  Differences differences;
  auto* shown = page();
  if (shown == nullptr) return "  at rest no page takes input\n";
  const auto frame = application().navigation()->topViewController()->view()->frame();
  differences.expectNear("page x", 0, shown->x());
  differences.expectNear("page width", frame.width, shown->width());
  differences.expectNear("page height", frame.y + frame.height, shown->height());
  int visible = 0;
  for (const auto* each : window().contentItem()->childItems()) visible += each->isVisible();
  differences.expect("pages in sight", 1, visible);
  for (const auto* list : shown->findChildren<QQuickItem*>("table")) {
    differences.expect("the list moves", false, isOnItsWay(*list));
  }
  if (window().isActive()) {
    auto* focus = window().activeFocusItem();
    const bool inside = focus != nullptr && (focus == shown || shown->isAncestorOf(focus));
    differences.expect("focus on the screen shown", true, inside && focus->isVisible());
  }
  return differences.told;
}

}  // namespace leafund::random
