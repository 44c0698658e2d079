#pragma once

#include "platform/display/Cards.h"
#include "platform/uikit/UIView.h"
#include "platform/web/Json.h"

namespace leafund {

// What a view shows, as views.js reads it. A table's rows and a row's cards are added by WebView,
// which knows their numbers.
Json lookOf(const UIView& view);

Json jsonOf(const Cards& cards);

}  // namespace leafund
