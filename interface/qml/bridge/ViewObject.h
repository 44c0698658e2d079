#pragma once

#include <QtQmlIntegration/qqmlintegration.h>
#include <QColor>
#include <QObject>
#include <map>
#include <memory>
#include <string_view>
#include <vector>

#include "interface/qml/bridge/ViewLook.h"
#include "platform/display/Cards.h"
#include "platform/uikit/Skin.h"
#include "platform/uikit/UIView.h"

namespace leafund {

// The bridge between a view of the toolkit and its item in the window, one class for all kinds of
// view. It copies what the view shows at each refresh and tells by one signal. It holds the view
// weakly, and events for a view that is gone do nothing.
class ViewObject : public QObject, public Skin {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the host makes one for each view")
  Q_PROPERTY(QString name READ name CONSTANT FINAL)
  Q_PROPERTY(QString accessibleName READ accessibleName NOTIFY changed FINAL)
  Q_PROPERTY(bool visible READ visible NOTIFY changed FINAL)
  Q_PROPERTY(double x READ x NOTIFY changed FINAL)
  Q_PROPERTY(double y READ y NOTIFY changed FINAL)
  Q_PROPERTY(double width READ width NOTIFY changed FINAL)
  Q_PROPERTY(double height READ height NOTIFY changed FINAL)
  Q_PROPERTY(double borderWidth READ borderWidth NOTIFY changed FINAL)
  Q_PROPERTY(QColor borderColor READ borderColor NOTIFY changed FINAL)
  Q_PROPERTY(double cornerRadius READ cornerRadius NOTIFY changed FINAL)
  Q_PROPERTY(QString text READ text NOTIFY changed FINAL)
  Q_PROPERTY(QString placeholder READ placeholder NOTIFY changed FINAL)
  Q_PROPERTY(QColor textColor READ textColor NOTIFY changed FINAL)
  // Whether the text has a colour of its own, which is then the toolkit's and no skin's.
  Q_PROPERTY(bool coloured READ coloured NOTIFY changed FINAL)
  Q_PROPERTY(int inputHints READ inputHints NOTIFY changed FINAL)
  Q_PROPERTY(bool secure READ secure NOTIFY changed FINAL)
  Q_PROPERTY(bool masked READ masked NOTIFY changed FINAL)
  Q_PROPERTY(bool editing READ editing NOTIFY changed FINAL)
  Q_PROPERTY(bool showsMessage READ showsMessage NOTIFY changed FINAL)
  Q_PROPERTY(double progress READ progress NOTIFY changed FINAL)
  Q_PROPERTY(double progressFrom READ progressFrom NOTIFY changed FINAL)
  Q_PROPERTY(bool selected READ selected NOTIFY changed FINAL)
  Q_PROPERTY(QColor selectedTitleColor READ selectedTitleColor NOTIFY changed FINAL)
  Q_PROPERTY(QColor tintColor READ tintColor NOTIFY changed FINAL)
  Q_PROPERTY(double contentHeight READ contentHeight NOTIFY changed FINAL)
  Q_PROPERTY(double contentOffset READ contentOffset NOTIFY changed FINAL)
  // Of a table: the item takes its offset over when this changes, and only then.
  Q_PROPERTY(int placement READ placement NOTIFY changed FINAL)
  // Of a row; null where its style has none.
  Q_PROPERTY(leafund::ViewObject* content READ content CONSTANT FINAL)
  Q_PROPERTY(leafund::ViewObject* picture READ picture CONSTANT FINAL)
  Q_PROPERTY(leafund::ViewObject* title READ title CONSTANT FINAL)
  Q_PROPERTY(leafund::ViewObject* detail READ detail CONSTANT FINAL)

 public:
  explicit ViewObject(const std::shared_ptr<UIView>& view, QObject* parent);
  ~ViewObject() override;

  // Shows another view from now on: that of the same name in another screen of the scene.
  void show(const std::shared_ptr<UIView>& view);
  void refresh() override;

  QString name() const { return look_.name; }
  QString accessibleName() const { return look_.accessibleName; }
  bool visible() const { return look_.visible; }
  double x() const { return look_.frame.x(); }
  double y() const { return look_.frame.y(); }
  double width() const { return look_.frame.width(); }
  double height() const { return look_.frame.height(); }
  double borderWidth() const { return look_.layer.borderWidth(); }
  QColor borderColor() const;
  double cornerRadius() const { return look_.layer.cornerRadius(); }
  QString text() const { return look_.text; }
  QString placeholder() const { return look_.placeholder; }
  QColor textColor() const { return look_.textColor; }
  bool coloured() const { return look_.textColor != QColor(Qt::black); }
  int inputHints() const { return look_.inputHints; }
  bool secure() const { return look_.secure; }
  bool masked() const { return look_.masked; }
  bool editing() const { return look_.editing; }
  bool showsMessage() const { return look_.showsMessage; }
  double progress() const { return look_.progress; }
  double progressFrom() const { return look_.progressFrom; }
  bool selected() const { return look_.selected; }
  QColor selectedTitleColor() const { return look_.selectedTitleColor; }
  QColor tintColor() const { return look_.tintColor; }
  double contentHeight() const { return look_.contentHeight; }
  double contentOffset() const { return look_.contentOffset; }
  int placement() const { return static_cast<int>(look_.placements + aims_); }

  ViewObject* content() const { return part("content"); }
  ViewObject* picture() const { return part("picture"); }
  ViewObject* title() const { return part("title"); }
  ViewObject* detail() const { return part("detail"); }
  const ViewLook& look() const { return look_; }
  // The looks of the cards lying in this view, undermost first, each look once.
  const std::vector<CardLook>& cards() const { return cards_.looks(); }
  // Of a table one for each cell it ever made, in the order made, which never changes.
  const std::vector<ViewObject*>& cells() const { return cells_; }
  // Null when the view is gone.
  std::shared_ptr<UIView> view() const { return view_.lock(); }

  Q_INVOKABLE void tap();
  Q_INVOKABLE void edit(const QString& text);
  Q_INVOKABLE void beginEditing();
  Q_INVOKABLE void endEditing();
  Q_INVOKABLE void pressReturn();
  // The user scrolled the item there.
  Q_INVOKABLE void scroll(double y);

 signals:
  void changed();

 private:
  void leaveView();
  void takeParts(const UIView& view);
  void addParts(const UIView& view);
  ViewObject* part(std::string_view name) const;

  std::weak_ptr<UIView> view_;
  ViewLook look_;
  std::map<std::string_view, ViewObject*> parts_;
  Cards cards_;
  std::vector<ViewObject*> cells_;
  unsigned aims_ = 0;  // how often another view was shown
};

}  // namespace leafund
