#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QMap>
#include <QProcess>
#include <QThread>
#include <QVariantMap>
#include <atomic>
#include <memory>

namespace leafund {

// A session bus of the test's own, on which nobody else is.
class PrivateBus {
 public:
  PrivateBus();
  PrivateBus(const PrivateBus&) = delete;
  PrivateBus& operator=(const PrivateBus&) = delete;
  ~PrivateBus();

  const QString& address() const { return address_; }

 private:
  QProcess daemon_;
  QString address_;
};

// A desktop's settings portal on a bus, answering on a thread of its own, as a process would.
class SettingsPortal final : public QDBusVirtualObject {
 public:
  using Settings = QMap<QString, QVariantMap>;

  SettingsPortal(const PrivateBus& bus, Settings settings, bool answers = true);
  SettingsPortal(const SettingsPortal&) = delete;
  SettingsPortal& operator=(const SettingsPortal&) = delete;
  ~SettingsPortal() override;

  // Tells everybody who listens that the user changed a setting.
  void change(const QString& space, const QString& key, const QVariant& value);
  // Answers who has been kept waiting.
  void answer();

  QString introspect(const QString& path) const override;
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

 private:
  QDBusConnection connection_;
  const Settings settings_;
  const bool answers_;
  std::atomic<bool> asked_ = false;
  QDBusMessage waiting_;
  QThread thread_;
};

}  // namespace leafund
