// The pledge journey in GTK 4, as a GNOME reviewer would accept it: a list view on a list store
// with a signal factory, pages in a stack, one style sheet, pictures by libsoup, decoded at the
// size they are drawn. It is C in its calls and C++ for the catalogue. The window has no title bar,
// as on a phone.
//
// Left out beside the app: signing up, creating, updates, the tabs, drawings, accessible names
// beyond what the widgets give.

#include "bench/peers/gtk/PageStack.h"

namespace {

constexpr auto kStyle = R"(
window { background: #f3f7ef; color: #1f2a19; font: 12pt Inter; }
.display { font: bold 24pt Inter; }
.lead { font: bold 15pt Inter; }
.quiet { color: #55624d; }
.error { color: #b3201b; }
.bar, .card, .about { background: white; }
.bar { min-height: 56px; padding: 0 16px; }
.card { padding: 0 16px; }
.dialogue { background: white; border: 1px solid #dde6d5; border-radius: 12px; padding: 24px; }
.about { border: 1px solid black; padding: 16px; }
.disc { border-radius: 9999px; }
entry, passwordentry { min-height: 50px; border: 1px solid #c5d0bc; border-radius: 12px;
                       background: white; padding: 0 16px; }
button.wide { min-height: 50px; padding: 0; border: 1px solid #53862f; border-radius: 12px;
              background: white; color: #36601b; font: bold 15pt Inter; }
button.wide.primary { background: #53862f; color: white; }
button.wide.primary:active { background: #36601b; }
listview, row { background: none; }
row { padding: 10px 0 5px; }
progress, trough { min-height: 12px; }
progress { background: #53862f; border: none; margin: 0; }
)";

void activate(GtkApplication* application) {
  auto* style = gtk_css_provider_new();
  gtk_css_provider_load_from_data(style, kStyle, -1);
  gtk_style_context_add_provider_for_display(gdk_display_get_default(), GTK_STYLE_PROVIDER(style),
                                             GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
  g_object_unref(style);
  auto* window = GTK_WINDOW(gtk_application_window_new(application));
  gtk_window_set_title(window, "Leafund");
  gtk_window_set_decorated(window, FALSE);
  gtk_window_set_default_size(window, 390, 844);
  gtk_window_set_child(window, pledge_pages_new());
  gtk_window_present(window);
}

}  // namespace

int main(int argc, char** argv) {
  g_autoptr(GtkApplication) application =
      gtk_application_new("app.leafund.Peer", G_APPLICATION_NON_UNIQUE);
  g_signal_connect(application, "activate", G_CALLBACK(activate), nullptr);
  return g_application_run(G_APPLICATION(application), argc, argv);
}
