#include "platform/uikit/UITableViewCell.h"

#include <utility>

namespace leafund {

UITableViewCell::UITableViewCell(UITableViewCellStyle style, std::string reuseIdentifier,
                                 std::string segueIdentifier)
    : reuseIdentifier_(std::move(reuseIdentifier)),
      segueIdentifier_(std::move(segueIdentifier)),
      contentView_(std::make_shared<UIView>()) {
  addSubview(contentView_);
  if (style == UITableViewCellStyle::Bare) return;
  if (style == UITableViewCellStyle::Subtitle) {
    imageView_ = std::make_shared<UIImageView>();
    contentView_->addSubview(imageView_);
  }
  textLabel_ = std::make_shared<UILabel>();
  contentView_->addSubview(textLabel_);
  if (style == UITableViewCellStyle::TitleOnly) return;
  detailTextLabel_ = std::make_shared<UILabel>();
  contentView_->addSubview(detailTextLabel_);
}

}  // namespace leafund
