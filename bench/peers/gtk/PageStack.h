#pragma once

#include <gtk/gtk.h>

// The stack of all pages, from signing in to the thanks; a page is made when it is gone to.
GtkWidget* pledge_pages_new();
