// The menu bar's commands: title, shortcut, whether each is enabled, and what it does. Also the
// application's delegate, which asks about unsaved changes before quitting.

#pragma once

#include "minihost/window/SceneEditor.h"

#include <Cocoa/Cocoa.h>

@interface MenuCommands : NSObject <NSApplicationDelegate> {
  @private
    minihost::SceneEditor* _editor; // not owned
    BOOL _wantsToQuit;              // as soon as no modal panel of the plug-in is open
    BOOL _hasQuit;
}
- (id)initWithEditor:(minihost::SceneEditor*)editor;
- (NSMenu*)menuBar;
// To be called between events: asks about unsaved changes if the user wants to quit.
- (void)quitIfWanted;
- (BOOL)hasQuit;
@end
