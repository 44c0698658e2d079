#pragma once

#include <algorithm>
#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tests/random/Action.h"
#include "tests/random/ReferenceScreen.h"

namespace leafund::random {

// What the application is free to choose: the words of its scenes, the wording of the demonstration
// data, and where the pictures are. The reference is told these and judges all the rest, the words
// that logic writes included.
struct FreeWording {
  std::map<std::string, SceneWords> scenes;                 // by class name
  std::map<std::string, std::string> descriptions, photos;  // by title
  std::string updateTexts[2], updatePhotos[2];
  std::string placeholderPhoto;
};

// The process has stopped, as a programming error is met.
struct Stopped {
  std::string place, reason;
};

// A mistake put into the reference on purpose, to prove that the comparison notices it.
enum class Twist {
  None,
  PledgeWithoutCap,
  NanIsRefused,
  MessageIsNotTyped,
  PictureGoesToTheRow,
  OwnNameFollowsSignUp,
  RowsFromTheBackOfThePool,
  CountIsNotPrinted,
  NoBackFromTheForm,
  AnotherReasonToStop,
  PledgeIsLost,
  TapIsLost,  // on its way from the window to the application
};

// The whole application a second time: the lists, the screens and what is on them, written from
// how the application is meant to behave. It shares no code with it, draws nothing and needs
// nothing but the standard library.
class ReferenceApp {
 public:
  ReferenceApp(const FreeWording& wording, double width, double height, Twist twist = Twist::None);

  // One action, until all has come to rest. Throws Stopped.
  void perform(const Action& action);

  // All that can be seen.
  void describe(Sheet& sheet) const;
  std::string printed;  // by the last action

  const Screen& top() const { return *stack_.back(); }
  // The topmost screen or, where it holds tabs, the selected one.
  const Screen& shown() const;
  // How much of the width tabs at the side take.
  double railWidth() const { return std::min(railWidth_, width_); }
  std::size_t depth() const { return stack_.size(); }
  const PledgeList& others() const { return others_; }
  const PledgeList& funded() const { return funded_; }
  const std::optional<PledgeList>& mine() const { return mine_; }
  const std::string& userName() const { return userName_; }

  // For whoever chooses actions.
  std::size_t openTransfers() const { return transfers_.size(); }
  bool transferIsForARow(std::size_t at) const { return transfers_[at].row != nullptr; }
  bool stepsWait() const { return !steps_.empty(); }
  bool bodiesWait() const;
  bool somethingHeld() const { return held_.has_value(); }
  bool canGoBack(const Screen& screen) const;

 private:
  // A place under a finger. It may have gone when the finger is heard.
  struct Touch {
    std::weak_ptr<Screen> screen;
    std::string view;
    std::weak_ptr<Row> row;
    bool onRow = false;
  };
  struct Transfer {
    std::string address;
    ScreenRef screen;
    RowRef row;  // null for a picture of the screen itself
    std::string picture;
  };
  struct Step {
    Transfer transfer;
    std::optional<PictureFacts> body;  // of width 0 when it is no picture
    bool applies = false;
  };

  // What the user does (ReferenceApp.cpp).
  std::optional<Touch> touchOf(const std::string& view) const;
  std::optional<Touch> touchOfRow(long row) const;
  bool reachable(const Touch& touch) const;
  View* viewUnder(const std::optional<Touch>& touch) const;
  void tap(const std::optional<Touch>& touch);
  void tapBeside();
  void beginEditing(const std::string& view);
  void type(const std::optional<Touch>& touch, const std::string& text);
  void endEditing();
  void goBack();
  void performOnHeld(const Action& action);

  // Where screens stand (ReferenceStack.cpp).
  ScreenRef make(Scene scene);
  void push(const ScreenRef& screen);
  void popTo(std::size_t depth);
  void popToNearest(Scene scene);
  void appear();
  void layOutTop();
  void selectTab(std::size_t tab);
  ScreenRef selectedTab() const;
  std::string barTitle(const Screen& screen) const;
  void reload(const ScreenRef& screen);
  void settle();
  void showRow(const ScreenRef& screen, std::size_t row);

  // What the screens do (ReferenceLogic.cpp and ReferenceForms.cpp).
  void load(const ScreenRef& screen);
  void loadCampaign(const ScreenRef& screen);
  void loadUpdate(const ScreenRef& screen);
  void press(const ScreenRef& screen, const std::string& button);
  void signIn(Screen& screen);
  void signUp(Screen& screen);
  void fund(Screen& screen);
  void book(Screen& screen);
  void create(Screen& screen);
  void openRow(const ScreenRef& list, const RowRef& row);
  const PledgeList& listOf(Scene scene);
  const PledgeList& listNamed(const std::string& name);
  PledgeList& own();
  void print(const std::string& line) { printed += line + '\n'; }
  const PledgeRef& entry(const PledgeList& list, std::size_t position, const Screen& screen) const;

  // Pictures (ReferencePictures.cpp).
  void fetch(Transfer transfer);
  void end(std::size_t position, const Action& action, double width);
  void answerAll(const Action& action);
  // All steps that wait, or the first of them.
  void drain(bool all = true);
  void apply(const Step& step);

  PledgeRef seed(const char* title, std::string creator, float goal, float raised, long day,
                 const char* month, const char* pitch) const;
  void plantSeeds();
  void writeSeedUpdates();

  const FreeWording& wording_;
  Twist twist_;
  double width_, height_;
  double railWidth_ = 0;
  std::vector<ScreenRef> stack_;
  mutable std::vector<std::weak_ptr<Screen>> everMade_;
  PledgeList others_, funded_;
  std::optional<PledgeList> mine_;
  std::string userName_ = "Quillon";
  std::deque<Transfer> transfers_;
  std::deque<Step> steps_;
  std::optional<Touch> held_;
  std::optional<bool> emailAnswer_;
  std::size_t redrawings_ = 0;
};

}  // namespace leafund::random
