#pragma once

#include <QColor>

#include "interface/qml/bridge/TextBridge.h"
#include "platform/uikit/UITabContainer.h"

namespace leafund {

// One tab of the tab bar.
class TabBridge : public leafund::TextBridge {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the host makes one for each view")
  Q_PROPERTY(bool selected READ selected NOTIFY selectedChanged FINAL)
  Q_PROPERTY(QColor selectedTitleColor READ selectedTitleColor CONSTANT FINAL)

 public:
  using TextBridge::TextBridge;

  bool selected() const { return selected_; }
  QColor selectedTitleColor() const { return selectedTitleColor_; }

 signals:
  void selectedChanged();

 protected:
  void read(const UIView& view) override {
    TextBridge::read(view);
    const auto& tab = static_cast<const UITabBarItem&>(view);
    take(selected_, tab.selected(), &TabBridge::selectedChanged);
    if (const auto& color = tab.selectedTitleColor())
      selectedTitleColor_ = qtColor(color->CGColor());
  }

 private:
  bool selected_ = false;
  QColor selectedTitleColor_;
};

class TabBarBridge : public leafund::ViewBridge {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the host makes one for each view")
  // Of the selected tab's icon.
  Q_PROPERTY(QColor tintColor READ tintColor CONSTANT FINAL)

 public:
  using ViewBridge::ViewBridge;

  QColor tintColor() const { return tintColor_; }

 protected:
  void read(const UIView& view) override {
    ViewBridge::read(view);
    const auto& color = static_cast<const UITabBar&>(view).tintColor();
    if (color) tintColor_ = qtColor(color->CGColor());
  }

 private:
  QColor tintColor_;
};

}  // namespace leafund
