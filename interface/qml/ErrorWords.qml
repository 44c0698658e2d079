import QtQuick
import Leafund

// A message right below the input it is about; it is read out when it comes.
Words {
    color: Theme.alert
    font { pointSize: Theme.body; weight: Font.DemiBold }
    Accessible.role: Accessible.AlertMessage
}
