#include "interface/qml/bridge/WindowClass.h"

#include <interface/qml/Tokens.h>  // generated

#include <QQuickWindow>
#include <QScreen>
#include <algorithm>
#include <cmath>

namespace leafund {

namespace {

constexpr double kUsualDots = 96;  // an inch
constexpr double kMostGrowth = 1.5;

}  // namespace

void WindowClass::follow(const QQuickItem& content) {
  content_ = &content;
  textScale_ = content.window()->screen()->logicalDotsPerInch() / kUsualDots;
  connect(&content, &QQuickItem::widthChanged, this, &WindowClass::note);
  connect(&content, &QQuickItem::heightChanged, this, &WindowClass::note);
  note();
}

void WindowClass::note() {
  if (rail() == noted_) return;
  noted_ = rail();
  emit changed();
}

bool WindowClass::compact() const {
  return content_ == nullptr || content_->width() < tokens::kMedium;
}

bool WindowClass::expanded() const {
  return content_ != nullptr && content_->width() >= tokens::kExpanded &&
         content_->height() >= tokens::kExpandedHeight;
}

double WindowClass::form() const { return expanded() ? tokens::kForm : tokens::kColumn; }

double WindowClass::growth() const { return std::clamp(textScale_, 1.0, kMostGrowth); }

double WindowClass::rail() const {
  if (compact()) return 0;
  return std::round(growth() * (expanded() ? tokens::kWideRail : tokens::kRail));
}

}  // namespace leafund
