#include "platform/qt/DesktopSettings.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QEvent>
#include <QFile>
#include <QGuiApplication>
#include <QLocale>
#include <QPalette>
#include <thread>
#include <utility>

namespace leafund {

namespace {

using namespace std::chrono_literals;

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString kAppearance = QStringLiteral("org.freedesktop.appearance");
const QString kDesktop = QStringLiteral("org.gnome.desktop.interface");

// Connecting where there is no session bus would launch one, which takes a seventh of the start.
bool busIsThere() {
  const auto runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
  return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
         (!runtime.isEmpty() && QFile::exists(runtime + QStringLiteral("/bus")));
}

bool paletteIsDark() {
  const auto palette = QGuiApplication::palette();
  return palette.color(QPalette::Window).lightness() <
         palette.color(QPalette::WindowText).lightness();
}

}  // namespace

DesktopSettings& DesktopSettings::ofApplication() {
  static const QString name = QStringLiteral("desktopSettings");
  auto* known = qApp->findChild<QObject*>(name, Qt::FindDirectChildrenOnly);
  if (known == nullptr) {
    known = new DesktopSettings(qApp);
    known->setObjectName(name);
  }
  return static_cast<DesktopSettings&>(*known);
}

DesktopSettings::DesktopSettings(QObject* parent) : QObject(parent) {
  parent->installEventFilter(this);
  // Qt takes the direction from the language that it is translated into, which is none here.
  if (QLocale().textDirection() == Qt::RightToLeft) {
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
  }
  connect(qApp, &QGuiApplication::layoutDirectionChanged, this, &DesktopSettings::changed);
  decide();
  if (busIsThere()) ask();
}

bool DesktopSettings::mirrored() const { return QGuiApplication::isRightToLeft(); }

void DesktopSettings::ask() {
  auto bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  bus.connect(kService, kPath, kInterface, QStringLiteral("SettingChanged"), this,
              SLOT(takeChange(QDBusMessage)));
  auto message =
      QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("ReadAll"));
  message << QStringList{kAppearance, kDesktop};
  asked_ = new QDBusPendingCallWatcher(bus.asyncCall(message), this);
  connect(asked_, &QDBusPendingCallWatcher::finished, this, &DesktopSettings::takeAnswer);
}

// The answer arrives on a thread of the bus's own.
void DesktopSettings::await(std::chrono::milliseconds most) {
  const auto end = std::chrono::steady_clock::now() + most;
  while (asked_ && !asked_->isFinished() && std::chrono::steady_clock::now() < end) {
    std::this_thread::sleep_for(100us);
  }
  if (asked_ && asked_->isFinished()) takeAnswer();
}

void DesktopSettings::takeAnswer() {
  auto* call = std::exchange(asked_, nullptr);
  if (call == nullptr) return;
  call->deleteLater();
  if (call->isError()) return;
  const auto arguments = call->reply().arguments();
  const auto answer = arguments.value(0).value<QDBusArgument>();
  if (answer.currentSignature() != QLatin1String("a{sa{sv}}")) return;
  const auto spaces = qdbus_cast<QMap<QString, QVariantMap>>(answer);
  for (auto space = spaces.begin(); space != spaces.end(); ++space) {
    for (auto each = space->begin(); each != space->end(); ++each) {
      note(space.key(), each.key(), each.value());
    }
  }
  decide();
}

void DesktopSettings::takeChange(const QDBusMessage& signal) {
  const auto told = signal.arguments();  // the namespace, the key, and the value as a variant
  if (signal.signature() != QLatin1String("ssv")) return;
  note(told[0].toString(), told[1].toString(), told[2].value<QDBusVariant>().variant());
  decide();
}

void DesktopSettings::note(const QString& space, const QString& key, const QVariant& value) {
  if (space == kDesktop && key == QLatin1String("enable-animations")) animations_ = value.toBool();
  if (space != kAppearance) return;
  if (key == QLatin1String("color-scheme")) colorScheme_ = value.toUInt();
  if (key == QLatin1String("contrast")) contrast_ = value.toUInt();
  if (key == QLatin1String("reduced-motion")) reducedMotion_ = value.toUInt();
}

void DesktopSettings::decide() {
  const bool night = colorScheme_ == 1 || (colorScheme_ != 2 && paletteIsDark());
  const bool highContrast = contrast_ == 1;
  const bool lessMotion = reducedMotion_ == 1 || !animations_;
  if (night == night_ && highContrast == highContrast_ && lessMotion == lessMotion_) return;
  night_ = night;
  highContrast_ = highContrast;
  lessMotion_ = lessMotion;
  emit changed();
}

bool DesktopSettings::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::ApplicationPaletteChange) decide();
  return QObject::eventFilter(object, event);
}

}  // namespace leafund
