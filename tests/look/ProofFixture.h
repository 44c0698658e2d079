#pragma once

#include <gmock/gmock.h>

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>
#include <memory>
#include <stdexcept>
#include <string>

#include "tests/look/Measure.h"

namespace leafund {

inline auto isFault(const std::string& what, const std::string& item) {
  return testing::AllOf(testing::Field("what", &Fault::what, testing::HasSubstr(what)),
                        testing::Field("item", &Fault::item, testing::HasSubstr(item)));
}

// Each measurement meets an interface with one fault, and must find it and no other.
class ProofFixture : public testing::Test {
 protected:
  // A page of 320 by 400 in white, with this on it.
  QQuickItem& show(const QByteArray& content) {
    QQmlComponent component(&engine_);
    component.setData(
        "import QtQuick\nRectangle { width: 320; height: 400; objectName: 'page'\n" + content + "}",
        {});
    page_.reset(qobject_cast<QQuickItem*>(component.create()));
    if (!page_) throw std::runtime_error(component.errorString().toStdString());
    page_->setParentItem(window_.contentItem());
    window_.resize(320, 400);
    window_.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window_));
    window_.grabWindow();
    return *page_;
  }
  std::vector<Fault> faultsOn(const QByteArray& content) {
    auto& page = show(content);
    return faultsOf(window_, page);
  }

  struct Software {
    Software() { QQuickWindow::setGraphicsApi(QSGRendererInterface::Software); }
  };
  Software software_;
  int arguments_ = 1;
  char program_[8] = "leafund";
  char* list_[2] = {program_, nullptr};
  QGuiApplication application_{arguments_, list_};
  QQmlEngine engine_;
  QQuickWindow window_;
  std::unique_ptr<QQuickItem> page_;
};

}  // namespace leafund
