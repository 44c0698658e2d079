// The pledge journey in Qt Quick Controls, as a Qt reviewer would accept it: a list model in C++,
// pages in QML, compiled ahead, on the Basic style that is chosen when it is compiled. Pages are
// loaded when they are pushed. The renderer is the environment's choice.
//
// Left out beside the app: signing up, creating, updates, the tabs, drawings, the round pictures
// (Quick has no clip for them in software), accessible names beyond what Controls give.

#include <QFont>
#include <QGuiApplication>
#include <QQmlApplicationEngine>

int main(int argc, char** argv) {
  QGuiApplication application(argc, argv);
  QGuiApplication::setFont(QFont(QStringLiteral("Inter"), 12));
  QQmlApplicationEngine engine;
  QObject::connect(
      &engine, &QQmlApplicationEngine::objectCreated, &application,
      [](const QObject* object) {
        if (object == nullptr) QCoreApplication::exit(1);
      },
      Qt::QueuedConnection);
  engine.load(QUrl(QStringLiteral("qrc:/Peer/Main.qml")));
  return QGuiApplication::exec();
}
