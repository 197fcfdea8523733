// The verb "show": a window of the desktop in which the plug-in is used as in a real host.
//
// 1. The constructor opens the window, and make_dialog_driver() is for the session: panels are
//    docked in the window.
// 2. run() shows the session's scene, opens the plug-in's dialog, and handles the user's events,
//    with idle calls in between, until the user quits.
// 3. The session unloads the plug-in; only then may the window be destroyed.

#pragma once

#include "minihost/actions/Session.h"

#include <memory>
#include <string>

namespace minihost {

struct MainWindowOptions {
    std::string scene;            // its file
    double scale = 0;             // pixels per point; 0: the desktop's own
    double width = 0, height = 0; // points, with the menu bar; 0: what the desktop has room for
    Palette palette = Palette::Dark;
    int frames = 0;         // closes after so many drawn frames; 0: when the user quits
    std::string screenshot; // a file for the last of them
};

class MainWindow {
  public:
    // Throws ActionError if there is no desktop to open a window on.
    explicit MainWindow(const MainWindowOptions& options);
    ~MainWindow();
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;

    std::unique_ptr<DialogDriver> make_dialog_driver();
    // Throws ActionError if the screenshot cannot be written.
    void run(Session& session);

  private:
    struct State;
    std::unique_ptr<State> _state;
};

} // namespace minihost
