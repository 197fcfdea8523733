#include "AppKitTest.h"

using appkit_test::AppKitTest;
using testing::ElementsAre;
using testing::IsEmpty;

@interface TestCommands : NSObject {
  @public
    std::vector<std::string>* log;
    BOOL refuses;
}
- (void)save:(id)sender;
- (void)other:(id)sender;
@end
@implementation TestCommands
- (void)save:(id)__attribute__((unused))sender {
    log->push_back("save");
}
- (void)other:(id)__attribute__((unused))sender {
    log->push_back("other");
}
- (BOOL)validateMenuItem:(NSMenuItem*)item {
    return [item action] != @selector(other:) || !refuses;
}
@end

class MenuTest : public AppKitTest {
  protected:
    void SetUp() override {
        AppKitTest::SetUp();
        list = pop_up(NSMakeRect(100, 100, 120, 20), {@"one", @"two", @"three"}, 9);
    }
    NSPoint item(NSInteger index) {
        const NSRect rect = NSRectOfPopUpItem(list, index);
        return NSMakePoint(NSMidX(rect), NSMidY(rect));
    }
    void post(NSEventType type, NSPoint point) {
        NSPostMouse(window, type, [list convertPoint:point toView:nil], 1, 0);
    }
    NSPopUpButton* list = nil;
};

TEST_F(MenuTest, SelectionFollowsTheItems) {
    NSPopUpButton* p = pop_up(NSMakeRect(0, 0, 100, 20), {}, 0);
    EXPECT_EQ([p indexOfSelectedItem], -1);
    EXPECT_EQ([p titleOfSelectedItem], nil);
    NSMenu* menu = [[[NSMenu alloc] initWithTitle:@"ADMMenu"] autorelease];
    [p setMenu:menu];
    EXPECT_EQ([p indexOfSelectedItem], -1);
    auto insert = [&](NSString* title, NSInteger at) {
        NSMenuItem* entry = [[[NSMenuItem alloc] init] autorelease];
        [entry setTitle:title];
        [menu insertItem:entry atIndex:at];
    };
    insert(@"b", 0);
    EXPECT_EQ([p indexOfSelectedItem], 0);
    insert(@"a", 0);
    EXPECT_EQ(text([p titleOfSelectedItem]), "b"); // the item stays selected, at its new place
    insert(@"no", 7);
    insert(@"no", -1);
    EXPECT_EQ([p numberOfItems], 2);
    insert(@"c", 2);
    [p selectItemAtIndex:2];
    [p selectItemAtIndex:3]; // beyond the end
    EXPECT_EQ([p indexOfSelectedItem], 2);
    [menu removeItemAtIndex:2];
    EXPECT_EQ([p indexOfSelectedItem], 0);
    [p selectItemAtIndex:-1];
    EXPECT_EQ([p selectedItem], nil);
    EXPECT_EQ([menu itemAtIndex:5], nil);
    EXPECT_EQ([menu itemAtIndex:-1], nil);
    [menu removeItemAtIndex:9];
    [menu removeItemAtIndex:0];
    [menu removeItemAtIndex:0];
    EXPECT_EQ([p indexOfSelectedItem], -1);
    [p addItemWithTitle:@"x"];
    [p addItemWithTitle:@"x"]; // titles are there once
    EXPECT_EQ([p numberOfItems], 1);
    // A new cell has a list of its own.
    [p setCell:[[[NSPopUpButtonCell alloc] init] autorelease]];
    EXPECT_EQ([p numberOfItems], 0);
    EXPECT_NE([p menu], menu);
}

TEST_F(MenuTest, TheListIsUsedByDragByTwoClicksAndByKeys) {
    post(NSLeftMouseDown, NSMakePoint(60, 10));
    post(NSLeftMouseDragged, item(2));
    post(NSLeftMouseUp, item(2));
    NSDispatchEvents();
    EXPECT_EQ(text([list titleOfSelectedItem]), "three");
    EXPECT_THAT(take_log(), ElementsAre("9"));
    NSPostClick(list, NSMakePoint(60, 10));
    NSPostClick(list, item(0));
    NSDispatchEvents();
    EXPECT_EQ([list indexOfSelectedItem], 0);
    EXPECT_THAT(take_log(), ElementsAre("9"));
    [window makeFirstResponder:list];
    for (unichar character : {(unichar)NSDownArrowFunctionKey, (unichar)NSDownArrowFunctionKey,
                              (unichar)NSCarriageReturnCharacter})
        NSPostKey(character);
    NSDispatchEvents();
    EXPECT_EQ([list indexOfSelectedItem], 1);
    EXPECT_THAT(take_log(), ElementsAre("9"));
    EXPECT_EQ([[list itemAtIndex:1] state], NSOnState);
    EXPECT_EQ([[list itemAtIndex:0] state], NSOffState);
}

