#pragma once

#include <QDir>
#include <QQmlAbstractUrlInterceptor>

namespace leafund {

// Reads the skins from a folder of sources, in place of those compiled into the program. Whatever
// else they name, such as a picture, comes from the program as before.
class SourceSkins final : public QQmlAbstractUrlInterceptor {
 public:
  explicit SourceSkins(const QString& folder) : folder_(folder) {}

  QUrl intercept(const QUrl& url, DataType type) override;
  QUrl skinOf(const QString& className) const;

 private:
  QDir folder_;
};

}  // namespace leafund
