// The menu bar at the top of the screen: the titles of the main menu's submenus, each of which
// opens on a click, the first on F10.
#pragma once

@class NSMenu;

namespace cocoa {

// nil removes the bar.
void show_menu_bar(NSMenu* menu);
void redraw_menu_bar();
// Opens its first menu for the keyboard; false if there is no bar.
bool open_menu_bar();

} // namespace cocoa
