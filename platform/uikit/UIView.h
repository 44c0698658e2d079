#pragma once

#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "platform/graphics/Geometry.h"
#include "platform/uikit/CALayer.h"
#include "platform/uikit/Skin.h"
#include "platform/uikit/UIResponder.h"

namespace leafund {

class UITapGestureRecognizer;

// What a host must know of a view's class to show it. A kind names the class that can be read,
// which is the view's own or one it derives from.
enum class ViewKind {
  Plain,
  Label,      // UILabel
  Image,      // UIImageView
  Progress,   // UIProgressView
  Button,     // UIButton
  TextField,  // UITextField
  TextView,   // UITextView
  Scroll,     // UIScrollView
  Table,      // UITableView
  Cell,       // UITableViewCell
  TabBar,     // UITabBar
  Tab         // UITabBarItem
};

// A rectangle on the screen. The parent owns its subviews; the way up is a plain pointer that the
// parent clears when it goes. Children, name and layer are allocated only when used: a card is kept
// for every showing of a row, and an empty deque in each would cost 576 bytes.
class UIView : public UIResponder {
 public:
  explicit UIView(CGRect frame = {}) : frame_(frame) {}
  ~UIView() override;

  virtual ViewKind kind() const { return ViewKind::Plain; }

  // In points, in the parent's coordinates.
  CGRect frame() const { return frame_; }
  void setFrame(CGRect frame);

  bool hidden() const { return hidden_; }
  void setHidden(bool hidden);

  const CALayer& layer() const;
  // Counts as a change: the view is shown anew at the end of the turn.
  CALayer& layer();
  void setBackgroundColor(const UIColor& color) { layer().setBackgroundColor(color.CGColor()); }
  void setClipsToBounds(bool clips) { layer().setMasksToBounds(clips); }

  // Undermost first. Adding in front and sending the frontmost to the back take constant time.
  const std::deque<std::shared_ptr<UIView>>& subviews() const;
  void addSubview(std::shared_ptr<UIView> view);
  void sendSubviewToBack(const std::shared_ptr<UIView>& view);
  void removeFromSuperview();
  UIView* superview() const { return superview_; }

  // Ends editing of whichever input below this view is being edited; answers whether there was one.
  bool endEditing(bool force);
  void addGestureRecognizer(std::shared_ptr<UITapGestureRecognizer> recognizer);
  const std::vector<std::shared_ptr<UITapGestureRecognizer>>& gestureRecognizers() const;

  // The name in the scene, by which skins and tests find the view; empty for a nameless view.
  const std::string& name() const;
  void setName(std::string name);
  // What a screen reader calls it where its own text does not say it.
  const std::string& accessibilityLabel() const;
  void setAccessibilityLabel(std::string label);

  void setNeedsLayout();
  // Runs in the layout step of a turn, and nowhere else.
  virtual void layoutSubviews() {}

  Skin* skin() const { return skin_; }
  void setSkin(Skin* skin) { skin_ = skin; }

 protected:
  // The skin is refreshed at the end of the turn.
  void changed();

 private:
  friend class UIApplication;
  struct Identity {
    std::string name;
    std::string accessibilityLabel;
    std::vector<std::shared_ptr<UITapGestureRecognizer>> gestureRecognizers;
  };
  Identity& identity();

  CGRect frame_;
  UIView* superview_ = nullptr;
  Skin* skin_ = nullptr;
  std::unique_ptr<std::deque<std::shared_ptr<UIView>>> subviews_;
  std::unique_ptr<CALayer> layer_;
  std::unique_ptr<Identity> identity_;
  bool hidden_ = false;
  bool awaitsRefresh_ = false;
  bool awaitsLayout_ = false;
};

}  // namespace leafund
