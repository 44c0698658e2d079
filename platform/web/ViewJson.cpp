#include "platform/web/ViewJson.h"

#include <array>
#include <cstdio>
#include <string>

#include "platform/uikit/UIButton.h"
#include "platform/uikit/UIImageView.h"
#include "platform/uikit/UILabel.h"
#include "platform/uikit/UIProgressView.h"
#include "platform/uikit/UITabContainer.h"
#include "platform/uikit/UITableView.h"
#include "platform/uikit/UITextInput.h"

namespace leafund {

namespace {

std::string css(const CGColor& color) {
  const auto whole = [](float share) { return static_cast<int>(share * 255 + 0.5F); };
  std::array<char, 40> text{};
  std::snprintf(text.data(), text.size(), "rgb(%d %d %d/%g)", whole(color.red), whole(color.green),
                whole(color.blue), static_cast<double>(color.alpha));
  return text.data();
}

void readInput(const UITextInput& input, Json& json) {
  json.text("text", input.text()).text("placeholder", input.placeholder());
  json.number("keyboard", static_cast<int>(input.keyboardType())).flag("editing", input.editing());
  json.flag("message", input.showsMessage());
  json.flag("wrong", input.textColor() != UIColor::blackColor());
  if (input.kind() == ViewKind::TextField) {
    json.flag("masked", static_cast<const UITextField&>(input).masked());
  }
}

void readTab(const UITabBarItem& tab, Json& json) {
  json.text("text", tab.title()).flag("selected", tab.selected());
  if (const auto& color = tab.selectedTitleColor()) json.text("color", css(color->CGColor()));
}

void readTable(const UITableView& table, Json& json) {
  json.number("height", table.contentHeight()).number("offset", table.contentOffset().y);
  json.number("placements", table.placements()).number("width", table.frame().width);
  // Not with every step of a scroll.
  if (table.contentHeight() > 0) return;
  json.text("emptyHeading", table.emptyWords().heading);
  json.text("emptySentence", table.emptyWords().sentence);
}

void readPicture(const UIImageView& picture, Json& json) {
  json.flag("fill", picture.contentMode() == UIViewContentMode::ScaleAspectFill);
  const auto& layer = picture.layer();
  json.number("radius", layer.cornerRadius());
  if (!layer.borderColor()) return;
  json.number("border", layer.borderWidth()).text("borderColor", css(*layer.borderColor()));
}

void readProgress(const UIProgressView& progress, Json& json) {
  json.number("value", static_cast<double>(progress.shownProgress()));
  json.number("from", static_cast<double>(progress.animatedFrom()));
}

void readTabBar(const UITabBar& bar, Json& json) {
  if (const auto& color = bar.tintColor()) json.text("tint", css(color->CGColor()));
}

void readKind(const UIView& view, Json& json) {
  switch (view.kind()) {
    case ViewKind::Label:
      json.text("text", static_cast<const UILabel&>(view).text());
      return;
    case ViewKind::Image:
      return readPicture(static_cast<const UIImageView&>(view), json);
    case ViewKind::Progress:
      return readProgress(static_cast<const UIProgressView&>(view), json);
    case ViewKind::Button:
      json.text("text", static_cast<const UIButton&>(view).title());
      return;
    case ViewKind::TextField:
    case ViewKind::TextView:
      return readInput(static_cast<const UITextInput&>(view), json);
    case ViewKind::Table:
      return readTable(static_cast<const UITableView&>(view), json);
    case ViewKind::TabBar:
      return readTabBar(static_cast<const UITabBar&>(view), json);
    case ViewKind::Tab:
      return readTab(static_cast<const UITabBarItem&>(view), json);
    case ViewKind::Plain:
    case ViewKind::Scroll:
    case ViewKind::Cell:
      return;
  }
}

Json jsonOf(const CardLook& card) {
  Json json = Json::object();
  json.number("x", card.frame.x).number("y", card.frame.y).number("height", card.frame.height);
  json.number("radius", card.layer.cornerRadius());
  const auto shadow = card.layer.shadowOffset();
  json.number("shadowX", shadow.width).number("shadowY", shadow.height);
  json.number("shadow", card.layer.shadowOpacity());
  return json;
}

}  // namespace

Json lookOf(const UIView& view) {
  Json json = Json::object();
  if (!view.accessibilityLabel().empty()) json.text("label", view.accessibilityLabel());
  json.flag("hidden", view.hidden());
  readKind(view, json);
  return json;
}

Json jsonOf(const Cards& cards) {
  Json json = Json::list();
  for (const auto& card : cards.looks()) json.member("", jsonOf(card));
  return json;
}

}  // namespace leafund
