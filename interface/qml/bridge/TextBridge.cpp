#include "interface/qml/bridge/TextBridge.h"

#include "platform/uikit/UIButton.h"
#include "platform/uikit/UILabel.h"
#include "platform/uikit/UITabContainer.h"
#include "platform/uikit/UITextInput.h"

namespace leafund {

namespace {

constexpr qsizetype kMostWords = 20'000;  // UTF-16 units

QString textOf(const UIView& view) {
  switch (view.kind()) {
    case ViewKind::Label:
      return wordsToRead(static_cast<const UILabel&>(view).text());
    case ViewKind::Button:
      return qtText(static_cast<const UIButton&>(view).title());
    case ViewKind::Tab:
      return qtText(static_cast<const UITabBarItem&>(view).title());
    default:
      break;  // the inputs are left
  }
  const auto& input = static_cast<const UITextInput&>(view);
  return input.editable() ? qtText(input.text()) : wordsToRead(input.text());
}

}  // namespace

QString wordsToRead(const std::string& text) {
  QString words = qtText(text);
  if (words.size() <= kMostWords) return words;
  words.truncate(kMostWords);
  if (words.back().isHighSurrogate()) words.chop(1);
  return words + u'\u2026';
}

void TextBridge::read(const UIView& view) {
  ViewBridge::read(view);
  take(text_, textOf(view), &TextBridge::textChanged);
}

}  // namespace leafund
