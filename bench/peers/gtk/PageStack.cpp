#include "bench/peers/gtk/PageStack.h"

#include "bench/peers/Pledge.h"
#include "bench/peers/gtk/CampaignList.h"

namespace peers = leafund::peers;

namespace {

// Where the user is, kept with the stack.
struct Journey {
  GtkStack* stack = nullptr;
  GListStore* campaigns = nullptr;
  guint row = 0;
  std::string amount{};
  GtkEditable* email = nullptr;
  GtkEditable* password = nullptr;
  GtkEditable* amount_entry = nullptr;
  GtkLabel* error = nullptr;
};

void go(Journey* journey, const char* page) {
  gtk_stack_set_visible_child_name(journey->stack, page);
}

void go_to_browse(Journey* journey) { go(journey, "browse"); }

void go_to_campaign(Journey* journey) { go(journey, "campaign"); }

// Shows a page instead of the last one of its name.
void show(Journey* journey, const char* name, GtkWidget* page) {
  if (auto* old = gtk_stack_get_child_by_name(journey->stack, name)) {
    gtk_stack_remove(journey->stack, old);
  }
  gtk_stack_add_named(journey->stack, page, name);
  go(journey, name);
}

GtkWidget* column(int spacing) {
  auto* box = gtk_box_new(GTK_ORIENTATION_VERTICAL, spacing);
  gtk_widget_set_margin_start(box, 16);
  gtk_widget_set_margin_end(box, 16);
  return box;
}

GtkWidget* add(GtkWidget* box, GtkWidget* child) {
  gtk_box_append(GTK_BOX(box), child);
  return child;
}

GtkWidget* label(const char* text, const char* style, float align = 0.5F) {
  auto* made = gtk_label_new(text);
  gtk_label_set_wrap(GTK_LABEL(made), TRUE);
  gtk_label_set_xalign(GTK_LABEL(made), align);
  gtk_label_set_justify(GTK_LABEL(made), align > 0 ? GTK_JUSTIFY_CENTER : GTK_JUSTIFY_LEFT);
  gtk_widget_add_css_class(made, style);
  return made;
}

GtkWidget* button(const char* text, bool primary) {
  auto* made = gtk_button_new_with_label(text);
  gtk_widget_add_css_class(made, "wide");
  if (primary) gtk_widget_add_css_class(made, "primary");
  return made;
}

// A page with a bar on top; the way back leads to the list.
GtkWidget* with_bar(Journey* journey, const char* title, bool can_go_back, GtkWidget* content) {
  auto* page = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
  auto* bar = add(page, gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 8));
  gtk_widget_add_css_class(bar, "bar");
  if (can_go_back) {
    auto* back = add(bar, gtk_button_new_from_icon_name("go-previous-symbolic"));
    gtk_widget_set_valign(back, GTK_ALIGN_CENTER);
    gtk_widget_set_tooltip_text(back, "Back");
    g_signal_connect_swapped(back, "clicked", G_CALLBACK(go_to_browse), journey);
  }
  gtk_widget_set_hexpand(add(bar, label(title, "lead", 0)), TRUE);
  gtk_widget_set_vexpand(content, TRUE);
  add(page, content);
  return page;
}

GtkWidget* scrolled(GtkWidget* content) {
  auto* scroll = gtk_scrolled_window_new();
  gtk_scrolled_window_set_policy(GTK_SCROLLED_WINDOW(scroll), GTK_POLICY_NEVER,
                                 GTK_POLICY_AUTOMATIC);
  gtk_scrolled_window_set_child(GTK_SCROLLED_WINDOW(scroll), content);
  return scroll;
}

void open_thanks(Journey* journey) {
  auto* page = column(24);
  gtk_widget_set_valign(page, GTK_ALIGN_CENTER);
  add(page, label("Thank you for your pledge!", "display"));
  auto* home = add(page, button("Home", true));
  g_signal_connect_swapped(home, "clicked", G_CALLBACK(go_to_browse), journey);
  show(journey, "thanks", page);
}

void on_yes(Journey* journey) {
  peers::bookPledge(journey->row, journey->amount);
  g_list_store_remove(journey->campaigns, journey->row);
  open_thanks(journey);
}

void open_confirm(Journey* journey) {
  auto* card = column(16);
  gtk_widget_set_valign(card, GTK_ALIGN_CENTER);
  gtk_widget_add_css_class(card, "dialogue");
  add(card, label("Do you want to fund this campaign?", "display"));
  add(card, label("Your pledge counts at once, and you find the campaign under Funded.", "quiet"));
  auto* yes = add(card, button("Yes", true));
  g_signal_connect_swapped(yes, "clicked", G_CALLBACK(on_yes), journey);
  auto* no = add(card, button("No", false));
  g_signal_connect_swapped(no, "clicked", G_CALLBACK(go_to_campaign), journey);
  show(journey, "confirm", with_bar(journey, "Confirm your pledge", false, card));
}

void on_fund(Journey* journey) {
  g_autoptr(PeerCampaign) campaign =
      PEER_CAMPAIGN(g_list_model_get_item(G_LIST_MODEL(journey->campaigns), journey->row));
  journey->amount = gtk_editable_get_text(journey->amount_entry);
  const auto complaint = peers::complaintAbout(peer_campaign_get_record(campaign), journey->amount);
  gtk_label_set_text(journey->error, complaint.c_str());
  gtk_widget_set_visible(GTK_WIDGET(journey->error), !complaint.empty());
  if (complaint.empty()) open_confirm(journey);
}

