#include "platform/curl/CurlLibrary.h"

#include <dlfcn.h>

namespace leafund {

CurlLibrary::CurlLibrary(const std::string& fileName) {
  void* const library = dlopen(fileName.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) {
    failure_ = dlerror();
    return;
  }
  resolve(library, easyInit, "curl_easy_init");
  resolve(library, easySetopt, "curl_easy_setopt");
  resolve(library, easyGetinfo, "curl_easy_getinfo");
  resolve(library, easyHeader, "curl_easy_header");
  resolve(library, easyStrerror, "curl_easy_strerror");
  resolve(library, easyCleanup, "curl_easy_cleanup");
  resolve(library, slistAppend, "curl_slist_append");
  resolve(library, slistFreeAll, "curl_slist_free_all");
  resolve(library, multiInit, "curl_multi_init");
  resolve(library, multiSetopt, "curl_multi_setopt");
  resolve(library, multiAddHandle, "curl_multi_add_handle");
  resolve(library, multiRemoveHandle, "curl_multi_remove_handle");
  resolve(library, multiPerform, "curl_multi_perform");
  resolve(library, multiInfoRead, "curl_multi_info_read");
  resolve(library, multiPoll, "curl_multi_poll");
  resolve(library, multiWakeup, "curl_multi_wakeup");
  resolve(library, multiCleanup, "curl_multi_cleanup");
  resolve(library, url, "curl_url");
  resolve(library, urlSet, "curl_url_set");
  resolve(library, urlGet, "curl_url_get");
  resolve(library, urlCleanup, "curl_url_cleanup");
  resolve(library, free, "curl_free");
}

template <typename Function>
void CurlLibrary::resolve(void* library, Function& function, const char* name) {
  function = reinterpret_cast<Function>(dlsym(library, name));
  if (function == nullptr) failure_ = dlerror();
}

}  // namespace leafund
