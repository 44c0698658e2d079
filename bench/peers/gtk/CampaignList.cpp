#include "bench/peers/gtk/CampaignList.h"

#include <libsoup/soup.h>

#include <memory>

#include "model/Catalogue.h"

struct _PeerCampaign {
  GObject parent_instance;
  const leafund::CampaignClass* record;
  GdkTexture* picture;  // null until it was fetched
};

G_DEFINE_FINAL_TYPE(PeerCampaign, peer_campaign, G_TYPE_OBJECT)

static void peer_campaign_dispose(GObject* object) {
  g_clear_object(&PEER_CAMPAIGN(object)->picture);
  G_OBJECT_CLASS(peer_campaign_parent_class)->dispose(object);
}

static void peer_campaign_class_init(PeerCampaignClass* klass) {
  G_OBJECT_CLASS(klass)->dispose = peer_campaign_dispose;
}

static void peer_campaign_init(PeerCampaign*) {}

const leafund::CampaignClass& peer_campaign_get_record(PeerCampaign* self) { return *self->record; }

namespace {

constexpr int kPicture = 64;

struct Load {
  int size;
  std::function<void(GdkTexture*)> done;
};

void on_body(GObject* session, GAsyncResult* result, gpointer data) {
  const std::unique_ptr<Load> load(static_cast<Load*>(data));
  g_autoptr(GBytes) body =
      soup_session_send_and_read_finish(SOUP_SESSION(session), result, nullptr);
  if (body == nullptr) return;
  g_autoptr(GInputStream) stream = g_memory_input_stream_new_from_bytes(body);
  g_autoptr(GdkPixbuf) pixels =
      gdk_pixbuf_new_from_stream_at_scale(stream, load->size, load->size, FALSE, nullptr, nullptr);
  if (pixels == nullptr) return;
  g_autoptr(GdkTexture) texture = gdk_texture_new_for_pixbuf(pixels);
  load->done(texture);
}

// The widgets of a row, kept with its list item.
struct Row {
  GtkImage* picture;
  GtkLabel* title;
  GtkLabel* pitch;
  GCancellable* loading;
};

GtkLabel* row_label(GtkBox* box, const char* style, int lines) {
  auto* label = GTK_LABEL(gtk_label_new(nullptr));
  gtk_label_set_xalign(label, 0);
  gtk_label_set_wrap(label, TRUE);
  gtk_label_set_lines(label, lines);
  gtk_label_set_ellipsize(label, PANGO_ELLIPSIZE_END);
  gtk_widget_add_css_class(GTK_WIDGET(label), style);
  gtk_box_append(box, GTK_WIDGET(label));
  return label;
}

void on_setup(GtkSignalListItemFactory*, GtkListItem* item, gpointer) {
  auto* card = GTK_BOX(gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 16));
  gtk_widget_add_css_class(GTK_WIDGET(card), "card");
  gtk_widget_set_size_request(GTK_WIDGET(card), -1, 145);

  auto* picture = GTK_IMAGE(gtk_image_new());
  gtk_image_set_pixel_size(picture, kPicture);
  gtk_widget_set_valign(GTK_WIDGET(picture), GTK_ALIGN_CENTER);
  gtk_widget_set_overflow(GTK_WIDGET(picture), GTK_OVERFLOW_HIDDEN);
  gtk_widget_add_css_class(GTK_WIDGET(picture), "disc");
  gtk_box_append(card, GTK_WIDGET(picture));

  auto* words = GTK_BOX(gtk_box_new(GTK_ORIENTATION_VERTICAL, 4));
  gtk_widget_set_valign(GTK_WIDGET(words), GTK_ALIGN_CENTER);
  gtk_widget_set_hexpand(GTK_WIDGET(words), TRUE);
  gtk_box_append(card, GTK_WIDGET(words));

  auto* title = row_label(words, "lead", 2);
  auto* pitch = row_label(words, "quiet", 4);
  g_object_set_data_full(G_OBJECT(item), "row", new Row{picture, title, pitch, nullptr},
                         [](gpointer row) { delete static_cast<Row*>(row); });
  gtk_list_item_set_child(item, GTK_WIDGET(card));
}

void on_bind(GtkSignalListItemFactory*, GtkListItem* item, gpointer) {
  auto* row = static_cast<Row*>(g_object_get_data(G_OBJECT(item), "row"));
  auto* campaign = PEER_CAMPAIGN(gtk_list_item_get_item(item));
  gtk_label_set_text(row->title, campaign->record->title().c_str());
  gtk_label_set_text(row->pitch, campaign->record->shortDescription().c_str());
  gtk_image_set_from_paintable(row->picture, GDK_PAINTABLE(campaign->picture));
  if (campaign->picture != nullptr) return;
  row->loading = g_cancellable_new();
  // Unbinding cancels it, and until then both live.
  load_picture(campaign->record->photo(), kPicture, row->loading,
               [row, campaign](GdkTexture* made) {
                 g_set_object(&campaign->picture, made);
                 gtk_image_set_from_paintable(row->picture, GDK_PAINTABLE(made));
               });
}

void on_unbind(GtkSignalListItemFactory*, GtkListItem* item, gpointer) {
  auto* row = static_cast<Row*>(g_object_get_data(G_OBJECT(item), "row"));
  if (row->loading == nullptr) return;
  g_cancellable_cancel(row->loading);
  g_clear_object(&row->loading);
}

}  // namespace

void load_picture(const std::string& uri, int size, GCancellable* cancellable,
                  std::function<void(GdkTexture*)> done) {
  static SoupSession* const session = soup_session_new();
  g_autoptr(SoupMessage) message = soup_message_new(SOUP_METHOD_GET, uri.c_str());
  if (message == nullptr) return;
  soup_session_send_and_read_async(session, message, G_PRIORITY_DEFAULT, cancellable, on_body,
                                   new Load{size, std::move(done)});
}

GListStore* campaign_store_new() {
  GListStore* store = g_list_store_new(peer_campaign_get_type());
  for (const auto& record : leafund::otherCampaigns()) {
    g_autoptr(PeerCampaign) campaign =
        PEER_CAMPAIGN(g_object_new(peer_campaign_get_type(), nullptr));
    campaign->record = record.get();
    g_list_store_append(store, campaign);
  }
  return store;
}

GtkWidget* campaign_list_view_new(GListStore* store) {
  GtkListItemFactory* factory = gtk_signal_list_item_factory_new();
  g_signal_connect(factory, "setup", G_CALLBACK(on_setup), nullptr);
  g_signal_connect(factory, "bind", G_CALLBACK(on_bind), nullptr);
  g_signal_connect(factory, "unbind", G_CALLBACK(on_unbind), nullptr);
  auto* selection = gtk_no_selection_new(G_LIST_MODEL(store));
  auto* list = gtk_list_view_new(GTK_SELECTION_MODEL(selection), factory);
  gtk_list_view_set_single_click_activate(GTK_LIST_VIEW(list), TRUE);
  return list;
}
