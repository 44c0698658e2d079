#pragma once

#include <QEventPoint>
#include <QList>
#include <QPointerEvent>

namespace leafund {

// The fingers that come with the event; of a mouse its point, when the first button is pressed.
QList<QEventPoint> pressedPoints(const QPointerEvent& event);

// Whether fingers come while all others do nothing where they are: on the ground, on what would
// scroll, or for so long on a control that they mean no tap there any more. On a text a finger that
// stays asks for its menu.
bool joinsRestingFingers(const QPointerEvent& event);

// Takes the point, when it is lifted, from whatever would take it for a tap; what scrolls or drags
// keeps it.
void cancelTap(QPointerEvent& event, int pointId);

}  // namespace leafund