TEST_F(MenuTest, LeavingTheListChoosesNothing) {
    struct Case {
        const char* how;
        std::function<void()> post;
    };
    const std::vector<Case> cases = {
        {"release outside",
         [this] {
             post(NSLeftMouseDown, NSMakePoint(60, 10));
             post(NSLeftMouseDragged, NSMakePoint(300, 150));
             post(NSLeftMouseUp, NSMakePoint(300, 150));
         }},
        {"second click outside",
         [this] {
             NSPostClick(list, NSMakePoint(60, 10));
             NSPostClick(list, NSMakePoint(-80, 150));
         }},
        {"no more events", [this] { NSPostClick(list, NSMakePoint(60, 10)); }},
        {"escape",
         [this] {
             [window makeFirstResponder:list];
             NSPostKey(' ');
             NSPostKey(NSDownArrowFunctionKey);
             NSPostKey(NSEscapeCharacter);
         }},
        {"disabled item",
         [this] {
             [[list itemAtIndex:2] setEnabled:NO];
             NSPostClick(list, NSMakePoint(60, 10));
             NSPostClick(list, item(2));
         }},
        {"disabled control",
         [this] {
             [list setEnabled:NO];
             NSPostClick(list, NSMakePoint(60, 10));
             NSPostClick(list, item(1));
         }},
    };
    for (const Case& c : cases) {
        const NSUInteger windows = [[NSApp windows] count];
        c.post();
        NSDispatchEvents();
        EXPECT_EQ([list indexOfSelectedItem], 0) << c.how;
        EXPECT_THAT(take_log(), IsEmpty()) << c.how;
        EXPECT_EQ([[NSApp windows] count], windows) << c.how;
        [list setEnabled:YES];
    }
}

class MenuBarTest : public MenuTest {
  protected:
    void SetUp() override {
        MenuTest::SetUp();
        commands = [[TestCommands alloc] init];
        commands->log = target->log;
        NSMenu* bar = [[[NSMenu alloc] initWithTitle:@""] autorelease];
        file = add_menu(bar, @"File");
        more = add_menu(bar, @"More");
        NSMenuItem* save = [file addItemWithTitle:@"Save"
                                           action:@selector(save:)
                                    keyEquivalent:@"s"];
        [save setTarget:commands];
        [file addItem:[NSMenuItem separatorItem]];
        NSMenuItem* sub = [file addItemWithTitle:@"Sub" action:0 keyEquivalent:@""];
        NSMenu* below = [[[NSMenu alloc] initWithTitle:@"Sub"] autorelease];
        [sub setSubmenu:below];
        [[below addItemWithTitle:@"Other" action:@selector(other:)
                   keyEquivalent:@"S"] setTarget:commands];
        [[more addItemWithTitle:@"Other" action:@selector(other:)
                  keyEquivalent:@"o"] setTarget:commands];
        [NSApp setMainMenu:bar];
    }
    void TearDown() override {
        [NSApp setMainMenu:nil];
        [commands release];
        MenuTest::TearDown();
    }
    NSMenu* add_menu(NSMenu* bar, NSString* title) {
        NSMenuItem* entry = [bar addItemWithTitle:title action:0 keyEquivalent:@""];
        NSMenu* menu = [[[NSMenu alloc] initWithTitle:title] autorelease];
        [entry setSubmenu:menu];
        return menu;
    }
    // Clicks on the bar come as the display sends them: for no listed window.
    void click_bar(double x) {
        NSPoint at = NSMakePoint(x, 12);
        for (NSEventType type : {NSLeftMouseDown, NSLeftMouseUp})
            NSPostMouse(bar_window(), type, at, 1, 0);
    }
    NSWindow* bar_window() {
        for (NSInteger number = 1; number < 10000; ++number) {
            NSWindow* w = [NSApp windowWithWindowNumber:number];
            if (w && [w frame].size.width == 1440 && [w frame].size.height == 24) return w;
        }
        return nil;
    }
    NSMenu* file = nil;
    NSMenu* more = nil;
    TestCommands* commands = nil;
};

