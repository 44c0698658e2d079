#pragma once

#include <memory>
#include <string>

#include "platform/uikit/UIImageView.h"
#include "platform/uikit/UILabel.h"

namespace leafund {

enum class UITableViewCellStyle {
  Bare,       // nothing but the content view
  TitleOnly,  // a title
  TextOnly,   // a title and a line below it
  Subtitle    // a picture, a title and a line below it
};

// One row. Tapping it starts the segue that the prototype names, with the cell as sender.
class UITableViewCell : public UIView {
 public:
  ViewKind kind() const override { return ViewKind::Cell; }
  UITableViewCell(UITableViewCellStyle style, std::string reuseIdentifier,
                  std::string segueIdentifier = {});

  const std::string& reuseIdentifier() const { return reuseIdentifier_; }
  const std::string& segueIdentifier() const { return segueIdentifier_; }

  const std::shared_ptr<UIView>& contentView() const { return contentView_; }
  // Null where the style has none.
  const std::shared_ptr<UIImageView>& imageView() const { return imageView_; }
  const std::shared_ptr<UILabel>& textLabel() const { return textLabel_; }
  const std::shared_ptr<UILabel>& detailTextLabel() const { return detailTextLabel_; }

 private:
  std::string reuseIdentifier_;
  std::string segueIdentifier_;
  std::shared_ptr<UIView> contentView_;
  std::shared_ptr<UIImageView> imageView_;
  std::shared_ptr<UILabel> textLabel_;
  std::shared_ptr<UILabel> detailTextLabel_;
};

}  // namespace leafund
