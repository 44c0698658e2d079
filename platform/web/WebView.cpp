#include "platform/web/WebView.h"

#include "platform/display/SceneViews.h"
#include "platform/graphics/PictureHeader.h"
#include "platform/uikit/UIImageView.h"
#include "platform/uikit/UITableView.h"
#include "platform/uikit/UITableViewCell.h"
#include "platform/web/Bridge.h"
#include "platform/web/ViewJson.h"

namespace leafund {

namespace {

std::map<int, WebView*>& known() {
  static auto& known = *new std::map<int, WebView*>;
  return known;
}

// Of a drawing that is one picture over all of it, as a resize makes it, that picture: the browser
// scales it from the body to the size drawn in one step.
const UIImage& sourceOf(const UIImage& image) {
  const auto* drawing = image.drawing();
  if (drawing == nullptr || drawing->strokes.size() != 1) return image;
  return sourceOf(*drawing->strokes.front().image);
}

}  // namespace

WebView::WebView(const std::shared_ptr<UIView>& view) : view_(view) {
  static int last = 0;
  id_ = ++last;
  known()[id_] = this;
  view->setSkin(this);
}

WebView::~WebView() {
  known().erase(id_);
  page::endView(id_);
  const auto view = view_.lock();
  if (view && view->skin() == this) view->setSkin(nullptr);
}

std::shared_ptr<UIView> WebView::viewOf(int id) {
  const auto found = known().find(id);
  return found == known().end() ? nullptr : found->second->view_.lock();
}

void WebView::refresh() {
  const auto view = view_.lock();
  if (!view) return;
  Json look = lookOf(*view);
  if (view->kind() == ViewKind::Table) showRows(static_cast<const UITableView&>(*view), look);
  if (laysCards_) {
    cards_.take(*view);
    look.member("cards", jsonOf(cards_));
  }
  auto json = look.whole();
  // A message may come once more.
  const bool speaks = view->kind() == ViewKind::Label || view->kind() == ViewKind::TextField ||
                      view->kind() == ViewKind::TextView;
  if (speaks || json != told_) {
    told_ = std::move(json);
    page::look(id_, told_.data(), told_.size());
  }
  if (view->kind() == ViewKind::Image) showPicture(static_cast<UIImageView&>(*view).image());
}

void WebView::showRows(const UITableView& table, Json& look) {
  Json rows = Json::list();
  for (const auto& [row, cell] : table.visibleCells()) {
    takeCell(cell);
    Json one = Json::list();
    one.number("", row).number("", cells_[cell.get()]->id());
    one.number("", cell->frame().y).number("", cell->frame().height);
    rows.member("", one);
  }
  look.member("rows", rows);
}

void WebView::takeCell(const std::shared_ptr<UIView>& cell) {
  auto& own = cells_[cell.get()];
  if (own) return;
  own = std::make_unique<WebView>(cell);
  Json parts = Json::object();
  for (const auto& part : partsOf(static_cast<const UITableViewCell&>(*cell))) {
    own->parts_.push_back(std::make_unique<WebView>(part.view));
    own->parts_.back()->laysCards_ = part.view->kind() == ViewKind::Plain;
    parts.number(part.name, own->parts_.back()->id());
  }
  const auto json = parts.whole();
  page::cell(id_, own->id(), json.data(), json.size());
  own->refresh();
  for (const auto& part : own->parts_) part->refresh();
}

void WebView::showPicture(const std::shared_ptr<const UIImage>& image) {
  if (image == image_) return;
  image_ = image;
  const NSData body = image ? sourceOf(*image).body() : nullptr;
  if (!body) return page::picture(id_, nullptr, 0, 0);
  // An image has a body only where its header could be read.
  const auto format = readPictureHeader(*body)->format;
  page::picture(id_, body->data(), body->size(), static_cast<int>(format));
}

}  // namespace leafund
