#include "interface/qml/bridge/ProgressBridge.h"
#include "interface/qml/bridge/TabBridge.h"
#include "interface/qml/bridge/TableBridge.h"
#include "interface/qml/bridge/TextInputBridge.h"

namespace leafund {

namespace {

ViewBridge* unread(const std::shared_ptr<UIView>& view, QObject* parent) {
  switch (view->kind()) {
    case ViewKind::Label:
      return new LabelBridge(view, parent);
    case ViewKind::Image:
      return new ImageBridge(view, parent);
    case ViewKind::Progress:
      return new ProgressBridge(view, parent);
    case ViewKind::Button:
      return new ButtonBridge(view, parent);
    case ViewKind::TextField:
      return new TextFieldBridge(view, parent);
    case ViewKind::TextView:
      return new TextViewBridge(view, parent);
    case ViewKind::Table:
      return new TableBridge(view, parent);
    case ViewKind::Cell:
      return new CellBridge(view, parent);
    case ViewKind::TabBar:
      return new TabBarBridge(view, parent);
    case ViewKind::Tab:
      return new TabBridge(view, parent);
    case ViewKind::Plain:
    case ViewKind::Scroll:
      break;
  }
  return new PlainBridge(view, parent);
}

}  // namespace

ViewBridge* makeBridge(const std::shared_ptr<UIView>& view, QObject* parent) {
  auto* bridge = unread(view, parent);
  bridge->refresh();
  return bridge;
}

}  // namespace leafund
