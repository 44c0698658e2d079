#include "platform/foundation/LoadedLibrary.h"

#include <dlfcn.h>

namespace leafund {

LoadedLibrary::LoadedLibrary(const std::string& fileName)
    : library_(dlopen(fileName.c_str(), RTLD_NOW | RTLD_LOCAL)) {
  if (library_ == nullptr) failure_ = dlerror();
}

LoadedLibrary::Function LoadedLibrary::function(const char* name) {
  void* const found = library_ != nullptr ? dlsym(library_, name) : nullptr;
  if (found == nullptr && isThere()) failure_ = dlerror();
  return Function(found);
}

}  // namespace leafund
