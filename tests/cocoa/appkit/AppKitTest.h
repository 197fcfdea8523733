// The fixture of the tests of windows and controls: a titled key window on a headless display of
// 1440 x 900 points with a flipped content view, a target that logs its actions, and a check that
// no object is leaked.
#pragma once

#include "tests/cocoa/Pool.h"

#include <AppKit/NSDisplayStandIn.h>
#include <Cocoa/Cocoa.h>

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

@interface TestFlippedView : NSView
@end

// Takes the focus and logs its mouse, wheel and key events.
@interface TestEventView : NSView {
  @public
    std::vector<std::string>* log;
}
@end

// Logs "<tag>" for each action, or "<tag>=<string value>" with `values` set.
@interface TestTarget : NSObject {
  @public
    std::vector<std::string>* log;
    BOOL values;
}
- (void)act:(id)sender;
@end

namespace appkit_test {

class AppKitTest : public testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;

    template <typename View>
    View* add(View* view, int tag = 0) {
        if (tag) {
            [(id)view setTag:tag];
            [(id)view setTarget:target];
            [(id)view setAction:@selector(act:)];
        }
        [content addSubview:view];
        return [view autorelease];
    }
    // Controls with the target; 0 as tag: no action.
    NSButton* button(NSRect frame, NSButtonType type, int tag);
    NSTextField* field(NSRect frame, NSString* text, int tag);
    NSPopUpButton* pop_up(NSRect frame, std::vector<NSString*> titles, int tag);

    std::vector<std::string> take_log();
    static std::string text(NSString* string) { return string ? [string UTF8String] : "(nil)"; }
    static bool equal(NSRect a, NSRect b) {
        return NSEqualPoints(a.origin, b.origin) && NSEqualSizes(a.size, b.size);
    }
    static NSPoint middle(NSView* view);
    void click(NSView* view, NSInteger clicks = 1);
    void key(unichar character, NSUInteger modifiers = 0);
    void type(NSString* string);

    NSWindow* window = nil;
    NSView* content = nil;
    TestTarget* target = nil;

  public:
    static std::function<void(id)> hook; // called for each action

  private:
    std::map<std::string, NSUInteger> _before;
    NSAutoreleasePool* _pool = nil;
};

} // namespace appkit_test
