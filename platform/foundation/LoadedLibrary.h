#pragma once

#include <memory>
#include <mutex>
#include <string>

namespace leafund {

// A shared library that is loaded while the program runs, and stays loaded. Linked to the
// executable it would be loaded at every start. One that we use is a class derived from this, with
// a member for each function:
//
//   decltype(&curl_free) free = function("curl_free");
//
// Where one object is enough for all, loaded() has it.
class LoadedLibrary {
 public:
  // Why it cannot be used, for want of it or of a function; empty when all is there. When it is
  // not, no function may be called.
  const std::string& failure() const { return failure_; }
  bool isThere() const { return failure_.empty(); }

 protected:
  // Becomes a pointer to a function of whatever type, as it is wanted.
  class Function {
   public:
    explicit Function(void* address) : address_(address) {}
    template <typename Type>
    operator Type*() const {
      return reinterpret_cast<Type*>(address_);
    }

   private:
    void* address_;
  };

  // `fileName` is looked for where the system keeps its libraries.
  explicit LoadedLibrary(const std::string& fileName);

  // Null where there is none of that name, which is a failure.
  Function function(const char* name);

 private:
  void* library_;
  std::string failure_;
};

// Made by the first who asks; while it is not there, by each, as what was short may be there again.
template <typename Library>
std::shared_ptr<const Library> loaded() {
  static std::mutex mutex;
  static std::shared_ptr<const Library> library;
  const std::lock_guard lock(mutex);
  if (!library || !library->isThere()) library = std::make_shared<const Library>();
  return library;
}

}  // namespace leafund
