#include "platform/qt/CurlLibrary.h"

namespace leafund {

// The version 4 of the binary interface is unchanged since 2006.
CurlLibrary::CurlLibrary(const QString& name) : library_(name, 4) {
  resolve(easyInit, "curl_easy_init");
  resolve(easySetopt, "curl_easy_setopt");
  resolve(easyGetinfo, "curl_easy_getinfo");
  resolve(easyHeader, "curl_easy_header");
  resolve(easyStrerror, "curl_easy_strerror");
  resolve(easyCleanup, "curl_easy_cleanup");
  resolve(slistAppend, "curl_slist_append");
  resolve(slistFreeAll, "curl_slist_free_all");
  resolve(multiInit, "curl_multi_init");
  resolve(multiAddHandle, "curl_multi_add_handle");
  resolve(multiRemoveHandle, "curl_multi_remove_handle");
  resolve(multiPerform, "curl_multi_perform");
  resolve(multiInfoRead, "curl_multi_info_read");
  resolve(multiPoll, "curl_multi_poll");
  resolve(multiWakeup, "curl_multi_wakeup");
  resolve(multiCleanup, "curl_multi_cleanup");
}

template <typename Function>
void CurlLibrary::resolve(Function& function, const char* name) {
  function = reinterpret_cast<Function>(library_.resolve(name));
  if (function == nullptr) failure_ = library_.errorString().toStdString();
}

}  // namespace leafund
