#pragma once

#include <QtQmlIntegration/qqmlintegration.h>
#include <QColor>
#include <QObject>
#include <QVariantMap>
#include <memory>
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
  Q_PROPERTY(QString name READ name CONSTANT)
  Q_PROPERTY(QString accessibleName READ accessibleName NOTIFY changed)
  Q_PROPERTY(bool visible READ visible NOTIFY changed)
  Q_PROPERTY(double x READ x NOTIFY changed)
  Q_PROPERTY(double y READ y NOTIFY changed)
  Q_PROPERTY(double width READ width NOTIFY changed)
  Q_PROPERTY(double height READ height NOTIFY changed)
  Q_PROPERTY(double borderWidth READ borderWidth NOTIFY changed)
  Q_PROPERTY(QColor borderColor READ borderColor NOTIFY changed)
  Q_PROPERTY(double cornerRadius READ cornerRadius NOTIFY changed)
  Q_PROPERTY(QString text READ text NOTIFY changed)
  Q_PROPERTY(QString placeholder READ placeholder NOTIFY changed)
  Q_PROPERTY(QColor textColor READ textColor NOTIFY changed)
  // Whether the text has a colour of its own, which is then the toolkit's and no skin's.
  Q_PROPERTY(bool coloured READ coloured NOTIFY changed)
  Q_PROPERTY(int inputHints READ inputHints NOTIFY changed)
  Q_PROPERTY(bool secure READ secure NOTIFY changed)
  Q_PROPERTY(bool masked READ masked NOTIFY changed)
  Q_PROPERTY(bool editing READ editing NOTIFY changed)
  Q_PROPERTY(bool showsMessage READ showsMessage NOTIFY changed)
  Q_PROPERTY(double progress READ progress NOTIFY changed)
  Q_PROPERTY(double progressFrom READ progressFrom NOTIFY changed)
  Q_PROPERTY(bool selected READ selected NOTIFY changed)
  Q_PROPERTY(QColor selectedTitleColor READ selectedTitleColor NOTIFY changed)
  Q_PROPERTY(QColor tintColor READ tintColor NOTIFY changed)
  Q_PROPERTY(double contentHeight READ contentHeight NOTIFY changed)
  Q_PROPERTY(double contentOffset READ contentOffset NOTIFY changed)
  // Of a table: the item takes its offset over when this changes, and only then.
  Q_PROPERTY(unsigned placement READ placement NOTIFY changed)
  Q_PROPERTY(QVariantMap parts READ parts CONSTANT)

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
  unsigned placement() const { return look_.placements + aims_; }

  // Of a row its content, picture, title and detail, by these names.
  QVariantMap parts() const { return parts_; }
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

  std::weak_ptr<UIView> view_;
  ViewLook look_;
  QVariantMap parts_;
  Cards cards_;
  std::vector<ViewObject*> cells_;
  unsigned aims_ = 0;  // how often another view was shown
};

}  // namespace leafund
