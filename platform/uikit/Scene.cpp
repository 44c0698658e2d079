#include "platform/uikit/Scene.h"

#include "platform/foundation/FatalError.h"
#include "platform/uikit/UITableView.h"
#include "platform/uikit/UITableViewCell.h"

namespace leafund {

void SceneBase::place(const std::shared_ptr<UIView>& view, std::string name) {
  view->setName(std::move(name));
  controller_.viewIfLoaded()->addSubview(view);
}

UILabel& SceneBase::words(std::string name, std::string text) {
  auto label = std::make_shared<UILabel>();
  label->setText(std::move(text));
  place(label, std::move(name));
  return *label;
}

UILabel& SceneBase::label(Outlet<UILabel>& outlet, std::string text) {
  auto& label = add(outlet, std::make_shared<UILabel>());
  label.setText(std::move(text));
  return label;
}

UIButton& SceneBase::button(Outlet<UIButton>& outlet, std::string title) {
  return add(outlet, std::make_shared<UIButton>(std::move(title)));
}

UIButton& SceneBase::button(std::string name, std::string title) {
  auto button = std::make_shared<UIButton>(std::move(title));
  place(button, std::move(name));
  return *button;
}

namespace {
void take(UITextInput& input, FieldTraits& traits) {
  input.setAccessibilityLabel(traits.placeholder);
  input.setPlaceholder(std::move(traits.placeholder));
  input.setKeyboardType(traits.keyboard);
}
}  // namespace

UITextField& SceneBase::field(Outlet<UITextField>& outlet, FieldTraits traits) {
  auto& field = add(outlet, std::make_shared<UITextField>());
  take(field, traits);
  field.setSecureTextEntry(traits.secure);
  return field;
}

UITextView& SceneBase::textArea(Outlet<UITextView>& outlet, FieldTraits traits) {
  auto& area = add(outlet, std::make_shared<UITextView>());
  take(area, traits);
  return area;
}

UITextView& SceneBase::readingText(Outlet<UITextView>& outlet) {
  auto& text = add(outlet, std::make_shared<UITextView>());
  text.setEditable(false);
  return text;
}

UIImageView& SceneBase::picture(Outlet<UIImageView>& outlet, UIViewContentMode mode) {
  auto& picture = add(outlet, std::make_shared<UIImageView>());
  picture.setContentMode(mode);
  return picture;
}

UIProgressView& SceneBase::progress(Outlet<UIProgressView>& outlet,
                                    std::string accessibilityLabel) {
  auto& progress = add(outlet, std::make_shared<UIProgressView>());
  progress.setAccessibilityLabel(std::move(accessibilityLabel));
  return progress;
}

void SceneBase::subtitleCell(std::string reuseIdentifier, std::string segueIdentifier) {
  const auto table = std::dynamic_pointer_cast<UITableView>(controller_.viewIfLoaded());
  if (!table) fatalError(controller_.className(), "cells belong to a table screen");
  auto make = [reuseIdentifier, segueIdentifier] {
    return std::make_shared<UITableViewCell>(UITableViewCellStyle::Subtitle, reuseIdentifier,
                                             segueIdentifier);
  };
  table->registerPrototype(reuseIdentifier, std::move(make));
}

UITabBar& SceneBase::tabs(const std::vector<TabTraits>& tabs) {
  auto container = std::make_shared<UITabContainer>(controller_);
  for (const auto& tab : tabs) {
    auto item = std::make_shared<UITabBarItem>(tab.title);
    item->setName(tab.name);
    container->addTab(item, tab.sceneName);
  }
  controller_.tabContainer_ = container;
  container->tabBar()->setName("tabBar");
  place(container, "tabs");
  return *container->tabBar();
}

UIButton& SceneBase::buttonOnTab(const std::string& tabName, std::string name, std::string title) {
  auto button = std::make_shared<UIButton>(std::move(title));
  place(button, std::move(name));
  controller_.tabContainer_.lock()->addButtonOnTab(tabName, button);
  return *button;
}

UIImageView& SceneBase::illustration(std::string name, std::string description) {
  auto picture = std::make_shared<UIImageView>();
  picture->setAccessibilityLabel(std::move(description));
  picture->setContentMode(UIViewContentMode::ScaleAspectFill);
  place(picture, std::move(name));
  return *picture;
}

void SceneBase::segue(UIControl& control, std::string identifier) {
  auto* screen = &controller_;
  control.addAction(identifier, UIControlEvent::TouchUpInside,
                    [screen, identifier](const Sender& sender) {
                      screen->performSegueWithIdentifierSender(identifier, sender);
                    });
}

}  // namespace leafund
