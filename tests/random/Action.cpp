#include "tests/random/Action.h"

#include <array>
#include <sstream>

#include "tests/random/Sheet.h"

namespace leafund::random {

namespace {

constexpr std::array<const char*, kActionKinds> kNames{"tap",
                                                       "tap-row",
                                                       "tap-beside",
                                                       "tap-both",
                                                       "begin-editing",
                                                       "type",
                                                       "end",
                                                       "press-return",
                                                       "scroll",
                                                       "resize",
                                                       "go-back",
                                                       "answer",
                                                       "answer-later",
                                                       "answer-all",
                                                       "drain",
                                                       "hold",
                                                       "hold-row",
                                                       "tap-held",
                                                       "type-into-held",
                                                       "tell",
                                                       "ask-email",
                                                       "touch-own-campaigns"};

constexpr std::array<const char*, 5> kEndings{"a picture", "junk", "an empty body", "an error",
                                              "a body and an error"};

}  // namespace

const char* kindName(ActionKind kind) { return kNames.at(static_cast<std::size_t>(kind)); }

std::string readable(const Action& action) {
  std::ostringstream line;
  line << kindName(action.kind);
  if (!action.name.empty()) line << ' ' << action.name;
  switch (action.kind) {
    case ActionKind::Type:
    case ActionKind::TypeIntoHeld:
    case ActionKind::AskEmailRule:
    case ActionKind::TapBoth:
      line << " \"" << readable(action.text) << '"';
      break;
    case ActionKind::TapRow:
    case ActionKind::HoldRow:
    case ActionKind::TellApplication:
      line << ' ' << action.number;
      break;
    case ActionKind::Scroll:
      line << " to " << action.offset;
      break;
    case ActionKind::Resize:
      line << " to " << action.width << " x " << action.height;
      if (action.railWidth > 0) line << " with a rail of " << action.railWidth;
      break;
    case ActionKind::Answer:
    case ActionKind::AnswerLater:
    case ActionKind::AnswerAll:
      line << ' ' << action.number << " with "
           << kEndings.at(static_cast<std::size_t>(action.ending)) << ' ' << action.width << " x "
           << action.height;
      break;
    default:
      break;
  }
  return line.str();
}

}  // namespace leafund::random
