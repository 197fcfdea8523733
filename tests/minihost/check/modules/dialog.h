// The small plug-in with a dialog in the host's panel: a check box, a field, a pop-up and a button,
// which arranges the layers.

#pragma once

#include "plugin.h"

#include <Cocoa/Cocoa.h>

@interface SmallTarget : NSObject
- (void)pressed:(id)sender;
@end

enum { check_box_id = 1, field_id, popup_id, button_id };

class DialogPlugin : public Plugin {
  public:
    bool has_panel() const override { return true; }
    // The button's action.
    virtual void on_press() { arrange(); }

    void fill(NSView* container) override {
        NSButton* check = [[NSButton alloc] initWithFrame:NSMakeRect(10, 10, 100, 20)];
        [check setButtonType:NSSwitchButton];
        add(check, check_box_id, container);
        NSTextField* field = [[NSTextField alloc] initWithFrame:NSMakeRect(10, 40, 100, 20)];
        [field setStringValue:@"5"];
        add(field, field_id, container);
        NSPopUpButton* popup = [[NSPopUpButton alloc] initWithFrame:NSMakeRect(10, 70, 100, 20)];
        [popup addItemWithTitle:@"One"];
        [popup addItemWithTitle:@"Two"];
        add(popup, popup_id, container);
        NSButton* button = [[NSButton alloc] initWithFrame:NSMakeRect(10, 100, 100, 20)];
        [button setTitle:@"Arrange"];
        [button setTarget:target()];
        [button setAction:@selector(pressed:)];
        add(button, button_id, container);
    }

  private:
    static void add(NSControl* control, NSInteger tag, NSView* container) {
        [control setTag:tag];
        [container addSubview:control];
        [control release];
    }
    static SmallTarget* target() {
        static SmallTarget* it = [[SmallTarget alloc] init];
        return it;
    }
};

@implementation SmallTarget
- (void)pressed:(id)sender {
    static_cast<void>(sender);
    static_cast<DialogPlugin&>(plugin()).on_press();
}
@end
