#include <gtest/gtest.h>

#include <QByteArray>
#include <QtGlobal>

// The tests of the window run where there may be no display; whoever wants to watch them names a
// platform. The host makes the application object itself.
int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
