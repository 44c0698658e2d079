#include "platform/web/WebScene.h"

#include "platform/display/SceneViews.h"
#include "platform/web/Bridge.h"

namespace leafund {

WebScene::WebScene(UIViewController& controller, int place) {
  static int last = 0;
  id_ = ++last;
  Json views = Json::object();
  views_.push_back(std::make_unique<WebView>(controller.view()));
  views.number("root", views_.back()->id());
  for (const auto& view : namedViews(controller)) {
    views_.push_back(std::make_unique<WebView>(view));
    views.number(view->name(), views_.back()->id());
  }
  Json scene = Json::object();
  scene.text("name", controller.className()).member("views", views);
  const auto json = scene.whole();
  page::scene(id_, place, json.data(), json.size());
  for (const auto& view : views_) view->refresh();
}

WebScene::~WebScene() { page::endScene(id_); }

int WebScene::childFor(const UIViewController& controller) {
  const auto child = controller.shownChild();
  if (!child) return 0;
  return children_
      .pageFor(*child,
               [this](UIViewController& screen) { return std::make_unique<WebScene>(screen, id_); })
      .id();
}

}  // namespace leafund