TEST_F(MenuBarTest, KeyEquivalentsNeedTheirModifiersAndAnEnabledItem) {
    key('s');
    EXPECT_THAT(take_log(), IsEmpty());
    key('s', NSCommandKeyMask);
    key('s', NSControlKeyMask);
    key('S', NSCommandKeyMask | NSShiftKeyMask);
    key('o', NSCommandKeyMask);
    key('o', NSCommandKeyMask | NSAlternateKeyMask);
    EXPECT_THAT(take_log(), ElementsAre("save", "save", "other", "other"));
    commands->refuses = YES;
    key('o', NSCommandKeyMask);
    EXPECT_THAT(take_log(), IsEmpty());
    EXPECT_FALSE([[more itemAtIndex:0] isEnabled]);
    // One without modifiers gets what no view wants.
    [[file itemAtIndex:0] setKeyEquivalent:@"d"];
    [[file itemAtIndex:0] setKeyEquivalentModifierMask:0];
    key('d');
    EXPECT_THAT(take_log(), ElementsAre("save"));
    [window makeFirstResponder:field(NSMakeRect(0, 0, 80, 20), @"", 0)];
    key('d');
    EXPECT_THAT(take_log(), IsEmpty());
}

TEST_F(MenuBarTest, TheMouseGoesAlongTheBarAndIntoSubmenus) {
    // On the screen, as the display tells it: File at 20, More right of it; lists open below 876.
    const NSPoint over_file = NSMakePoint(20, 888), over_more = NSMakePoint(60, 888);
    NSPostScreenMouse(NSLeftMouseDown, over_file);
    NSPostScreenMouse(NSMouseMoved, over_more);
    NSPostScreenMouse(NSMouseMoved, NSMakePoint(70, 862));
    NSPostScreenMouse(NSLeftMouseUp, NSMakePoint(70, 862));
    NSDispatchEvents();
    EXPECT_THAT(take_log(), ElementsAre("other"));
    // Click, click on the third row (behind a separator of 9), then into the list beside it.
    NSPostScreenMouse(NSLeftMouseDown, over_file);
    NSPostScreenMouse(NSLeftMouseUp, over_file);
    NSPostScreenMouse(NSMouseMoved, NSMakePoint(40, 876 - 4 - 20 - 9 - 10));
    NSPostScreenMouse(NSMouseMoved, NSMakePoint(150, 876 - 4 - 20 - 9 - 10));
    NSPostScreenMouse(NSLeftMouseDown, NSMakePoint(150, 876 - 4 - 20 - 9 - 10));
    NSPostScreenMouse(NSLeftMouseUp, NSMakePoint(150, 876 - 4 - 20 - 9 - 10));
    NSDispatchEvents();
    EXPECT_THAT(take_log(), ElementsAre("other"));
    // A click on the title of the open menu closes it.
    for (int i = 0; i < 2; ++i) {
        NSPostScreenMouse(NSLeftMouseDown, over_file);
        NSPostScreenMouse(NSLeftMouseUp, over_file);
    }
    EXPECT_GT(NSDispatchEvents(), 0u);
    EXPECT_THAT(take_log(), IsEmpty());
}

TEST_F(MenuBarTest, TheBarOpensItsMenusByMouseAndLetsArrowsGoOn) {
    ASSERT_NE(bar_window(), nil);
    EXPECT_EQ([[NSApp windows] indexOfObjectIdenticalTo:bar_window()], (NSUInteger)NSNotFound);
    click_bar(20);
    NSPostKey(NSDownArrowFunctionKey);
    NSPostKey('\r');
    NSDispatchEvents();
    EXPECT_THAT(take_log(), ElementsAre("save"));
    click_bar(20); // down to the submenu, over the separator, into it
    for (unichar c : {NSDownArrowFunctionKey, NSDownArrowFunctionKey, NSRightArrowFunctionKey})
        NSPostKey(c);
    NSPostKey('\r');
    NSDispatchEvents();
    EXPECT_THAT(take_log(), ElementsAre("other"));
    click_bar(20); // over to the menu beside
    NSPostKey(NSRightArrowFunctionKey);
    NSPostKey('\r');
    NSDispatchEvents();
    EXPECT_THAT(take_log(), ElementsAre("other"));
    NSPostKey(NSF10FunctionKey); // the keyboard finds the first item lit
    NSPostKey('\r');
    NSDispatchEvents();
    EXPECT_THAT(take_log(), ElementsAre("save"));
}

