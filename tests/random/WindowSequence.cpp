#include "tests/random/WindowSequence.h"

#include <signal.h>

#include <QtGlobal>
#include <iterator>
#include <optional>

#include "tests/random/Comparison.h"
#include "tests/random/WindowUser.h"

namespace leafund::random {

namespace {

std::string* theWarnings = nullptr;

void collectWarning(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type == QtDebugMsg || type == QtInfoMsg) return;
  // The last: one Timer of a scene ends and the next begins in one round of events. Qt has then
  // stopped its clock for the second before it stops it for the first, and says so; the second
  // fires all the same.
  for (const auto* nobodysFault : {"This plugin does not support", "XDG_RUNTIME_DIR",
                                   "OpenType support missing", "stopAnimationDriver"}) {
    if (message.contains(QLatin1String(nobodysFault))) return;
  }
  *theWarnings += "  warned: " + readable(message.toStdString()) + '\n';
}

class WindowSequence {
 public:
  WindowSequence(const Plan& plan, const FreeWording& wording, Report& report)
      : plan_(plan),
        report_(report),
        reference_(wording, 390, 844, plan.twist),
        app_([this](const Action& action) { follow(action); }, [this] { check(); }),
        user_(app_, reference_),
        generator_(plan.seed, plan.fate, plan.calm()),
        lot_(~plan.seed) {
    watchForStop(report_, printed_, reference_);
    if (plan.twist == Twist::TapIsLost) app_.loseTaps();
  }

  void run() {
    // It opens no larger than the screen.
    follow({.kind = ActionKind::Resize,
            .width = static_cast<double>(app_.window().width()),
            .height = static_cast<double>(app_.window().height())});
    check();
    const std::size_t length = plan_.script ? plan_.script->size() : plan_.length;
    for (std::size_t at = 0; at < length && told_.empty(); ++at) {
      if (plan_.tamperAt && at >= *plan_.tamperAt) app_.hideButton();
      act(plan_.script ? (*plan_.script)[at] : next());
    }
    if (!told_.empty()) return tell(report_, told_);
    signal(SIGABRT, SIG_DFL);
    report_.verdict = Verdict::Lived;
  }
  void close() {
    if (app_.close() > 0) tell(report_, "  screens outlive the application\n");
  }

 private:
  // Oftener than the generator on the ways that users take: in, into a campaign, and back.
  Action next() {
    Action action = generator_.next(reference_);
    if (plan_.fate != Fate::Live || !lot_.percent(30)) return action;
    if (auto onwards = nextOnTheWay()) {
      onwards->how = action.how;
      return *onwards;
    }
    return action;
  }

  std::optional<Action> nextOnTheWay() {
    const Screen& top = reference_.top();
    switch (top.scene) {
      case Scene::Landing:
        return tapOn("signInButton");  // a message counts as typed
      case Scene::SignUp:
      case Scene::Update:
        return Action{.kind = ActionKind::GoBack};
      case Scene::Campaign:
        if (top.at("FundButton").hidden || lot_.percent(60))
          return Action{.kind = ActionKind::GoBack};
        if (top.at("dollarAmountField").text.empty()) return typeInto("dollarAmountField", "5");
        return tapOn("FundButton");
      case Scene::Confirm:
        return tapOn(lot_.percent(30) ? "yesButton" : "noButton");
      case Scene::Thanks:
        return tapOn("homeButton");
      default:
        break;
    }
    const auto& table = reference_.shown().table;
    if (top.scene != Scene::Home || !table || table->shown.empty()) return std::nullopt;
    if (lot_.percent(60)) {
      return Action{
          .kind = ActionKind::TapRow,
          .number = static_cast<long>(
              std::next(table->shown.begin(), static_cast<long>(lot_.below(table->shown.size())))
                  ->first)};
    }
    return Action{.kind = ActionKind::Scroll,
                  .offset = lot_.percent(70) ? table->greatestOffset() : 0};
  }

  void act(const Action& action) {
    count(report_, action, reference_);
    keep(report_, action);
    switch (action.kind) {
      case ActionKind::Answer:
      case ActionKind::AnswerLater:
        answer(action);
        break;
      case ActionKind::AnswerAll:
        for (Action each = action; reference_.openTransfers() > 0; each.width += 1) {
          each.number =
              action.number % 2 == 0 ? 0 : static_cast<long>(reference_.openTransfers()) - 1;
          answer(each);
        }
        break;
      case ActionKind::TouchOwnCampaigns:
        follow(action);
        app_.perform(action);
        break;
      default:
        break;
    }
    if (told_.empty()) told_ += user_.perform(action);
    check();
  }

  // The reference's picture waits like the window's, until the window takes it up.
  void answer(Action action) {
    action.kind = ActionKind::AnswerLater;
    follow(action);
    action.kind = ActionKind::Answer;
    app_.perform(action);
  }

  void follow(const Action& action) {
    const std::string before = reference_.printed;
    try {
      reference_.perform(action);
    } catch (const Stopped& stopped) {
      expectStop(report_, stopped);
    }
    reference_.printed = before + reference_.printed;
  }

  void check() {
    if (!told_.empty()) return;
    if (report_.stopExpected) told_ = "  the application goes on\n";
    told_ += comparison_.differences(reference_, app_, printed_.take());
    told_ += app_.disagreement();
    told_ += warnings_;
    reference_.printed.clear();
  }

  const Plan& plan_;
  Report& report_;
  std::string warnings_, told_;
  PrintedText printed_;
  ReferenceApp reference_;
  Comparison comparison_;
  struct Warnings {
    explicit Warnings(std::string& place) {
      theWarnings = &place;
      qInstallMessageHandler(collectWarning);
    }
    ~Warnings() { qInstallMessageHandler(nullptr); }
  } handler_{warnings_};
  WindowUnderTest app_;
  WindowUser user_;
  ActionGenerator generator_;
  Chance lot_;
};

}  // namespace

void playInWindow(const Plan& plan, const FreeWording& wording, Report& report) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  std::optional<WindowSequence> sequence(std::in_place, plan, wording, report);
  sequence->run();
  if (report.verdict == Verdict::Lived) sequence->close();
}

}  // namespace leafund::random
