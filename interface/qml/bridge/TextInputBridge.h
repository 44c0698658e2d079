#pragma once

#include <QColor>

#include "interface/qml/bridge/TextBridge.h"
#include "platform/uikit/UITextInput.h"

namespace leafund {

// What text fields and text views have in common. The text is what stands in the window: what the
// user types is told only where the toolkit makes something else of it.
class TextInputBridge : public leafund::TextBridge {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the host makes one for each view")
  Q_PROPERTY(QString placeholder READ placeholder CONSTANT FINAL)
  Q_PROPERTY(int inputHints READ inputHints CONSTANT FINAL)  // Qt::InputMethodHints
  Q_PROPERTY(QColor textColor READ textColor NOTIFY textColorChanged FINAL)
  // Whether the text has a colour of its own, which is then the toolkit's and no skin's.
  Q_PROPERTY(bool coloured READ coloured NOTIFY textColorChanged FINAL)
  Q_PROPERTY(bool editing READ editing NOTIFY editingChanged FINAL)
  Q_PROPERTY(bool showsMessage READ showsMessage NOTIFY showsMessageChanged FINAL)
  // What its menu calls cutting, copying, pasting, and selecting all.
  Q_PROPERTY(QStringList editLabels READ editLabels CONSTANT FINAL)

 public:
  TextInputBridge(const std::shared_ptr<UIView>& view, QObject* parent);

  QString placeholder() const { return placeholder_; }
  int inputHints() const { return inputHints_; }
  QColor textColor() const { return textColor_; }
  bool coloured() const { return textColor_ != QColor(Qt::black); }
  bool editing() const { return editing_; }
  bool showsMessage() const { return showsMessage_; }
  QStringList editLabels() const;

  Q_INVOKABLE void edit(const QString& text);
  Q_INVOKABLE void beginEditing();
  Q_INVOKABLE void endEditing();

 signals:
  void textColorChanged();
  void editingChanged();
  void showsMessageChanged();

 protected:
  void read(const UIView& view) override;

 private:
  QString placeholder_;
  int inputHints_;
  QColor textColor_ = Qt::black;
  bool editing_ = false;
  bool showsMessage_ = false;
};

// One line.
class TextFieldBridge : public leafund::TextInputBridge {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the host makes one for each view")
  Q_PROPERTY(bool secure READ secure CONSTANT FINAL)
  Q_PROPERTY(bool masked READ masked NOTIFY maskedChanged FINAL)

 public:
  TextFieldBridge(const std::shared_ptr<UIView>& view, QObject* parent);

  bool secure() const { return secure_; }
  bool masked() const { return masked_; }

  Q_INVOKABLE void pressReturn();

 signals:
  void maskedChanged();

 protected:
  void read(const UIView& view) override;

 private:
  bool secure_;
  bool masked_ = false;
};

// Many lines, to read or to write.
class TextViewBridge : public leafund::TextInputBridge {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the host makes one for each view")
  Q_PROPERTY(double borderWidth READ borderWidth NOTIFY layerChanged FINAL)
  Q_PROPERTY(QColor borderColor READ borderColor NOTIFY layerChanged FINAL)
  Q_PROPERTY(double cornerRadius READ cornerRadius NOTIFY layerChanged FINAL)

 public:
  using TextInputBridge::TextInputBridge;

  double borderWidth() const { return layer_.borderWidth(); }
  QColor borderColor() const;
  // The whole text, to the clipboard.
  Q_INVOKABLE void copy();
  double cornerRadius() const { return layer_.cornerRadius(); }

 signals:
  void layerChanged();
  // Logic asks for the top of the text.
  void scrolledToTop();

 protected:
  void read(const UIView& view) override;

 private:
  CALayer layer_;
  unsigned scrollsToTop_ = 0;
};

}  // namespace leafund
