import QtQuick
import Leafund

// Has a message of a view read out when it comes, when it takes another's place, and when it comes
// once more. Assistive technology reads a notification that begins to show.
Item {
    id: announcement

    required property ViewBridge view
    // Empty where there is none.
    required property string message
    // The control that is to be seen with it.
    required property Item place

    // The user is in the input that the message stands in.
    property bool editing: false
    property bool wasEditing: false
    property string told

    visible: false
    Accessible.role: Accessible.Notification
    Accessible.name: message

    function tell() {
        visible = false;
        visible = message !== "";
        told = message;
        for (let each = parent; visible && each; each = each.parent)
            if (each.bringIntoSight)
                return each.bringIntoSight(place);
    }

    Component.onCompleted: tell()
    // What is taken back in the meantime is not read, and what was read is not read once more when
    // its page comes back.
    onMessageChanged: if (message === "") visible = false
    onEnabledChanged: if (!enabled) visible = false

    // That the user enters or leaves the input is a change of the view and none of the message.
    Connections {
        target: announcement.view
        function onRefreshed() {
            const entered = announcement.wasEditing !== announcement.editing;
            announcement.wasEditing = announcement.editing;
            if (!entered || announcement.message !== announcement.told)
                Qt.callLater(announcement.tell);
        }
    }
}
