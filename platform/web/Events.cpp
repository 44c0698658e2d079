// What the page tells the program: the events of the user, of the system and of the network.
#include <cstdlib>
#include <string>

#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UITableView.h"
#include "platform/web/Bridge.h"
#include "platform/web/WebHost.h"

namespace {

using namespace leafund;

UIApplication& app() { return *UIApplication::current(); }

// Null where the view is gone or of another kind.
template <class View>
std::shared_ptr<View> viewOf(int id) {
  return std::dynamic_pointer_cast<View>(WebView::viewOf(id));
}

// What the page has written into the room() that it asked for.
std::string taken(char* bytes, std::size_t size) {
  std::string text(bytes, size);
  std::free(bytes);
  return text;
}

}  // namespace

LEAFUND_TO_PAGE(room) char* room(std::size_t size) {
  return static_cast<char*>(std::malloc(size + 1));
}

LEAFUND_TO_PAGE(tap) void tap(int id) { app().tap(WebView::viewOf(id)); }
LEAFUND_TO_PAGE(beginEditing) void beginEditing(int id) {
  app().beginEditing(viewOf<UITextInput>(id));
}
LEAFUND_TO_PAGE(endEditing) void endEditing(int id) { app().endEditing(viewOf<UITextInput>(id)); }
LEAFUND_TO_PAGE(edit) void edit(int id, char* text, std::size_t size) {
  app().edit(viewOf<UITextInput>(id), taken(text, size));
}
LEAFUND_TO_PAGE(pressReturn) void pressReturn(int id) {
  app().pressReturn(viewOf<UITextField>(id));
}
LEAFUND_TO_PAGE(scroll) void scroll(int id, double offset, unsigned placements) {
  app().scroll(viewOf<UITableView>(id), offset, placements);
}
LEAFUND_TO_PAGE(goBack) void goBack() { app().goBack(); }
LEAFUND_TO_PAGE(resize) void resize(double width, double height, double rail) {
  app().resize({width, height}, rail);
}

LEAFUND_TO_PAGE(resignActive) void resignActive() { app().resignActive(); }
LEAFUND_TO_PAGE(enterBackground) void enterBackground() { app().enterBackground(); }
LEAFUND_TO_PAGE(enterForeground) void enterForeground() { app().enterForeground(); }
LEAFUND_TO_PAGE(becomeActive) void becomeActive() { app().becomeActive(); }
LEAFUND_TO_PAGE(terminate) void terminate() { app().terminate(); }

LEAFUND_TO_PAGE(drain) void drain() { WebHost::shared().drain(); }
LEAFUND_TO_PAGE(body) void body(int fetch, char* bytes, std::size_t size, int status) {
  WebHost::shared().complete(fetch, std::make_shared<const std::string>(taken(bytes, size)),
                             status);
}
LEAFUND_TO_PAGE(failed) void failed(int fetch) { WebHost::shared().complete(fetch, nullptr); }
