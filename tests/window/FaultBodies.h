#pragma once

#include <QColor>
#include <string>

// Bodies, good and bad, of one colour each where they have any.
namespace leafund::bodies {

std::string jpeg(QColor colour);
std::string png(QColor colour);
// Sixteen bits a channel.
std::string deepPng(QColor colour);
// Shows the colour first, and then another one.
std::string animatedGif(QColor colour);

// Whole in its upper two thirds, where it has the colour.
std::string cutJpeg(QColor colour);
std::string cutPng(QColor colour);
// With a header that is damaged, and with a good one before damaged pixels.
std::string pngWithBadHeader();
std::string pngWithBadPixels();
// Small bodies that say they are 65,000 pixels wide and high.
std::string hugeJpeg();
std::string hugePng();

std::string errorPage();
// A drawing that shows a file of the machine.
std::string drawingOfAFile();
std::string zeros();

}  // namespace leafund::bodies
