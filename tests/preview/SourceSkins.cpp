#include "tests/preview/SourceSkins.h"

#include <QFileInfo>
#include <QUrl>

namespace leafund {

namespace {

const QString kModule = QStringLiteral("qrc:/Leafund/");

}  // namespace

QUrl SourceSkins::intercept(const QUrl& url, DataType) {
  const QString name = url.fileName();
  const bool skin = name.endsWith(QLatin1String(".qml"));
  if (skin && url.toString().startsWith(kModule) && folder_.exists(name)) {
    return QUrl::fromLocalFile(folder_.filePath(name));
  }
  // What is said relative to a skin in the folder stands beside the skins in the program.
  const bool beside =
      url.isLocalFile() && QFileInfo(url.toLocalFile()).absolutePath() == folder_.absolutePath();
  if (beside && !folder_.exists(name)) return QUrl(kModule + name);
  return url;
}

QUrl SourceSkins::skinOf(const QString& className) const {
  return QUrl::fromLocalFile(folder_.filePath(className + QStringLiteral(".qml")));
}

}  // namespace leafund
