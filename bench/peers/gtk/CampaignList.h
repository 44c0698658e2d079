#pragma once

#include <gtk/gtk.h>

#include <functional>
#include <string>

#include "model/CampaignClass.h"

// A campaign as an object that a list model can hold. The record must outlive it, as those of the
// catalogue do.
G_DECLARE_FINAL_TYPE(PeerCampaign, peer_campaign, PEER, CAMPAIGN, GObject)

const leafund::CampaignClass& peer_campaign_get_record(PeerCampaign* self);

// Fetches a picture and stretches it to `size` by `size` pixels. Calls `done` on this thread,
// unless the picture cannot be had or `cancellable`, which may be null, is cancelled.
void load_picture(const std::string& uri, int size, GCancellable* cancellable,
                  std::function<void(GdkTexture*)> done);

// The campaigns to browse, in the catalogue's order; the caller owns it.
GListStore* campaign_store_new();

// A list of that store, which it takes over.
GtkWidget* campaign_list_view_new(GListStore* store);
