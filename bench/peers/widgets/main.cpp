// The pledge journey in Qt Widgets, as a Qt reviewer would accept it: a list view on a model with a
// delegate that paints the rows, pages of plain widgets in a stack, pictures by the network access
// manager, decoded at the size they are drawn.
//
// Left out beside the app: signing up, creating, updates, the tabs, drawings, slides between pages,
// touch.

#include <QApplication>

#include "bench/peers/widgets/Pages.h"

namespace {

QPalette colours() {
  QPalette palette(QColor(0xf3, 0xf7, 0xef));
  palette.setColor(QPalette::WindowText, QColor(0x1f, 0x2a, 0x19));
  palette.setColor(QPalette::Text, QColor(0x1f, 0x2a, 0x19));
  palette.setColor(QPalette::PlaceholderText, QColor(0x55, 0x62, 0x4d));
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Highlight, QColor(0x53, 0x86, 0x2f));
  return palette;
}

constexpr auto kStyle = R"(
QLineEdit { border: 1px solid #c5d0bc; border-radius: 12px; padding: 0 16px; background: white }
QPushButton { border: 1px solid #53862f; border-radius: 12px; background: white; color: #36601b;
              font: bold 15pt }
QPushButton[primary="true"] { background: #53862f; color: white }
QPushButton[primary="true"]:pressed { background: #36601b }
QFrame#card { border: 1px solid #dde6d5; border-radius: 12px; background: white }
)";

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setFont(QFont(QStringLiteral("Inter"), 12));
  QApplication::setPalette(colours());
  application.setStyleSheet(QString::fromLatin1(kStyle));
  PledgeWindow window;
  window.show();
  return QApplication::exec();
}
