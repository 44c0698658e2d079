#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/uikit/Outlet.h"
#include "platform/uikit/UIButton.h"
#include "platform/uikit/UIImageView.h"
#include "platform/uikit/UILabel.h"
#include "platform/uikit/UIProgressView.h"
#include "platform/uikit/UIScrollView.h"
#include "platform/uikit/UIStoryboard.h"
#include "platform/uikit/UITabContainer.h"
#include "platform/uikit/UITextInput.h"

namespace leafund {

struct FieldTraits {
  std::string placeholder;  // also what a screen reader calls the input
  UIKeyboardType keyboard = UIKeyboardType::Default;
  bool secure = false;
};

struct TabTraits {
  std::string name;  // of the view
  std::string title;
  std::string sceneName;
};

// Says what a scene holds, in reading order: the views, every word, the outlets and the actions.
// How it looks is the skin's. A view made for an outlet bears the outlet's name.
class SceneBase {
 public:
  explicit SceneBase(UIViewController& controller) : controller_(controller) {}

  // The navigation bar's text; a screen without one has no bar.
  void title(std::string text) { controller_.navigationItem().setTitle(std::move(text)); }
  // Words that no logic touches.
  UILabel& words(std::string name, std::string text);
  UILabel& label(Outlet<UILabel>& outlet, std::string text = {});
  UIButton& button(Outlet<UIButton>& outlet, std::string title);
  UIButton& button(std::string name, std::string title);
  UITextField& field(Outlet<UITextField>& outlet, FieldTraits traits);
  UITextView& textArea(Outlet<UITextView>& outlet, FieldTraits traits);  // to write in
  UITextView& readingText(Outlet<UITextView>& outlet);                   // to read
  UIImageView& picture(Outlet<UIImageView>& outlet, UIViewContentMode mode);
  UIProgressView& progress(Outlet<UIProgressView>& outlet, std::string accessibilityLabel);
  // An outlet that no logic uses is wired to a view that nobody sees.
  template <class View>
  void unseen(Outlet<View>& outlet) {
    add(outlet, std::make_shared<View>()).setHidden(true);
  }
  // A row of a table screen; tapping it starts the segue with the cell as sender.
  void subtitleCell(std::string reuseIdentifier, std::string segueIdentifier);
  UITabBar& tabs(const std::vector<TabTraits>& tabs);
  // A button of the screen that holds the tabs, seen while the tab with that name is selected.
  UIButton& buttonOnTab(const std::string& tabName, std::string name, std::string title);
  // A picture that comes with the program and belongs to the skin; the description is for readers
  // who cannot see it.
  UIImageView& illustration(std::string name, std::string description);
  // A control that starts a segue by itself.
  void segue(UIControl& control, std::string identifier);

 protected:
  UIViewController& controller() { return controller_; }

 private:
  void place(const std::shared_ptr<UIView>& view, std::string name);
  template <class View>
  View& add(Outlet<View>& outlet, const std::shared_ptr<View>& view) {
    place(view, outlet.name());
    outlet.connect(view);
    return *view;
  }

  UIViewController& controller_;
};

template <class Controller>
class Scene final : public SceneBase {
 public:
  using Action = void (Controller::*)(const Sender& sender);
  using SceneBase::SceneBase;

  // `label` is the action's name as wirings are labelled, such as "signUpClicked:".
  void on(UIControl& control, UIControlEvent event, std::string label, Action action) {
    control.addAction(std::move(label), event, bind(action));
  }

  // The user enters an input that still shows a message of the screen. Typed text is not a message,
  // and is never taken away by tapping into it.
  void onEnteringMessage(UITextInput& input, std::string label, Action action) {
    control(input, std::move(label), [&input, run = bind(action)](const Sender& sender) {
      if (input.showsMessage()) run(sender);
    });
  }

 private:
  // Views outlive no controller, so the handler reaches it without owning it.
  UIControl::Handler bind(Action action) {
    auto* screen = static_cast<Controller*>(&controller());
    return [screen, action](const Sender& sender) { (screen->*action)(sender); };
  }
  static void control(UITextInput& input, std::string label, UIControl::Handler handler) {
    input.addAction(std::move(label), UIControlEvent::EditingDidBegin, std::move(handler));
  }
};

// One row of the storyboard's scenes: the class's name, and what describes its scene.
template <class Controller>
SceneDescription scene(std::string name, void (*describe)(Scene<Controller>&, Controller&)) {
  return {std::move(name),
          []() -> std::shared_ptr<UIViewController> { return std::make_shared<Controller>(); },
          [describe](UIViewController& controller) {
            auto& screen = static_cast<Controller&>(controller);
            Scene<Controller> description(screen);
            describe(description, screen);
          }};
}

}  // namespace leafund
