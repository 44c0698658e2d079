#pragma once

#include <QObject>
#include <QVariant>
#include <QtDBus/QDBusMessage>
#include <chrono>

class QDBusPendingCallWatcher;

namespace leafund {

// How the user wants every program of the desktop to look, as the desktop's settings portal tells
// it, the palette of Qt's platform theme where there is no portal, and the locale. Asked for once,
// when made, without waiting; what the user changes later is followed.
class DesktopSettings : public QObject {
  Q_OBJECT
  Q_PROPERTY(bool night READ night NOTIFY changed FINAL)
  Q_PROPERTY(bool highContrast READ highContrast NOTIFY changed FINAL)
  // Nothing slides, and what fades does so in no more than 100 ms.
  Q_PROPERTY(bool lessMotion READ lessMotion NOTIFY changed FINAL)
  // The user reads from right to left.
  Q_PROPERTY(bool mirrored READ mirrored NOTIFY changed FINAL)

 public:
  // Those of the application, made on the first call. There must be a QGuiApplication, which owns
  // them.
  static DesktopSettings& ofApplication();

  bool night() const { return night_; }
  bool highContrast() const { return highContrast_; }
  bool lessMotion() const { return lessMotion_; }
  bool mirrored() const;

  // Until the answer has come, and no longer than that: a window that is shown then has no flash of
  // day in the night. Without a bus it returns at once.
  void await(std::chrono::milliseconds most);

  bool eventFilter(QObject* object, QEvent* event) override;

 signals:
  void changed();

 private slots:
  void takeChange(const QDBusMessage& signal);

 private:
  explicit DesktopSettings(QObject* parent);
  void ask();
  void takeAnswer();
  void note(const QString& space, const QString& key, const QVariant& value);
  void decide();

  QDBusPendingCallWatcher* asked_ = nullptr;  // as long as no answer has been taken
  uint colorScheme_ = 0;                      // 0 no preference, 1 dark, 2 light
  uint contrast_ = 0;                         // 1 more
  uint reducedMotion_ = 0;                    // 1 less
  bool animations_ = true;
  bool night_ = false;
  bool highContrast_ = false;
  bool lessMotion_ = false;
};

}  // namespace leafund
