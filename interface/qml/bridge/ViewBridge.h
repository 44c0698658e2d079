#pragma once

#include <QtQmlIntegration/qqmlintegration.h>

#include <QColor>
#include <QObject>
#include <QRectF>
#include <QString>
#include <memory>
#include <vector>

#include "platform/qt/QtValues.h"
#include "platform/uikit/Skin.h"
#include "platform/uikit/UIView.h"

namespace leafund {

// The bridge between a view of the toolkit and its item in the window; each kind of view has a
// class of its own (makeBridge). It keeps a copy of what the view shows, so that a screen on its
// way out is still drawn. It holds the view weakly, and events for a view that is gone do nothing.
//
// A refresh takes everything over first, then each property that changed tells by its own signal.
// What is constant is read once. Lengths in points.
class ViewBridge : public QObject, public Skin {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the host makes one for each view")
  Q_PROPERTY(QString name READ name CONSTANT FINAL)
  // What a screen reader calls the view; empty where its own words say it.
  Q_PROPERTY(QString accessibleName READ accessibleName CONSTANT FINAL)
  Q_PROPERTY(bool visible READ visible NOTIFY visibleChanged FINAL)
  Q_PROPERTY(double x READ x NOTIFY frameChanged FINAL)
  Q_PROPERTY(double y READ y NOTIFY frameChanged FINAL)
  Q_PROPERTY(double width READ width NOTIFY frameChanged FINAL)
  Q_PROPERTY(double height READ height NOTIFY frameChanged FINAL)

 public:
  ViewBridge(const std::shared_ptr<UIView>& view, QObject* parent);
  ~ViewBridge() override;

  // Shows another view from now on: that of the same name in another screen of the scene.
  void show(const std::shared_ptr<UIView>& view);
  void refresh() final;

  QString name() const { return name_; }
  QString accessibleName() const { return accessibleName_; }
  bool visible() const { return visible_; }
  double x() const { return frame_.x(); }
  double y() const { return frame_.y(); }
  double width() const { return frame_.width(); }
  double height() const { return frame_.height(); }
  // Null when the view is gone.
  std::shared_ptr<UIView> view() const { return view_.lock(); }

  Q_INVOKABLE void tap();
  // A colour that the toolkit set, as the theme draws it: black and white are the theme's own.
  Q_INVOKABLE static QColor drawnAs(const QColor& set, const QColor& black, const QColor& white);

 signals:
  void visibleChanged();
  void frameChanged();
  // After every refresh, also one that changed nothing: a message may be said once more.
  void refreshed();

 protected:
  // Takes over what the view shows now.
  virtual void read(const UIView& view);

  template <class Value, class Bridge>
  void take(Value& shown, const Value& now, void (Bridge::*changed)()) {
    if (shown == now) return;
    shown = now;
    changes_.push_back(static_cast<void (ViewBridge::*)()>(changed));
  }
  // Null when the view is gone. A bridge is made for views of its own kind alone.
  template <class View>
  std::shared_ptr<View> viewAs() const {
    return std::static_pointer_cast<View>(view());
  }

 private:
  void leaveView();

  std::weak_ptr<UIView> view_;
  QString name_;
  QString accessibleName_;
  QRectF frame_;
  bool visible_ = true;
  std::vector<void (ViewBridge::*)()> changes_;  // not told yet
};

// Of the class for the view's kind, and the view's skin from now on.
ViewBridge* makeBridge(const std::shared_ptr<UIView>& view, QObject* parent);

}  // namespace leafund
