import QtQuick
import Leafund

CampaignList { emptyIcon: IconItem.Sprout }
