#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/display/Cards.h"
#include "platform/graphics/UIImage.h"
#include "platform/uikit/Skin.h"
#include "platform/uikit/UIView.h"
#include "platform/web/Json.h"

namespace leafund {

class UITableView;

// What stands between a view and its element on the page, which knows it by its number. A table's
// holds its rows', a row's its parts'. The view is held weakly.
class WebView final : public Skin {
 public:
  explicit WebView(const std::shared_ptr<UIView>& view);
  ~WebView() override;

  // Tells the page how the view looks, where that has changed.
  void refresh() override;

  int id() const { return id_; }
  // The view of that number; null when either is gone.
  static std::shared_ptr<UIView> viewOf(int id);

 private:
  void showRows(const UITableView& table, Json& look);
  void takeCell(const std::shared_ptr<UIView>& cell);
  void showPicture(const std::shared_ptr<const UIImage>& image);

  int id_;
  std::weak_ptr<UIView> view_;
  std::string told_;
  std::shared_ptr<const UIImage> image_;
  Cards cards_;
  bool laysCards_ = false;                                   // a row's content
  std::map<const UIView*, std::unique_ptr<WebView>> cells_;  // those a table ever showed
  std::vector<std::unique_ptr<WebView>> parts_;              // of a row
};

}  // namespace leafund
