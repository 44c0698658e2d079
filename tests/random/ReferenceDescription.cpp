#include <algorithm>

#include "tests/random/ReferenceApp.h"

// What can be seen, told screen by screen.
namespace leafund::random {

namespace {

void describeTable(const Table& table, Sheet& sheet) {
  sheet.table({.offset = table.offset,
               .contentHeight = table.contentHeight(),
               .rowHeight = table.toldRowHeight});
  for (const auto& object : table.made) {
    CellFacts facts{.hidden = object->hidden,
                    .top = object->top,
                    .width = object->width,
                    .height = kRowHeight,
                    .title = object->title,
                    .detail = object->detail,
                    .picture = object->picture,
                    .border = {.width = 0.5, .radius = 65, .black = true, .clips = true},
                    .cards = object->cards,
                    .lastCardWidth = object->lastCardWidth};
    for (const auto& [row, shown] : table.shown) {
      if (shown == object) facts.row = static_cast<std::ptrdiff_t>(row);
    }
    sheet.cell(facts);
  }
}

void describeScreen(const Screen& screen, const ScreenFacts& facts, Sheet& sheet) {
  sheet.screen(facts);
  for (const auto& view : screen.views) sheet.view(view.facts());
  if (screen.table) describeTable(*screen.table, sheet);
}

}  // namespace

void ReferenceApp::describe(Sheet& sheet) const {
  for (const auto& screen : stack_) {
    const std::string title = barTitle(*screen);
    const bool back = canGoBack(*screen);
    describeScreen(*screen,
                   {.className = className(screen->scene),
                    .barTitle = title,
                    .barShown = !title.empty() || back,
                    .backPossible = back,
                    .hidesBack = screen->hidesBack,
                    .y = screen->y,
                    .width = screen->width,
                    .height = screen->height},
                   sheet);
    for (const auto& tab : screen->tabs) {
      describeScreen(*tab,
                     {.className = className(tab->scene),
                      .barTitle = tab->title,
                      .hidesBack = tab->hidesBack,
                      .tabOnScreen = tab == screen->openTab(kTabs[screen->tab]),
                      .y = 0,
                      .width = tab->width,
                      .height = tab->height},
                     sheet);
    }
  }
  for (const auto& transfer : transfers_) sheet.note("transfer", transfer.address);
  sheet.note("redrawings", redrawings_);
  std::erase_if(everMade_, [](const auto& each) { return each.expired(); });
  sheet.note("screens alive", everMade_.size());
  if (emailAnswer_) sheet.note("email rule", *emailAnswer_ ? "yes" : "no");
}

}  // namespace leafund::random
