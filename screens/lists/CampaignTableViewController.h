#pragma once

#include <memory>
#include <string>

#include "model/Catalogue.h"
#include "platform/graphics/UIImage.h"
#include "platform/uikit/UITableViewController.h"

namespace leafund {

class NSURL;

// The one design of the three list screens: a campaign a row, read from the catalogue each time a
// row is built. The screens differ in the three answers at the end.
class CampaignTableViewController : public UITableViewController {
 public:
  void viewDidLoad() override;
  void viewWillAppear(bool animated) override;
  void prepareForSegueSender(UIStoryboardSegue& segue, const Sender& sender) override;

  std::ptrdiff_t numberOfSectionsInTableView(UITableView& tableView) override;
  std::ptrdiff_t tableViewNumberOfRowsInSection(UITableView& tableView,
                                                std::ptrdiff_t section) override;
  double tableViewHeightForRowAtIndexPath(UITableView& tableView, NSIndexPath indexPath) override;
  std::shared_ptr<UITableViewCell> tableViewCellForRowAtIndexPath(UITableView& tableView,
                                                                  NSIndexPath indexPath) override;
  void tableViewWillDisplayCellForRowAtIndexPath(UITableView& tableView,
                                                 const std::shared_ptr<UITableViewCell>& cell,
                                                 NSIndexPath indexPath) override;

  // Redraws a downloaded picture for a row. The download calls it on its screen, so a subclass may
  // replace it.
  virtual std::shared_ptr<const UIImage> imageResizeWithImageSizeChange(
      const std::shared_ptr<const UIImage>& image, CGSize size);

 protected:
  virtual CampaignList& campaigns() const = 0;
  virtual std::string reuseIdentifier() const = 0;
  virtual std::string listName() const = 0;

 private:
  void fetchRowPicture(const NSURL& url, const std::shared_ptr<UITableViewCell>& cell);
  void applyRowPicture(UITableViewCell& cell, const NSData& body, CGSize size);
};

}  // namespace leafund
