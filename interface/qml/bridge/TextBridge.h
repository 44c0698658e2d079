#pragma once

#include "interface/qml/bridge/ViewBridge.h"

namespace leafund {

// What is drawn of words to read. Qt lays out an endless word in a time that grows with its square
// (13 s for 400,000 letters), so it is no more than anybody reads.
QString wordsToRead(const std::string& text);

// A view with words: a label, a button, a tab, an input.
class TextBridge : public leafund::ViewBridge {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the host makes one for each view")
  Q_PROPERTY(QString text READ text NOTIFY textChanged FINAL)
  // What a screen reader says: the words, after the view's name where it has one.
  Q_PROPERTY(QString spokenText READ spokenText NOTIFY textChanged FINAL)

 public:
  using ViewBridge::ViewBridge;

  QString text() const { return text_; }
  QString spokenText() const {
    return accessibleName().isEmpty() ? text_ : accessibleName() + QStringLiteral(": ") + text_;
  }

 signals:
  void textChanged();

 protected:
  void read(const UIView& view) override;
  // The window shows it already.
  void keepText(const QString& text) { text_ = text; }

 private:
  QString text_;
};

class LabelBridge : public leafund::TextBridge {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the host makes one for each view")

 public:
  using TextBridge::TextBridge;
};

class ButtonBridge : public leafund::TextBridge {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the host makes one for each view")

 public:
  using TextBridge::TextBridge;
};

}  // namespace leafund
