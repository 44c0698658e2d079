// The floor of a start: the smallest Qt Quick program that shows what a sign-in screen shows, two
// inputs, two buttons and a title, on the renderer that is on screen first.

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

extern void qml_register_types_Floor();

int main(int argc, char** argv) {
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  QGuiApplication application(argc, argv);
  qml_register_types_Floor();
  Q_INIT_RESOURCE(qmlcache_floor_bench);
  QQmlEngine engine;
  QQuickWindow window;
  window.resize(390, 844);
  QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/Floor/floor/Floor.qml")));
  auto* scene = qobject_cast<QQuickItem*>(component.create());
  if (scene == nullptr) qFatal("%s", qPrintable(component.errorString()));
  scene->setParentItem(window.contentItem());
  scene->setSize(window.size());
  window.show();
  return QGuiApplication::exec();
}