TEST_F(MenuTest, AnItemsOwnActionGoesBeforeTheControls) {
    TestCommands* commands = [[[TestCommands alloc] init] autorelease];
    commands->log = target->log;
    [[list itemAtIndex:1] setAction:@selector(save:)];
    [[list itemAtIndex:1] setTarget:commands];
    [window makeFirstResponder:list];
    for (int character : {0 + ' ', 0 + NSEndFunctionKey, 0 + NSUpArrowFunctionKey, 0 + ' '})
        NSPostKey(static_cast<unichar>(character));
    NSDispatchEvents();
    EXPECT_THAT(take_log(), ElementsAre("save"));
    EXPECT_EQ([list indexOfSelectedItem], 1);
}

TEST_F(MenuTest, TheListStaysOnTheScreen) {
    for (int i = 0; i < 20; ++i) [list addItemWithTitle:[NSString stringWithFormat:@"entry %d", i]];
    auto on_screen = [&](NSInteger index) {
        const NSRect rect = [list convertRect:NSRectOfPopUpItem(list, index) toView:nil];
        return [window convertBaseToScreen:rect.origin];
    };
    [window setFrameOrigin:NSMakePoint(-150, -100)];
    EXPECT_GE(on_screen(22).y, 0);
    EXPECT_GE(on_screen(22).x, 0);
    [window setFrameOrigin:NSMakePoint(1300, 700)];
    [list selectItemAtIndex:22];
    EXPECT_LE(on_screen(0).y + 20, 876);
    EXPECT_LE(on_screen(0).x + 120, 1440);
    EXPECT_TRUE(NSIsEmptyRect(NSRectOfPopUpItem(list, 23)));
}

TEST_F(MenuTest, AlertsAreAnsweredBeforehandAndRemembered) {
    NSForgetShownAlerts();
    NSSetNextAlertAnswer(2);
    EXPECT_EQ(NSRunAlertPanel(@"T", @"%d%% of %@", @"Yes", @"No", @"Cancel", 5, @"it"), 0);
    EXPECT_EQ(NSRunAlertPanel(@"T", @"x", @"Yes", @"No", nil), 1);
    NSSetNextAlertAnswer(3);
    EXPECT_EQ(NSRunAlertPanel(@"T", @"x", nil, nil, @"Third"), 1); // it has no third button
    NSSetNextAlertAnswer(3);
    EXPECT_EQ(NSRunAlertPanel(@"T", @"x", @"a", @"b", @"c"), -1);
    const auto alerts = NSShownAlerts();
    ASSERT_EQ(alerts.size(), 4u);
    EXPECT_EQ(alerts[0].message, "5% of it");
    EXPECT_THAT(alerts[0].buttons, ElementsAre("Yes", "No", "Cancel"));
    EXPECT_THAT(alerts[2].buttons, ElementsAre("OK", "Third"));
}

TEST_F(MenuTest, AlertPanelsRunByKeys) {
    NSSetAlertsInteractive(YES);
    struct Case {
        std::vector<unichar> keys;
        NSInteger answer;
    } cases[] = {{{'\r'}, 1},
                 {{NSEscapeCharacter}, -1},
                 {{'\t', '\t', ' '}, 0},
                 {{}, NSAlertErrorReturn},
                 {{NSBackTabCharacter, ' '}, -1}};
    for (const Case& c : cases) {
        for (unichar character : c.keys) NSPostKey(character);
        EXPECT_EQ(NSRunAlertPanel(@"Title", @"Text", @"Yes", @"No", @"Cancel"), c.answer);
        EXPECT_TRUE([window isKeyWindow]);
    }
    NSSetAlertsInteractive(NO);
}
