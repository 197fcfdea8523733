#include "AppKitTest.h"

#include <cstdlib>
#include <cstring>
#include <SDL.h>

using appkit_test::AppKitTest;
using testing::ElementsAre;

// The display in a window of the desktop, with SDL's dummy driver.
class WindowDisplayTest : public AppKitTest {
  protected:
    void SetUp() override {
        setenv("SDL_VIDEODRIVER", "dummy", 1);
        AppKitTest::SetUp();
        ASSERT_TRUE(NSUseWindowDisplay(@"Test", NSMakeSize(800, 600), 2));
        drain();
    }
    void TearDown() override {
        NSUseHeadlessDisplay(NSMakeSize(1440, 900), 1);
        AppKitTest::TearDown();
    }
    // Does not wait.
    static void drain() { NSDispatchEvents(); }
    // A point of a view as the desktop counts: pixels from the upper left corner.
    SDL_Point pixel(NSView* view) {
        const NSPoint base = [view convertPoint:middle(view) toView:nil];
        const NSPoint screen = [[view window] convertBaseToScreen:base];
        return {int(screen.x * 2), int((600 - screen.y) * 2)};
    }
    static void push_button(Uint32 type, SDL_Point at) {
        SDL_Event event = {};
        event.type = type;
        event.button.button = SDL_BUTTON_LEFT;
        event.button.clicks = 1;
        event.button.x = at.x;
        event.button.y = at.y;
        SDL_PushEvent(&event);
    }
    void click_desktop(NSView* view) {
        push_button(SDL_MOUSEBUTTONDOWN, pixel(view));
        push_button(SDL_MOUSEBUTTONUP, pixel(view));
        drain();
    }
    static void push_key_event(Uint32 type, SDL_Keycode code, Uint16 modifiers) {
        SDL_Event event = {};
        event.type = type;
        event.key.keysym.sym = code;
        event.key.keysym.mod = modifiers;
        SDL_PushEvent(&event);
    }
    static void push_key(SDL_Keycode code, Uint16 modifiers = 0) {
        push_key_event(SDL_KEYDOWN, code, modifiers);
        drain();
    }
    static void push_text(const char* text) {
        SDL_Event event = {};
        event.type = SDL_TEXTINPUT;
        std::strncpy(event.text.text, text, sizeof event.text.text - 1);
        SDL_PushEvent(&event);
        drain();
    }
};

// A slow program finds many events at once.
TEST_F(WindowDisplayTest, ModifiersAreThoseOfTheirEvent) {
    NSButton* b = button(NSMakeRect(200, 100, 60, 20), NSSwitchButton, 2);
    std::vector<NSUInteger> held;
    hook = [&](id) { held.push_back([[NSApp currentEvent] modifierFlags]); };
    const auto click_later = [&] {
        push_button(SDL_MOUSEBUTTONDOWN, pixel(b));
        push_button(SDL_MOUSEBUTTONUP, pixel(b));
    };
    click_later();
    push_key_event(SDL_KEYDOWN, SDLK_LSHIFT, KMOD_LSHIFT);
    click_later();
    push_key_event(SDL_KEYUP, SDLK_LSHIFT, KMOD_NONE);
    push_key_event(SDL_KEYDOWN, SDLK_LCTRL, KMOD_LCTRL);
    click_later();
    drain();
    EXPECT_THAT(held, testing::ElementsAre(0, NSShiftKeyMask, NSControlKeyMask));
}

TEST_F(WindowDisplayTest, TheDesktopsMouseAndKeysReachTheControls) {
    target->values = YES;
    NSTextField* f = field(NSMakeRect(10, 10, 100, 20), @"", 1);
    NSButton* b = button(NSMakeRect(200, 100, 60, 20), NSSwitchButton, 2);
    [b setTitle:@"b"];
    click_desktop(f);
    push_text("4");
    push_text("é");
    push_key(SDLK_HOME);
    push_text("1");
    push_key(SDLK_a, KMOD_LCTRL);
    push_key(SDLK_c, KMOD_LCTRL);
    push_key(SDLK_RIGHT);
    push_key(SDLK_v, KMOD_LCTRL);
    push_key(SDLK_BACKSPACE);
    push_key(SDLK_TAB);
    EXPECT_THAT(take_log(), ElementsAre("1=14é14"));
    EXPECT_EQ([window firstResponder], b);
    push_text(" ");
    click_desktop(b);
    EXPECT_THAT(take_log(), ElementsAre("2=b", "2=b"));
    EXPECT_EQ([b state], NSOffState);
    push_key(SDLK_TAB, KMOD_LSHIFT);
    EXPECT_NE([f currentEditor], nil);
}

