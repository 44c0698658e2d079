#include "tests/window/PrivateBus.h"

#include <QDBusArgument>
#include <QDBusVariant>
#include <stdexcept>
#include <utility>

namespace leafund {

namespace {

const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString kConnection = QStringLiteral("portal");

}  // namespace

PrivateBus::PrivateBus() {
  daemon_.start(QStringLiteral("dbus-daemon"),
                {QStringLiteral("--session"), QStringLiteral("--nofork"),
                 QStringLiteral("--nopidfile"), QStringLiteral("--print-address=1")});
  while (!daemon_.canReadLine()) {
    if (!daemon_.waitForReadyRead()) throw std::runtime_error("there is no dbus-daemon");
  }
  address_ = QString::fromUtf8(daemon_.readLine().trimmed());
  qputenv("DBUS_SESSION_BUS_ADDRESS", address_.toUtf8());
}

PrivateBus::~PrivateBus() {
  daemon_.kill();
  daemon_.waitForFinished();
}

SettingsPortal::SettingsPortal(const PrivateBus& bus, Settings settings, bool answers)
    : connection_(QDBusConnection::connectToBus(bus.address(), kConnection)),
      settings_(std::move(settings)),
      answers_(answers) {
  thread_.start();
  moveToThread(&thread_);
  // Qt warns of a loop that begins before there is an application: it has begun, then, before
  // a warning fails the test.
  QMetaObject::invokeMethod(this, [] {}, Qt::BlockingQueuedConnection);
  connection_.registerVirtualObject(kPath, this);
  if (!connection_.registerService(QStringLiteral("org.freedesktop.portal.Desktop"))) {
    throw std::runtime_error("the portal cannot take its name");
  }
}

SettingsPortal::~SettingsPortal() {
  thread_.quit();
  thread_.wait();
  connection_.unregisterObject(kPath);
  QDBusConnection::disconnectFromBus(kConnection);
}

void SettingsPortal::change(const QString& space, const QString& key, const QVariant& value) {
  auto signal = QDBusMessage::createSignal(kPath, kInterface, QStringLiteral("SettingChanged"));
  signal << space << key << QVariant::fromValue(QDBusVariant(value));
  connection_.send(signal);
}

void SettingsPortal::answer() {
  while (!asked_) QThread::msleep(1);
  QDBusArgument all;
  all << settings_;
  connection_.send(waiting_.createReply(QVariant::fromValue(all)));
}

QString SettingsPortal::introspect(const QString&) const { return {}; }

bool SettingsPortal::handleMessage(const QDBusMessage& message, const QDBusConnection&) {
  if (message.interface() != kInterface || message.member() != QLatin1String("ReadAll")) {
    return false;
  }
  message.setDelayedReply(true);
  waiting_ = message;
  asked_ = true;
  if (answers_) answer();
  return true;
}

}  // namespace leafund
