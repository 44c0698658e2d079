import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts

// A button as wide as its layout.
Button {
    Layout.fillWidth: true
    Layout.preferredHeight: 52
    font { pointSize: 15; bold: true }
}