@interface QuitRefuser : NSObject <NSApplicationDelegate> {
  @public
    int asked;
}
@end
@implementation QuitRefuser
- (NSApplicationTerminateReply)applicationShouldTerminate:(NSApplication*)__attribute__((unused))
                                                          app {
    ++asked;
    if ([NSApp modalWindow]) [NSApp abortModal];
    return NSTerminateCancel;
}
@end

TEST_F(WindowDisplayTest, ClosingTheWindowAsksTheDelegate) {
    QuitRefuser* refuser = [[[QuitRefuser alloc] init] autorelease];
    [NSApp setDelegate:refuser];
    SDL_Event quit = {};
    quit.type = SDL_QUIT;
    SDL_PushEvent(&quit);
    drain();
    EXPECT_EQ(refuser->asked, 1);
    NSPopUpButton* list = pop_up(NSMakeRect(10, 10, 100, 20), {@"one", @"two"}, 1);
    // Opens the list. The quit event closes it without a choice, then reaches the delegate.
    push_button(SDL_MOUSEBUTTONDOWN, pixel(list));
    push_button(SDL_MOUSEBUTTONUP, pixel(list));
    SDL_PushEvent(&quit);
    drain();
    EXPECT_EQ(refuser->asked, 2);
    EXPECT_THAT(take_log(), testing::IsEmpty());
    [NSApp setDelegate:nil];
}

TEST_F(WindowDisplayTest, AlertPanelsRunByKeysAndEndWithTheWindow) {
    QuitRefuser* refuser = [[[QuitRefuser alloc] init] autorelease];
    [NSApp setDelegate:refuser];
    struct Case {
        std::vector<unichar> keys;
        NSInteger answer;
    } cases[] = {{{'\r'}, NSAlertDefaultReturn},
                 {{NSEscapeCharacter}, NSAlertOtherReturn},
                 {{'\t', '\t', ' '}, NSAlertAlternateReturn},
                 {{NSBackTabCharacter, ' '}, NSAlertOtherReturn},
                 {{}, NSAlertErrorReturn}};
    for (const Case& c : cases) {
        for (unichar character : c.keys) NSPostKey(character);
        SDL_Event quit = {};
        quit.type = SDL_QUIT;
        SDL_PushEvent(&quit);
        EXPECT_EQ(NSRunAlertPanel(@"Title", @"Text", @"Yes", @"No", @"Cancel"), c.answer);
        EXPECT_TRUE([window isKeyWindow]);
        drain();
    }
    [NSApp setDelegate:nil];
}

TEST_F(WindowDisplayTest, FramesAreDrawnWhenSomethingChanges) {
    const NSUInteger before = NSFramesDrawn();
    drain();
    EXPECT_EQ(NSFramesDrawn(), before) << "nothing is drawn without a cause";
    NSButton* b = button(NSMakeRect(200, 100, 60, 20), NSSwitchButton, 2);
    drain();
    EXPECT_EQ(NSFramesDrawn(), before + 1);
    const auto dark = NSRenderView(b, 1).rgba;
    NSUseLightAppearance(YES);
    EXPECT_NE(NSRenderView(b, 1).rgba, dark);
    drain();
    NSUseLightAppearance(NO);
    EXPECT_EQ(NSFramesDrawn(), before + 2);
    EXPECT_EQ(NSRenderView(b, 1).rgba, dark);
}

TEST_F(WindowDisplayTest, TheScreenIsTheWindowsSize) {
    EXPECT_EQ([[NSScreen mainScreen] frame].size.width, 800);
    EXPECT_EQ([[NSScreen mainScreen] backingScaleFactor], 2);
    EXPECT_EQ(NSRenderScreen().width, 1600);
}
