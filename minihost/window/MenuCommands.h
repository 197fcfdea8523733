// The menu bar's commands: what each is called, its shortcut, whether it can be chosen now, and
// what it does. Also the application's delegate: asks about changes before the window goes.

#pragma once

#include "minihost/window/SceneEditor.h"

#include <Cocoa/Cocoa.h>

@interface Commands : NSObject <NSApplicationDelegate> {
  @private
    minihost::Workbench* _bench; // lives longer
    BOOL _wantsToQuit;           // once no modal panel of the plug-in is open any more
    BOOL _finished;
}
- (id)initWithWorkbench:(minihost::Workbench*)bench;
- (NSMenu*)menuBar; // autoreleased; its items have the receiver as target
- (BOOL)isFinished; // the user has quit, and nothing is left that was to be saved
- (void)finishWhatWaits;
@end
