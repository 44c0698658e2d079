#include "platform/uikit/Outlet.h"

#include "platform/foundation/FatalError.h"

namespace leafund {

OutletBase::OutletBase(UIViewController* owner, const char* name) : owner_(owner), name_(name) {
  owner_->outlets_.push_back(this);
}

void OutletBase::absent() const {
  fatalError(owner_->className(), "the outlet " + name() + " is absent");
}

}  // namespace leafund
