import QtQuick
import Leafund

Page {}
