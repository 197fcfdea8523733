// The verb "show": a window of the desktop in which the plug-in is used as in a real host.
//
// 1. The window is opened, and gives the session its screen: panels are docked in it.
// 2. run() shows the session's scene, opens the plug-in's dialog, and takes the user's events until
//    he quits, with idle calls in between.
// 3. The session unloads the plug-in; after that the window may go.

#pragma once

#include "minihost/actions/Session.h"

#include <memory>
#include <string>

namespace minihost {

struct MainWindowOptions {
    std::string scene;            // its file
    double scale = 0;             // pixels a point; 0: the desktop's own
    double width = 0, height = 0; // points, with the menu bar; 0: what the desktop has room for
    Palette palette = Palette::Dark;
    int frames = 0;         // ends after so many drawn frames; 0: when the user quits
    std::string screenshot; // a file for the last of them
};

class MainWindow {
  public:
    // Opens the window. Throws ActionError when there is no desktop to open it on.
    explicit MainWindow(const MainWindowOptions& options);
    ~MainWindow();
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;

    std::unique_ptr<DialogDriver> make_dialog_driver();
    // Throws ActionError for a screenshot that cannot be written.
    void run(Session& session);

  private:
    struct State;
    std::unique_ptr<State> _state;
};

} // namespace minihost
