#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace leafund::random {

// Everything a user, the picture host and the system can do.
enum class ActionKind {
  Tap,
  TapRow,
  TapBeside,  // on the screen itself, beside everything
  TapBoth,    // two fingers down before either is heard
  BeginEditing,
  Type,  // replaces the whole text
  EndEditing,
  PressReturn,
  Scroll,
  Resize,
  GoBack,
  Answer,       // a transfer ends, and its picture is applied
  AnswerLater,  // a transfer ends, and what it posts waits
  AnswerAll,
  DrainMainQueue,
  HoldView,  // a finger stays on it, for a later tap
  HoldRow,
  TapHeld,
  TypeIntoHeld,
  TellApplication,    // the background and back, and memory warnings
  AskEmailRule,       // the form's own rule, which it offers and does not use
  TouchOwnCampaigns,  // something else uses that list first
};
constexpr int kActionKinds = static_cast<int>(ActionKind::TouchOwnCampaigns) + 1;

// How a transfer ends.
enum class Ending { Picture, Junk, EmptyBody, Error, BodyAndError };

struct Action {
  ActionKind kind = ActionKind::Tap;
  std::string name = {};  // of a view of the topmost screen
  std::string text = {};  // what is typed, or the second view's name
  long number = 0;        // a row, a transfer's position, which junk, or which news of the system
  Ending ending = Ending::Picture;
  double width = 0, height = 0;  // of the window in points, or of the picture in pixels
  double railWidth = 0;          // of tabs at the window's side
  double offset = 0;             // points
  std::uint64_t how = 0;         // drawn: how the user of a window goes about it

  bool operator==(const Action&) const = default;
};

using Script = std::vector<Action>;

const char* kindName(ActionKind kind);
// One line, printable.
std::string readable(const Action& action);

}  // namespace leafund::random
