#include "platform/qt/Display.h"

#include <QScreen>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

namespace leafund {

namespace {

// Where no display can be opened, Qt says so in several lines, among them the advice to install the
// application again, and aborts. What it says is held back until the display is open.
class HeldMessages {
 public:
  explicit HeldMessages(const QString& name) {
    name_ = name;
    before_ = qInstallMessageHandler(hold);
  }
  HeldMessages(const HeldMessages&) = delete;
  HeldMessages& operator=(const HeldMessages&) = delete;
  ~HeldMessages() {
    qInstallMessageHandler(before_);
    for (const auto& [type, category, text] : std::exchange(held_, {})) {
      qt_message_output(type, {nullptr, 0, nullptr, category}, text);
    }
  }

  [[noreturn]] static void end(const QString& reason) {
    const QString line = name_ + " has no display to open its window on: " + reason.simplified();
    std::fputs((line.toStdString() + "\n").c_str(), stderr);
    std::exit(EXIT_FAILURE);
  }

 private:
  struct Message {
    QtMsgType type;
    const char* category;  // a constant of Qt's
    QString text;
  };

  static void hold(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type == QtFatalMsg) end(reasonOf(text));
    held_.push_back({type, context.category, text});
  }

  // Qt's fatal message only lists platform plugins. A plugin's own warning says what went wrong;
  // newer versions also print a general hint at a missing package, which is skipped.
  static QString reasonOf(const QString& last) {
    if (!last.contains(QLatin1String("platform plugin"))) return last;
    const auto warning = std::find_if(held_.rbegin(), held_.rend(), [](const Message& each) {
      return (each.type == QtWarningMsg || each.type == QtCriticalMsg) &&
             !each.text.contains(QLatin1String("is needed to load"));
    });
    return warning == held_.rend() ? last : warning->text;
  }

  static inline QString name_;
  static inline QtMessageHandler before_ = nullptr;
  static inline std::vector<Message> held_;
};

}  // namespace

std::unique_ptr<QGuiApplication> connectToDisplay(int& argc, char** argv, const QString& name) {
  const HeldMessages held(name);
  auto application = std::make_unique<QGuiApplication>(argc, argv);
  if (QGuiApplication::primaryScreen() == nullptr) HeldMessages::end("there is no screen");
  return application;
}

}  // namespace leafund
