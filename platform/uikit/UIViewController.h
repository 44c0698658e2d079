#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/uikit/UIView.h"

namespace leafund {

class OutletBase;
class UINavigationController;
class UIStoryboard;
class UIStoryboardSegue;
class UITabContainer;
class UIViewController;
struct SceneDescription;

// What the navigation bar shows for one screen.
class UINavigationItem {
 public:
  // Empty: the screen does without a bar.
  const std::string& title() const { return title_; }
  void setTitle(std::string title);
  // A hidden back button refuses every way back: bar, key and gesture are one event.
  bool hidesBackButton() const { return hidesBackButton_; }
  void setHidesBackButton(bool hides);

 private:
  std::string title_;
  bool hidesBackButton_ = false;
};

// One screen. It owns its views until it dies, also when it is no longer shown: a late picture is
// then set into a view that nobody sees.
class UIViewController : public UIResponder {
 public:
  UIViewController();
  ~UIViewController() override;

  // The life cycle, all on the main thread. viewDidLoad runs once for each load of the view, after
  // the segue was prepared; viewWillAppear at every appearance, with the root view's frame set.
  virtual void viewDidLoad() {}
  virtual void viewWillAppear(bool animated);
  virtual void viewDidLayoutSubviews() {}
  virtual void didReceiveMemoryWarning() {}

  // Where its root view lies in the room that its container has for it: all of it.
  virtual CGRect rootFrameIn(CGRect room) const { return room; }

  virtual void prepareForSegueSender(UIStoryboardSegue& segue, const Sender& sender);
  // An identifier that does not leave this screen is fatal.
  virtual void performSegueWithIdentifierSender(std::string_view identifier, const Sender& sender);

  // Loads the view at its first use.
  const std::shared_ptr<UIView>& view();
  const std::shared_ptr<UIView>& viewIfLoaded() const { return view_; }
  // The view goes, and loads anew at its next use. No host does this by itself.
  void releaseView();

  // The names of the outlets that its scene left without a view, once that is loaded. Each is fatal
  // when it is used, and not before; a test holds all scenes to have none.
  std::vector<std::string> unconnectedOutlets() const;

  UINavigationItem& navigationItem() { return navigationItem_; }
  const UINavigationItem& navigationItem() const { return navigationItem_; }
  // The stack this screen stands on, itself or as a tab of one that does; null elsewhere.
  std::shared_ptr<UINavigationController> navigationController() const;
  UIViewController* parentViewController() const { return parent_; }

  // The name of its scene, which is its class's name.
  const std::string& className() const { return className_; }
  // What it was made from; null for a screen made by hand.
  const UIStoryboard* storyboard() const { return storyboard_; }
  // The screen that this one shows inside itself, as that of the selected tab; null elsewhere, and
  // while the view is not loaded.
  std::shared_ptr<UIViewController> shownChild() const;
  // The child of that scene, made at first use and kept.
  const std::shared_ptr<UIViewController>& childOfScene(const std::string& sceneName);
  const std::vector<std::shared_ptr<UIViewController>>& childViewControllers() const {
    return children_;
  }

 protected:
  // The bare root view, before the scene fills it.
  virtual std::shared_ptr<UIView> makeRootView();

 private:
  friend class OutletBase;
  friend class SceneBase;
  friend class UINavigationController;
  friend class UIStoryboard;
  friend class UITabContainer;

  void buildView();
  void appear(bool animated);
  void layOut();

  std::string className_;
  const UIStoryboard* storyboard_ = nullptr;  // lives as long as the process
  const SceneDescription* scene_ = nullptr;   // part of the storyboard
  std::weak_ptr<UINavigationController> navigation_;
  UIViewController* parent_ = nullptr;
  std::vector<std::shared_ptr<UIViewController>> children_;
  std::weak_ptr<UITabContainer> tabContainer_;
  std::vector<OutletBase*> outlets_;
  std::shared_ptr<UIView> view_;
  UINavigationItem navigationItem_;
};

}  // namespace leafund
