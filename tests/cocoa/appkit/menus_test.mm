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
    // The middle of an item of the open list, in the button's coordinates: the rows are 20 high,
    // and the selected one is over the button's middle.
    NSPoint item(NSInteger index) {
        return NSMakePoint(60, 10.0 + 20 * static_cast<double>(index - [list indexOfSelectedItem]));
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
    EXPECT_EQ([[p menu] numberOfItems], 2);
    insert(@"c", 2);
    [p selectItemAtIndex:2];
    [p selectItemAtIndex:3]; // beyond the end
    EXPECT_EQ([p indexOfSelectedItem], 2);
    [menu removeItemAtIndex:2];
    EXPECT_EQ([p indexOfSelectedItem], 0);
    [p selectItemAtIndex:-1];
    EXPECT_EQ([p indexOfSelectedItem], -1);
    EXPECT_EQ([menu itemAtIndex:5], nil);
    EXPECT_EQ([menu itemAtIndex:-1], nil);
    [menu removeItemAtIndex:9];
    [menu removeItemAtIndex:0];
    [menu removeItemAtIndex:0];
    EXPECT_EQ([p indexOfSelectedItem], -1);
    [p addItemWithTitle:@"x"];
    [p addItemWithTitle:@"x"]; // titles are there once
    EXPECT_EQ([[p menu] numberOfItems], 1);
    // A new cell has a list of its own.
    [p setCell:[[[NSPopUpButtonCell alloc] init] autorelease]];
    EXPECT_EQ([[p menu] numberOfItems], 0);
    EXPECT_NE([p menu], menu);
}

TEST_F(MenuTest, ADragTwoClicksOrKeysChoose) {
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
    EXPECT_EQ([[[list menu] itemAtIndex:1] state], NSOnState);
    EXPECT_EQ([[[list menu] itemAtIndex:0] state], NSOffState);
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
             [[[list menu] itemAtIndex:2] setEnabled:NO];
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
}

TEST_F(MenuBarTest, TheMouseMovesAlongTheBarAndIntoSubmenus) {
    // On the screen: File at 20, More right of it; lists open below 876.
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

TEST_F(MenuBarTest, KeysOpenTheBarAndMoveInIt) {
    EXPECT_EQ([[NSApp windows] count], 1u) << "the bar's window is not listed";
    const auto choose = [&](std::vector<int> keys) {
        NSPostKey(NSF10FunctionKey); // highlights the first item
        for (const int character : keys) NSPostKey(static_cast<unichar>(character));
        NSPostKey('\r');
        NSDispatchEvents();
        return take_log();
    };
    EXPECT_THAT(choose({}), ElementsAre("save"));
    // Over the separator to the submenu, and into it.
    EXPECT_THAT(choose({NSDownArrowFunctionKey, NSRightArrowFunctionKey}), ElementsAre("other"));
    EXPECT_THAT(choose({NSRightArrowFunctionKey}), ElementsAre("other")); // the menu beside it
}

TEST_F(MenuTest, AnItemsOwnActionReplacesTheControls) {
    TestCommands* commands = [[[TestCommands alloc] init] autorelease];
    commands->log = target->log;
    [[[list menu] addItemWithTitle:@"four" action:@selector(save:)
                     keyEquivalent:@""] setTarget:commands];
    [window makeFirstResponder:list];
    for (int character : {0 + ' ', 0 + NSEndFunctionKey, 0 + ' '})
        NSPostKey(static_cast<unichar>(character));
    NSDispatchEvents();
    EXPECT_THAT(take_log(), ElementsAre("save"));
    EXPECT_EQ([list indexOfSelectedItem], 3);
}

TEST_F(MenuTest, TheListStaysOnTheScreen) {
    for (int i = 0; i < 20; ++i) [list addItemWithTitle:[NSString stringWithFormat:@"entry %d", i]];
    [window setFrameOrigin:NSMakePoint(1300, 700)]; // the button is at (1400, 880)
    [list selectItemAtIndex:22];
    // With the 23rd row over the button, the list would begin far above the screen.
    for (const NSPoint at : {NSMakePoint(1410, 890), NSMakePoint(1330, 862)})
        for (const NSEventType type : {NSLeftMouseDown, NSLeftMouseUp}) NSPostScreenMouse(type, at);
    NSDispatchEvents();
    EXPECT_EQ([list indexOfSelectedItem], 0) << "its first row is below the menu bar";
}

TEST_F(MenuTest, AlertsAreAnsweredBeforehandAndRecorded) {
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
