#include "interface/qml/bridge/ViewLook.h"

#include "platform/uikit/UIButton.h"
#include "platform/uikit/UILabel.h"
#include "platform/uikit/UIProgressView.h"
#include "platform/uikit/UITabContainer.h"
#include "platform/uikit/UITableView.h"
#include "platform/uikit/UITextInput.h"

namespace leafund {

namespace {

Qt::InputMethodHints hintsFor(UIKeyboardType keyboard) {
  switch (keyboard) {
    case UIKeyboardType::EmailAddress:
      return Qt::ImhEmailCharactersOnly;
    case UIKeyboardType::DecimalPad:
      return Qt::ImhFormattedNumbersOnly;
    case UIKeyboardType::URL:
      return Qt::ImhUrlCharactersOnly;
    case UIKeyboardType::Default:
      break;
  }
  return Qt::ImhNone;
}

// In UTF-16 units. Qt lays out an endless word in a time that grows with its square (13 s for
// 400,000 letters), so no more is drawn of words to read than anybody reads.
constexpr qsizetype kMostWords = 20'000;

QString wordsToRead(const std::string& text) {
  QString words = qtText(text);
  if (words.size() <= kMostWords) return words;
  words.truncate(kMostWords);
  if (words.back().isHighSurrogate()) words.chop(1);
  return words + u'\u2026';
}

void readInput(const UITextInput& input, ViewLook& look) {
  look.text = input.editable() ? qtText(input.text()) : wordsToRead(input.text());
  look.placeholder = qtText(input.placeholder());
  look.textColor = qtColor(input.textColor().CGColor());
  look.editing = input.editing();
  look.showsMessage = input.showsMessage();
  // What was typed is what counts: nothing may be corrected, completed or capitalised on the way.
  auto hints = hintsFor(input.keyboardType()) | Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase;
  if (input.kind() == ViewKind::TextField) {
    const auto& field = static_cast<const UITextField&>(input);
    look.secure = field.secureTextEntry();
    look.masked = field.masked();
  }
  if (look.secure) hints |= Qt::ImhSensitiveData;
  look.inputHints = static_cast<int>(hints);
}

void readTab(const UITabBarItem& tab, ViewLook& look) {
  look.text = qtText(tab.title());
  look.selected = tab.selected();
  if (const auto& color = tab.selectedTitleColor())
    look.selectedTitleColor = qtColor(color->CGColor());
}

void readLabel(const UILabel& label, ViewLook& look) {
  look.text = wordsToRead(label.text());
  if (!look.accessibleName.isEmpty()) look.accessibleName += QStringLiteral(": ") + look.text;
}

void readTable(const UITableView& table, ViewLook& look) {
  look.contentHeight = table.contentHeight();
  look.contentOffset = table.contentOffset().y;
  look.placements = table.placements();
}

void readPicture(const UIImageView& picture, ViewLook& look) {
  look.image = picture.image();
  look.contentMode = picture.contentMode();
}

void readProgress(const UIProgressView& progress, ViewLook& look) {
  look.progress = static_cast<double>(progress.shownProgress());
  look.progressFrom = static_cast<double>(progress.animatedFrom());
}

void readTabBar(const UITabBar& bar, ViewLook& look) {
  if (const auto& color = bar.tintColor()) look.tintColor = qtColor(color->CGColor());
}

void readKind(const UIView& view, ViewLook& look) {
  switch (view.kind()) {
    case ViewKind::Label:
      return readLabel(static_cast<const UILabel&>(view), look);
    case ViewKind::Image:
      return readPicture(static_cast<const UIImageView&>(view), look);
    case ViewKind::Progress:
      return readProgress(static_cast<const UIProgressView&>(view), look);
    case ViewKind::Button:
      look.text = qtText(static_cast<const UIButton&>(view).title());
      return;
    case ViewKind::TextField:
    case ViewKind::TextView:
      return readInput(static_cast<const UITextInput&>(view), look);
    case ViewKind::Table:
      return readTable(static_cast<const UITableView&>(view), look);
    case ViewKind::TabBar:
      return readTabBar(static_cast<const UITabBar&>(view), look);
    case ViewKind::Tab:
      return readTab(static_cast<const UITabBarItem&>(view), look);
    case ViewKind::Plain:
    case ViewKind::Scroll:
    case ViewKind::Cell:
      return;
  }
}

}  // namespace

ViewLook lookOf(const UIView& view) {
  ViewLook look;
  look.name = qtText(view.name());
  look.accessibleName = qtText(view.accessibilityLabel());
  const auto frame = view.frame();
  look.frame = {frame.x, frame.y, frame.width, frame.height};
  look.layer = view.layer();
  look.visible = !view.hidden();
  readKind(view, look);
  return look;
}

}  // namespace leafund
