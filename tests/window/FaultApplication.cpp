#include "tests/window/FaultApplication.h"

#include <gtest/gtest.h>

#include <QQuickItemGrabResult>
#include <utility>

#include "interface/qml/bridge/ImageBridge.h"
#include "interface/qml/items/PictureItem.h"
#include "model/Catalogue.h"
#include "platform/foundation/NSURLRequest.h"
#include "platform/uikit/UITableView.h"
#include "platform/uikit/UITableViewCell.h"
#include "tests/support/ViewNamed.h"
#include "tests/window/FaultBodies.h"

namespace leafund {

int WatchedHost::ended(const std::string& address) const {
  const auto found = ended_.find(address);
  return found == ended_.end() ? 0 : found->second;
}

int WatchedHost::ended() const {
  int all = 0;
  for (const auto& [address, count] : ended_) all += count;
  return all;
}

void WatchedHost::transfer(const NSURLRequest& request, CompletionHandler completion) {
  ++started_;
  const std::string address = request.URL().absoluteString();
  CompletionHandler watched = [this, address, inner = std::move(completion)](
                                  NSData body, std::optional<NSURLResponse> response,
                                  std::optional<NSError> error) {
    inner(std::move(body), response, std::move(error));
    // Behind whatever it has posted itself.
    host_.post([this, address] { ++ended_[address]; });
  };
  if (limited_) return limited_->start(address, std::move(watched));
  host_.transfer(request, std::move(watched));
}

FaultApplication::FaultApplication() : host(window.host), hosts(window.server()) {
  setCurrentHost(&host);
}

FaultApplication::~FaultApplication() {
  host.stop();
  window.host.stop();
}

std::shared_ptr<UIView> FaultApplication::view(const std::string& name) {
  return viewNamed(window.navigation(), name);
}

void FaultApplication::tap(const std::string& name) { window.application->tap(view(name)); }

void FaultApplication::signIn() {
  for (const auto* name : {"userEmail", "password"}) {
    const auto input = std::dynamic_pointer_cast<UITextInput>(view(name));
    window.application->beginEditing(input);
    window.application->edit(input, "anything");
  }
  tap("signInButton");
}

UITableView& FaultApplication::table() {
  return dynamic_cast<UITableView&>(*window.shown()->view());
}

void FaultApplication::tapRow(std::ptrdiff_t row) {
  window.application->tap(table().visibleCells().at(row));
}

void FaultApplication::open(Place place, const std::string& address) {
  auto& campaign = *campaignsIFunded().front();
  if (place == Place::Row) campaign.setPhoto(address);
  if (place == Place::Update) campaign.setUpdateOnePhoto(address);
  signIn();
  tap("fundedTab");
  if (place == Place::Row) return hold(table().visibleCells().at(0)->imageView());
  // Only now: the row has begun to fetch its own.
  if (place == Place::Detail) campaign.setPhoto(address);
  tapRow(0);
  if (place == Place::Update) tap("campaignUpdates");
  const bool isDetail = place == Place::Detail;
  hold(std::dynamic_pointer_cast<UIImageView>(view(isDetail ? "campaignImage" : "updateOneImage")));
}

void FaultApplication::hold(std::shared_ptr<UIImageView> place) {
  imageView_ = std::move(place);
  window.application->turn([this] {
    const auto body = std::make_shared<const std::string>(bodies::png(kOldColour));
    imageView_->setImage(UIImage::initWithData(body));
  });
}

// Found by the view it shows: a row's picture has no name.
QQuickItem& FaultApplication::item() {
  for (auto* each : window.page()->findChildren<QQuickItem*>()) {
    if (!each->inherits("leafund::PictureItem")) continue;
    const auto* shown = each->property("view").value<ImageBridge*>();
    if (shown != nullptr && imageView_->skin() == shown) return *each;
  }
  throw std::out_of_range("the place has no item");
}

// Of the item alone and not of the window, so that no slide need be waited for, and without the
// sign that stands there until a picture comes.
QColor FaultApplication::colour() {
  for (auto* sign : item().childItems()) sign->setVisible(false);
  EXPECT_TRUE(window.waitUntil([&] { return PictureItem::areDrawn(window.window()); }));
  const auto grabbed = item().grabToImage();
  QImage image;
  QObject::connect(grabbed.get(), &QQuickItemGrabResult::ready, [&] { image = grabbed->image(); });
  window.waitUntil([&] { return !image.isNull(); });
  return image.pixelColor(image.width() / 2, image.height() / 2);
}

QColor FaultApplication::ground() { return item().property("ground").value<QColor>(); }

}  // namespace leafund
