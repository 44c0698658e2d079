import QtQuick
import Leafund

CampaignList {}
