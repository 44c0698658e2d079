#pragma once

#include "platform/uikit/UIViewController.h"

namespace leafund {

// News of Leafund itself: a static screen without behaviour of its own.
class NewsFeedVC : public UIViewController {};

}  // namespace leafund
