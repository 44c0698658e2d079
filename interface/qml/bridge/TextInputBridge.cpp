#include "interface/qml/bridge/TextInputBridge.h"

#include <QClipboard>
#include <QGuiApplication>
#include <iterator>

#include "platform/uikit/UIApplication.h"

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

bool isSecure(const UIView& view) {
  return view.kind() == ViewKind::TextField &&
         static_cast<const UITextField&>(view).secureTextEntry();
}

// What was typed is what counts: nothing may be corrected, completed or capitalised on the way.
int inputHintsOf(const UITextInput& input) {
  auto hints = hintsFor(input.keyboardType()) | Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase;
  if (isSecure(input)) hints |= Qt::ImhSensitiveData;
  return static_cast<int>(hints);
}

}  // namespace

TextInputBridge::TextInputBridge(const std::shared_ptr<UIView>& view, QObject* parent)
    : TextBridge(view, parent),
      placeholder_(qtText(static_cast<const UITextInput&>(*view).placeholder())),
      inputHints_(inputHintsOf(static_cast<const UITextInput&>(*view))) {}

void TextInputBridge::read(const UIView& view) {
  TextBridge::read(view);
  const auto& input = static_cast<const UITextInput&>(view);
  take(textColor_, qtColor(input.textColor().CGColor()), &TextInputBridge::textColorChanged);
  take(editing_, input.editing(), &TextInputBridge::editingChanged);
  take(showsMessage_, input.showsMessage(), &TextInputBridge::showsMessageChanged);
}

QStringList TextInputBridge::editLabels() const {
  return {std::begin(UITextInput::kEditLabels), std::end(UITextInput::kEditLabels)};
}

void TextInputBridge::edit(const QString& text) {
  keepText(text);
  if (auto* application = UIApplication::current()) {
    application->edit(viewAs<UITextInput>(), text.toStdString());
  }
}

void TextInputBridge::beginEditing() {
  if (auto* application = UIApplication::current()) {
    application->beginEditing(viewAs<UITextInput>());
  }
}

void TextInputBridge::endEditing() {
  if (auto* application = UIApplication::current()) application->endEditing(viewAs<UITextInput>());
}

TextFieldBridge::TextFieldBridge(const std::shared_ptr<UIView>& view, QObject* parent)
    : TextInputBridge(view, parent), secure_(isSecure(*view)) {}

void TextFieldBridge::read(const UIView& view) {
  TextInputBridge::read(view);
  take(masked_, static_cast<const UITextField&>(view).masked(), &TextFieldBridge::maskedChanged);
}

void TextFieldBridge::pressReturn() {
  if (auto* application = UIApplication::current()) application->pressReturn(viewAs<UITextField>());
}

void TextViewBridge::read(const UIView& view) {
  TextInputBridge::read(view);
  take(layer_, view.layer(), &TextViewBridge::layerChanged);
  take(scrollsToTop_, static_cast<const UITextView&>(view).scrollsToTop(),
       &TextViewBridge::scrolledToTop);
}

void TextViewBridge::copy() {
  if (const auto shown = viewAs<UITextView>()) {
    QGuiApplication::clipboard()->setText(qtText(shown->text()));
  }
}

QColor TextViewBridge::borderColor() const {
  const auto color = layer_.borderColor();
  return color ? qtColor(*color) : QColor(Qt::transparent);
}

}  // namespace leafund
