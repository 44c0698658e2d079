#include "tests/random/WayIn.h"

#include <functional>
#include <utility>

#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UITableView.h"

// A call of UIApplication::tap from another file comes to tapWrapped, and tapItself is the function
// itself. A name that does not fit the declaration any more does not link.
#define LEAFUND_WRAP(name, symbol, ...)                  \
  void name##Itself(__VA_ARGS__) asm("__real__" symbol); \
  void name##Wrapped(__VA_ARGS__) asm("__wrap__" symbol)

namespace leafund::random {

using View = std::shared_ptr<UIView>;
using Input = std::shared_ptr<UITextInput>;
using Field = std::shared_ptr<UITextField>;
using Table = std::shared_ptr<UITableView>;

LEAFUND_WRAP(turn, "ZN7leafund13UIApplication4turnESt8functionIFvvEE", UIApplication*,
             std::function<void()>);
LEAFUND_WRAP(tap, "ZN7leafund13UIApplication3tapERKSt10shared_ptrINS_6UIViewEE", UIApplication*,
             const View&);
LEAFUND_WRAP(beginEditing,
             "ZN7leafund13UIApplication12beginEditingERKSt10shared_ptrINS_11UITextInputEE",
             UIApplication*, const Input&);
LEAFUND_WRAP(edit,
             "ZN7leafund13UIApplication4editERKSt10shared_ptrINS_11UITextInputEE"
             "NSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEE",
             UIApplication*, const Input&, std::string);
LEAFUND_WRAP(endEditing,
             "ZN7leafund13UIApplication10endEditingERKSt10shared_ptrINS_11UITextInputEE",
             UIApplication*, const Input&);
LEAFUND_WRAP(pressReturn,
             "ZN7leafund13UIApplication11pressReturnERKSt10shared_ptrINS_11UITextFieldEE",
             UIApplication*, const Field&);
LEAFUND_WRAP(scroll,
             "ZN7leafund13UIApplication6scrollERKSt10shared_ptrINS_11UITableViewEEdSt8optionalIjE",
             UIApplication*, const Table&, double, std::optional<unsigned>);
LEAFUND_WRAP(resize, "ZN7leafund13UIApplication6resizeENS_6CGSizeEd", UIApplication*, CGSize,
             double);
LEAFUND_WRAP(goBack, "ZN7leafund13UIApplication6goBackEv", UIApplication*);

namespace {

WayInListener* theListener = nullptr;
int depth = 0;

// One call, from the host's code to the application and back.
class Passage {
 public:
  Passage() { ++depth; }
  explicit Passage(const UserEvent& event) : Passage() {
    passes_ = theListener == nullptr || theListener->arrives(event);
  }
  Passage(const Passage&) = delete;
  Passage& operator=(const Passage&) = delete;
  ~Passage() {
    // What a skin raises within a turn waits for it.
    if (--depth == 0 && theListener != nullptr) theListener->turnIsOver();
  }
  bool passes() const { return passes_; }

 private:
  bool passes_ = true;
};

}  // namespace

void listenAtTheWayIn(WayInListener* listener) { theListener = listener; }

void turnWrapped(UIApplication* application, std::function<void()> work) {
  const Passage passage;
  turnItself(application, std::move(work));
}

void tapWrapped(UIApplication* application, const View& view) {
  const Passage passage({.kind = ActionKind::Tap, .view = view});
  if (passage.passes()) tapItself(application, view);
}

void beginEditingWrapped(UIApplication* application, const Input& input) {
  const Passage passage({.kind = ActionKind::BeginEditing, .view = input});
  beginEditingItself(application, input);
}

void editWrapped(UIApplication* application, const Input& input, std::string text) {
  const Passage passage({.kind = ActionKind::Type, .view = input, .text = text});
  editItself(application, input, std::move(text));
}

void endEditingWrapped(UIApplication* application, const Input& input) {
  const Passage passage({.kind = ActionKind::EndEditing, .view = input});
  endEditingItself(application, input);
}

void pressReturnWrapped(UIApplication* application, const Field& field) {
  const Passage passage({.kind = ActionKind::PressReturn, .view = field});
  pressReturnItself(application, field);
}

void scrollWrapped(UIApplication* application, const Table& table, double offset,
                   std::optional<unsigned> placements) {
  const bool outdated = table && placements && *placements != table->placements();
  const Passage passage(
      {.kind = ActionKind::Scroll, .view = outdated ? nullptr : table, .offset = offset});
  scrollItself(application, table, offset, placements);
}

void resizeWrapped(UIApplication* application, CGSize size, double railWidth) {
  const Passage passage({.kind = ActionKind::Resize, .size = size, .railWidth = railWidth});
  resizeItself(application, size, railWidth);
}

void goBackWrapped(UIApplication* application) {
  const Passage passage({.kind = ActionKind::GoBack});
  goBackItself(application);
}

}  // namespace leafund::random
