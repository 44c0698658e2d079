import QtQuick
import Leafund

CampaignList { emptyIcon: IconItem.Heart }
