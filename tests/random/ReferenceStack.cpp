#include <algorithm>

#include "tests/random/ReferenceApp.h"
#include "tests/random/ReferenceRules.h"

// Where the screens stand, how large they are, and which rows are in sight.
namespace leafund::random {

namespace {

bool isList(const Screen& screen) { return screen.table.has_value(); }

}  // namespace

ScreenRef ReferenceApp::make(Scene scene) {
  auto screen = layOut(scene, wording_.scenes.at(className(scene)));
  std::erase_if(everMade_, [](const auto& each) { return each.expired(); });
  everMade_.push_back(screen);
  return screen;
}

void ReferenceApp::push(const ScreenRef& screen) {
  stack_.push_back(screen);
  load(screen);
  appear();
}

void ReferenceApp::popTo(std::size_t depth) {
  stack_.resize(depth);
  appear();
}

void ReferenceApp::popToNearest(Scene scene) {
  auto depth = stack_.size() - 1;
  while (stack_[depth - 1]->scene != scene) --depth;
  popTo(depth);
}

void ReferenceApp::appear() {
  layOutTop();
  if (const auto tab = selectedTab()) reload(tab);
}

ScreenRef ReferenceApp::selectedTab() const {
  return top().scene == Scene::Home ? top().openTab(kTabs[top().tab]) : nullptr;
}

void ReferenceApp::selectTab(std::size_t tab) {
  Screen& home = *stack_.back();
  if (!home.tabs.empty() && home.tab == tab) return;
  home.tab = tab;
  for (std::size_t each = 0; each < 4; ++each) home.views[2 + each].selected = each == tab;
  home.at("newButton").hidden = kTabs[tab] != Scene::Mine;
  if (!home.openTab(kTabs[tab])) {
    home.tabs.push_back(make(kTabs[tab]));
    home.tabs.back()->hidesBack = isList(*home.tabs.back());
  }
}

bool ReferenceApp::canGoBack(const Screen& screen) const {
  if (twist_ == Twist::NoBackFromTheForm && screen.scene == Scene::NewCampaign) return false;
  return stack_.front().get() != &screen && !screen.hidesBack;
}

std::string ReferenceApp::barTitle(const Screen& screen) const {
  return screen.scene == Scene::Home ? screen.openTab(kTabs[screen.tab])->title : screen.title;
}

void ReferenceApp::layOutTop() {
  Screen& screen = *stack_.back();
  const bool bar = !barTitle(screen).empty() || canGoBack(screen);
  screen.y = bar ? kBarHeight : 0;
  screen.width = width_;
  screen.height = std::max(0.0, height_ - screen.y);
  const auto tab = selectedTab();
  if (!tab) return;
  // Tabs stand below it or at its side. A list is a column.
  const double room = width_ - railWidth();
  tab->width = tab->table ? std::min(720.0, std::max(0.0, room - 2 * 16)) : room;
  tab->height = std::max(0.0, screen.height - (railWidth() > 0 ? 0 : kTabBarHeight));
  if (!tab->table) return;
  tab->table->width = tab->width;
  tab->table->height = tab->height;
}

void ReferenceApp::reload(const ScreenRef& screen) {
  if (!screen->table) return;
  const auto count = listOf(screen->scene).size();
  if (twist_ != Twist::CountIsNotPrinted) print(std::to_string(count));
  screen->table->reload(count);
}

void ReferenceApp::settle() {
  const auto tab = selectedTab();
  if (!tab || !tab->table) return;
  for (const auto row : tab->table->missing()) showRow(tab, row);
}

void ReferenceApp::showRow(const ScreenRef& screen, std::size_t row) {
  Table& table = *screen->table;
  if (twist_ == Twist::RowsFromTheBackOfThePool) {
    std::reverse(table.waiting.begin(), table.waiting.end());
  }
  const auto object = table.take();
  const auto& pledge = entry(listOf(screen->scene), row, *screen);
  object->title = pledge->title;
  object->detail = pledge->pitch;
  if (!isAddress(pledge->photo)) {
    const char* reason = twist_ == Twist::AnotherReasonToStop ? "no address: " : "not a URL: ";
    throw Stopped{className(screen->scene), reason + pledge->photo};
  }
  table.toldRowHeight = 100;
  fetch({pledge->photo, screen, object, ""});
  table.place(row, object);
}

}  // namespace leafund::random
