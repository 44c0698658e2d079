#include "screens/lists/CampaignTableViewController.h"

#include "platform/foundation/Diagnostics.h"
#include "platform/foundation/FatalError.h"
#include "platform/uikit/UIStoryboard.h"
#include "platform/uikit/UITableViewCell.h"
#include "screens/CampaignLookup.h"
#include "screens/campaign/OneCampaignViewController.h"
#include "screens/lists/PictureFetch.h"

namespace leafund {

namespace {

// In points, but for opacity.
constexpr double kRowHeight = 160.0;
constexpr double kUnusedRowHeight = 100.0;
constexpr CGRect kPictureFrame{0, 0, 65, 65};
constexpr double kPictureRadius = 65.0;
constexpr double kPictureBorder = 0.5;
constexpr CGSize kPictureSize{128, 128};
constexpr double kCardTop = 10;
constexpr double kCardHeight = 145;
constexpr double kCardRadius = 2.0;
constexpr CGSize kCardShadowOffset{-1.0, 1.0};
constexpr double kCardShadowOpacity = 0.2;

void framePicture(UIImageView& picture) {
  picture.setFrame(kPictureFrame);
  auto& layer = picture.layer();
  layer.setBorderWidth(kPictureBorder);
  layer.setBorderColor(UIColor::blackColor().CGColor());
  layer.setCornerRadius(kPictureRadius);
  picture.setClipsToBounds(true);
}

std::shared_ptr<UIView> makeCard(double width) {
  auto card = std::make_shared<UIView>(CGRect{0, kCardTop, width, kCardHeight});
  auto& layer = card->layer();
  layer.setBackgroundColor(CGColorCreate(CGColorSpaceCreateDeviceRGB(), {1.0F, 1.0F, 1.0F, 1.0F}));
  layer.setMasksToBounds(false);
  layer.setCornerRadius(kCardRadius);
  layer.setShadowOffset(kCardShadowOffset);
  layer.setShadowOpacity(kCardShadowOpacity);
  return card;
}

}  // namespace

void CampaignTableViewController::viewDidLoad() {
  navigationItem().setHidesBackButton(true);
  UITableViewController::viewDidLoad();
}

void CampaignTableViewController::viewWillAppear(bool animated) {
  UITableViewController::viewWillAppear(animated);
  tableView()->reloadData();
}

std::ptrdiff_t CampaignTableViewController::numberOfSectionsInTableView(UITableView&) { return 1; }

std::ptrdiff_t CampaignTableViewController::tableViewNumberOfRowsInSection(UITableView&,
                                                                           std::ptrdiff_t) {
  const auto count = static_cast<std::ptrdiff_t>(campaigns().size());
  writeDiagnosticLine(decimalText(count));  // a line a call: a trace that is relied upon
  return count;
}

double CampaignTableViewController::tableViewHeightForRowAtIndexPath(UITableView&, NSIndexPath) {
  return kRowHeight;
}

std::shared_ptr<UITableViewCell> CampaignTableViewController::tableViewCellForRowAtIndexPath(
    UITableView& table, NSIndexPath indexPath) {
  auto cell = table.dequeueReusableCellWithIdentifierForIndexPath(reuseIdentifier(), indexPath);
  const auto& campaign = campaignAt(campaigns(), indexPath.row, className());
  if (cell->imageView()) framePicture(*cell->imageView());
  if (!cell->textLabel()) fatalError(className(), "the cell has no text label");
  cell->textLabel()->setText(campaign->title());
  if (!cell->detailTextLabel()) fatalError(className(), "the cell has no detail text label");
  cell->detailTextLabel()->setText(campaign->shortDescription());
  const auto url = pictureURL(campaign->photo(), className());
  // Written to the table and never laid out by: the height operation answers for every row.
  tableView()->setRowHeight(kUnusedRowHeight);
  fetchRowPicture(url, cell);
  return cell;
}

void CampaignTableViewController::fetchRowPicture(const NSURL& url,
                                                  const std::shared_ptr<UITableViewCell>& cell) {
  // Bound to the cell and not to the row: a cell that was reused meanwhile still takes the earlier
  // row's picture, and whichever download ends last is the one that stays.
  fetchPicture(url, [screen = shared(this), cell, size = kPictureSize](const NSData& body) {
    screen->applyRowPicture(*cell, body, size);
  });
}

void CampaignTableViewController::applyRowPicture(UITableViewCell& cell, const NSData& body,
                                                  CGSize size) {
  const auto& picture = cell.imageView();
  if (!picture) fatalError(className(), "the cell has no image view for its picture");
  // Set twice, in this order: at its own size, then redrawn.
  picture->setImage(UIImage::initWithData(body));
  const auto image = picture->image();
  if (!image) fatalError(className(), "the downloaded body is not a picture");
  picture->setImage(imageResizeWithImageSizeChange(image, size));
}

void CampaignTableViewController::tableViewWillDisplayCellForRowAtIndexPath(
    UITableView&, const std::shared_ptr<UITableViewCell>& cell, NSIndexPath) {
  cell->contentView()->setBackgroundColor(UIColor::clearColor());
  const auto root = viewIfLoaded();
  if (!root) fatalError(className(), "the root view is absent");
  // A card a showing, and none is ever removed: they lie exactly on one another.
  auto card = makeCard(root->frame().width);
  cell->contentView()->addSubview(card);
  cell->contentView()->sendSubviewToBack(card);
}

void CampaignTableViewController::prepareForSegueSender(UIStoryboardSegue& segue,
                                                        const Sender& sender) {
  const auto table = tableView();
  const auto cell = std::dynamic_pointer_cast<UITableViewCell>(sender);
  if (!cell) fatalError(className(), "the segue's sender is not a row");
  const auto indexPath = table->indexPathForCell(cell);
  if (!indexPath) fatalError(className(), "the segue's sender is a row of another table");
  const auto detail =
      std::dynamic_pointer_cast<OneCampaignViewController>(segue.destinationViewController());
  if (!detail) return;
  detail->campaignNum = indexPath->row;
  detail->campaignSendingYou = listName();
}

std::shared_ptr<const UIImage> CampaignTableViewController::imageResizeWithImageSizeChange(
    const std::shared_ptr<const UIImage>& image, CGSize size) {
  return redrawnImage(image, size);
}

}  // namespace leafund
