#include "platform/dispatch/MainQueue.h"

#include <utility>

#include "platform/Host.h"

namespace leafund {

void dispatch_async(MainQueue, std::function<void()> step) { currentHost().post(std::move(step)); }

}  // namespace leafund