GtkWidget* portrait(const std::string& address) {
  auto* picture = gtk_image_new();
  gtk_image_set_pixel_size(GTK_IMAGE(picture), 130);
  gtk_widget_set_halign(picture, GTK_ALIGN_CENTER);
  gtk_widget_set_overflow(picture, GTK_OVERFLOW_HIDDEN);
  gtk_widget_add_css_class(picture, "disc");
  gtk_accessible_update_property(GTK_ACCESSIBLE(picture), GTK_ACCESSIBLE_PROPERTY_LABEL,
                                 "Picture of the campaign", -1);
  // Held until the picture is there; it may have left the window by then.
  std::shared_ptr<GtkWidget> held(GTK_WIDGET(g_object_ref_sink(picture)), g_object_unref);
  load_picture(address, 130, nullptr, [held](GdkTexture* texture) {
    gtk_image_set_from_paintable(GTK_IMAGE(held.get()), GDK_PAINTABLE(texture));
  });
  return picture;
}

void open_campaign(Journey* journey, guint row) {
  g_autoptr(PeerCampaign) item =
      PEER_CAMPAIGN(g_list_model_get_item(G_LIST_MODEL(journey->campaigns), row));
  const auto& campaign = peer_campaign_get_record(item);
  journey->row = row;

  auto* page = column(16);
  gtk_widget_set_margin_top(page, 24);
  gtk_widget_set_margin_bottom(page, 16);
  add(page, portrait(campaign.photo()));
  add(page, label(campaign.title().c_str(), "display"));
  add(page, label(("by " + campaign.creator()).c_str(), "quiet"));
  add(page, label("Raised so far", "quiet", 0));
  auto* share = add(page, gtk_progress_bar_new());
  gtk_progress_bar_set_fraction(GTK_PROGRESS_BAR(share),
                                campaign.currFunding() / campaign.totalFunding());
  auto* sums = add(page, gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 8));
  auto* raised = add(sums, label(peers::dollars(campaign.currFunding()).c_str(), "lead", 0));
  gtk_widget_set_hexpand(raised, TRUE);
  add(sums, label(peers::dollars(campaign.totalFunding()).c_str(), "goal"));

  auto* entry = add(page, gtk_entry_new());
  gtk_entry_set_placeholder_text(GTK_ENTRY(entry), "Amount in dollars");
  journey->amount_entry = GTK_EDITABLE(entry);
  journey->error = GTK_LABEL(add(page, label("", "error", 0)));
  gtk_widget_hide(GTK_WIDGET(journey->error));
  auto* fund = add(page, button("Fund this campaign", true));
  g_signal_connect_swapped(fund, "clicked", G_CALLBACK(on_fund), journey);
  add(page, label("About this campaign", "lead"));
  add(page, label(campaign.campaignDescription().c_str(), "about", 0));
  show(journey, "campaign", with_bar(journey, "Campaign", true, scrolled(page)));
}

void open_browse(Journey* journey) {
  auto* list = campaign_list_view_new(g_object_ref(journey->campaigns));
  g_signal_connect_swapped(list, "activate", G_CALLBACK(open_campaign), journey);
  show(journey, "browse", with_bar(journey, "Browse", false, scrolled(list)));
}

void on_sign_in(Journey* journey) {
  for (auto* field : {journey->email, journey->password}) {
    if (*gtk_editable_get_text(field) == '\0') return;
  }
  open_browse(journey);
}

void open_sign_in(Journey* journey) {
  auto* page = column(16);
  gtk_widget_set_valign(page, GTK_ALIGN_CENTER);
  add(page, label("Leafund", "display"));
  add(page, label("Small pledges, green changes.", "quiet"));
  auto* email = add(page, gtk_entry_new());
  gtk_entry_set_placeholder_text(GTK_ENTRY(email), "E-mail");
  auto* password = add(page, gtk_password_entry_new());
  g_object_set(password, "placeholder-text", "Password", nullptr);
  auto* sign_in = add(page, button("Sign in", true));
  journey->email = GTK_EDITABLE(email);
  journey->password = GTK_EDITABLE(password);
  g_signal_connect_swapped(sign_in, "clicked", G_CALLBACK(on_sign_in), journey);
  add(page, label("New to Leafund?", "quiet"));
  add(page, button("Create an account", false));
  show(journey, "sign-in", page);
}

}  // namespace

GtkWidget* pledge_pages_new() {
  auto* stack = gtk_stack_new();
  gtk_stack_set_transition_type(GTK_STACK(stack), GTK_STACK_TRANSITION_TYPE_SLIDE_LEFT_RIGHT);
  auto* journey = new Journey{.stack = GTK_STACK(stack), .campaigns = campaign_store_new()};
  g_object_set_data_full(G_OBJECT(stack), "journey", journey, [](gpointer data) {
    auto* ended = static_cast<Journey*>(data);
    g_object_unref(ended->campaigns);
    delete ended;
  });
  open_sign_in(journey);
  return stack;
}
