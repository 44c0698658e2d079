#pragma once

#include <QGuiApplication>
#include <memory>

namespace leafund {

// Makes Qt's application object, which connects to the display. Where that fails, the process ends
// with one line on standard error, which begins with the application's name, and status 1: there is
// nobody to show anything to. The count must live as long as the object.
std::unique_ptr<QGuiApplication> connectToDisplay(int& argc, char** argv, const QString& name);

}  // namespace leafund
