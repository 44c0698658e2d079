#include <algorithm>
#include <typeinfo>

#include "platform/display/SceneViews.h"
#include "platform/graphics/DrawingContext.h"
#include "platform/uikit/UIButton.h"
#include "platform/uikit/UIImageView.h"
#include "platform/uikit/UILabel.h"
#include "platform/uikit/UINavigationController.h"
#include "platform/uikit/UIProgressView.h"
#include "platform/uikit/UITabContainer.h"
#include "platform/uikit/UITableView.h"
#include "platform/uikit/UITableViewCell.h"
#include "tests/random/AppUnderTest.h"

// What can be seen, told screen by screen.
namespace leafund::random {

namespace {

// A picture that is drawn otherwise than expected is told with impossible sides.
constexpr PictureFacts kStrange{-1, -1, false};

const auto kAccent = UIColor::initWithRedGreenBlueAlpha(83.0 / 255, 134.0 / 255, 47.0 / 255, 1);

PictureFacts pictureOf(const UIImageView& view) {
  const auto& image = view.image();
  if (!image) return {};
  const auto* drawing = image->drawing();
  if (drawing == nullptr) {
    return {static_cast<int>(image->size().width), static_cast<int>(image->size().height), false};
  }
  const CGSize expected{128, 128};
  if (drawing->strokes.size() != 1 || drawing->size != expected || image->size() != expected ||
      drawing->opaque || drawing->scale != 2 || image->scale() != 2 ||
      drawing->strokes[0].rect != CGRect{0, 0, 128, 128}) {
    return kStrange;
  }
  const auto size = drawing->strokes[0].image->size();
  return {static_cast<int>(size.width), static_cast<int>(size.height), true};
}

BorderFacts borderOf(const UIView& view) {
  const auto& layer = view.layer();
  return {.width = layer.borderWidth(),
          .radius = layer.cornerRadius(),
          .black = layer.borderColor() == UIColor::blackColor().CGColor(),
          .clips = layer.masksToBounds()};
}

Ink inkOf(const UITextInput& input) {
  if (input.textColor() == UIColor::blackColor()) return Ink::Black;
  return input.textColor() == UIColor::redColor() ? Ink::Red : Ink::Other;
}

void tellInput(const UITextInput& input, ViewFacts& facts) {
  facts.text = input.text();
  facts.placeholder = input.placeholder();
  facts.editing = input.editing();
  facts.message = input.showsMessage();
  facts.editable = input.editable();
  facts.ink = inkOf(input);
  facts.keyboard = static_cast<int>(input.keyboardType());
}

ViewFacts factsOf(const UIView& view) {
  ViewFacts facts{.kind = "unknown",
                  .name = view.name(),
                  .spoken = view.accessibilityLabel(),
                  .hidden = view.hidden(),
                  .border = borderOf(view)};
  const auto& type = typeid(view);
  if (type == typeid(UILabel)) {
    facts.kind = "label";
    facts.text = static_cast<const UILabel&>(view).text();
  } else if (type == typeid(UIButton)) {
    facts.kind = "button";
    facts.text = static_cast<const UIButton&>(view).title();
  } else if (type == typeid(UITextField)) {
    const auto& field = static_cast<const UITextField&>(view);
    facts.kind = "field";
    tellInput(field, facts);
    facts.masked = field.masked();
  } else if (type == typeid(UITextView)) {
    facts.kind = "area";
    tellInput(static_cast<const UITextView&>(view), facts);
  } else if (type == typeid(UIImageView)) {
    const auto& picture = static_cast<const UIImageView&>(view);
    facts.kind = "picture";
    facts.fillsByCutting = picture.contentMode() == UIViewContentMode::ScaleAspectFill;
    facts.picture = pictureOf(picture);
  } else if (type == typeid(UIProgressView)) {
    const auto& bar = static_cast<const UIProgressView&>(view);
    facts.kind = "progress";
    facts.progress = bar.progress();
    facts.progressFrom = bar.animatedFrom();
  } else if (type == typeid(UITabBarItem)) {
    const auto& tab = static_cast<const UITabBarItem&>(view);
    facts.kind = "tab";
    facts.text = tab.title();
    facts.selected = tab.selected();
    if (tab.selectedTitleColor() != kAccent) facts.ink = Ink::Other;
  } else if (type == typeid(UIScrollView)) {
    facts.kind = "scroll";
  } else if (type == typeid(UITabBar)) {
    facts.kind = "tab-bar";
  } else if (type == typeid(UITabContainer)) {
    facts.kind = "tabs";
  }
  return facts;
}

// The width of a card, or an impossible one where it looks otherwise than cards do.
double cardWidth(const UIView& card) {
  CALayer white;
  white.setBackgroundColor(CGColor{1, 1, 1, 1});
  white.setCornerRadius(2);
  white.setShadowOffset({-1, 1});
  white.setShadowOpacity(0.2);
  const double width = card.frame().width;
  return card.layer() == white && card.frame() == CGRect{0, 10, width, 145} ? width : -1;
}

CellFacts factsOf(const UITableViewCell& cell, const UITableView& table) {
  CellFacts facts{.hidden = cell.hidden(),
                  .top = cell.frame().y,
                  .width = cell.frame().width,
                  .height = cell.frame().height,
                  .title = cell.textLabel()->text(),
                  .detail = cell.detailTextLabel()->text(),
                  .picture = pictureOf(*cell.imageView()),
                  .border = borderOf(*cell.imageView())};
  for (const auto& [row, shown] : table.visibleCells()) {
    if (shown.get() == &cell) facts.row = row;
  }
  // The cards lie behind the picture and the two labels, the latest of them undermost.
  const auto& parts = cell.contentView()->subviews();
  facts.cards = parts.size() - 3;
  if (facts.cards > 0) facts.lastCardWidth = cardWidth(*parts.front());
  return facts;
}

void describeTable(const UITableView& table, Sheet& sheet) {
  sheet.table({.offset = table.contentOffset().y,
               .contentHeight = table.contentHeight(),
               .rowHeight = table.rowHeight()});
  for (const auto& view : table.subviews()) {
    sheet.cell(factsOf(static_cast<const UITableViewCell&>(*view), table));
  }
}

// The views in reading order; the root of a tab's screen is told with that screen.
void describeViews(const UIView& root, const UIView* tabRoot, Sheet& sheet) {
  for (const auto& view : root.subviews()) {
    if (view.get() == tabRoot) continue;
    if (!view->name().empty()) sheet.view(factsOf(*view));
    describeViews(*view, tabRoot, sheet);
  }
}

void describeContent(const UIView& root, const UIView* tabRoot, Sheet& sheet) {
  if (typeid(root) == typeid(UITableView)) {
    describeTable(static_cast<const UITableView&>(root), sheet);
  } else {
    describeViews(root, tabRoot, sheet);
  }
}

}  // namespace

SceneWords wordsOf(const UIViewController& screen) {
  SceneWords words;
  words.title = screen.navigationItem().title();
  for (const auto& view : namedViews(screen)) {
    const auto facts = factsOf(*view);
    words.views[view->name()] = {.text = std::string(facts.text),
                                 .placeholder = std::string(facts.placeholder),
                                 .spoken = std::string(facts.spoken)};
  }
  return words;
}

void AppUnderTest::describe(Sheet& sheet) {
  const auto& navigation = *application_->navigation();
  const auto see = [this](const std::shared_ptr<UIViewController>& screen) {
    const auto same = [&](const auto& each) { return each.lock() == screen; };
    if (std::none_of(everSeen_.begin(), everSeen_.end(), same)) everSeen_.push_back(screen);
  };
  for (const auto& screen : navigation.viewControllers()) {
    see(screen);
    const auto& root = *screen->viewIfLoaded();
    sheet.screen({.className = screen->className(),
                  .barTitle = navigation.barTitle(*screen),
                  .barShown = navigation.showsBar(*screen),
                  .backPossible = navigation.canGoBack(*screen),
                  .hidesBack = screen->navigationItem().hidesBackButton(),
                  .y = root.frame().y,
                  .width = root.frame().width,
                  .height = root.frame().height});
    const auto child = screen->shownChild();
    const UIView* tabRoot = child ? child->viewIfLoaded().get() : nullptr;
    describeContent(root, tabRoot, sheet);
    for (const auto& tab : screen->childViewControllers()) {
      see(tab);
      const auto& frame = tab->viewIfLoaded()->frame();
      sheet.screen({.className = tab->className(),
                    .barTitle = tab->navigationItem().title(),
                    .hidesBack = tab->navigationItem().hidesBackButton(),
                    .tabOnScreen = tab->viewIfLoaded()->superview() != nullptr,
                    .y = frame.y,
                    .width = frame.width,
                    .height = frame.height});
      describeContent(*tab->viewIfLoaded(), nullptr, sheet);
    }
  }
  for (std::size_t at = 0; at < host_->open(); ++at) sheet.note("transfer", host_->address(at));
  sheet.note("redrawings", drawingContextCount());
  sheet.note("screens alive", screensAlive());
  if (!emailAnswer_.empty()) sheet.note("email rule", emailAnswer_);
}

}  // namespace leafund::random
