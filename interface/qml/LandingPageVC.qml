import QtQuick
import Leafund

Page {
    id: page

    required property LabelBridge brand
    required property LabelBridge tagline
    required property TextFieldBridge userEmail
    required property TextFieldBridge password
    required property ButtonBridge signInButton
    required property LabelBridge newHere
    required property ButtonBridge signUpButton

    ScrollPane {
        root: page.root
        centred: true
        most: Theme.feed

        TwoColumns {
            id: parts
            width: parent.width
            verticalItemAlignment: Grid.AlignVCenter

            Column {
                width: parts.first
                spacing: Theme.gap
                Sunrise {
                    anchors.horizontalCenter: parent.horizontalCenter
                    width: Math.min(implicitWidth, 2 * Math.round(page.height / 14))  // even: it has halves
                    height: width
                }
                Column {
                    width: parent.width
                    spacing: Theme.unit
                    Words {
                        id: brand
                        view: page.brand
                        heading: true
                        takesFocus: true
                        width: parent.width
                        horizontalAlignment: Text.AlignHCenter
                        font { pointSize: Theme.display; weight: Font.Bold }
                        FocusRing { target: brand }
                    }
                    Words {
                        view: page.tagline
                        width: parent.width
                        horizontalAlignment: Text.AlignHCenter
                        color: Theme.quiet
                    }
                }
            }
            Column {
                width: parts.second
                spacing: Theme.gap
                Item {
                    width: parent.width
                    height: Theme.unit
                    visible: parts.columns === 1
                }
                TextEntry {
                    view: page.userEmail
                    next: password
                    width: parent.width
                }
                TextEntry {
                    id: password
                    view: page.password
                    next: password
                    width: parent.width
                }
                Button {
                    view: page.signInButton
                    width: parent.width
                }
                Words {
                    view: page.newHere
                    width: parent.width
                    horizontalAlignment: Text.AlignHCenter
                    color: Theme.quiet
                }
                Button {
                    view: page.signUpButton
                    primary: false
                    width: parent.width
                }
            }
        }
    }
}
