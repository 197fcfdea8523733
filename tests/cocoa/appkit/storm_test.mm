#include "AppKitTest.h"

#include <random>

using appkit_test::AppKitTest;

// Random events and changes: nothing crashes, hangs or is leaked.
class StormTest : public AppKitTest, public testing::WithParamInterface<unsigned> {
  protected:
    int below(int n) { return std::uniform_int_distribution<int>(0, n - 1)(random); }
    NSView* any_view() {
        NSArray* views = [content subviews];
        return [views count] ? [views objectAtIndex:(NSUInteger)below((int)[views count])]
                             : content;
    }
    NSPoint any_point() { return NSMakePoint(below(460) - 30, below(380) - 30); }

    void build() {
        const NSRect rect = NSMakeRect(below(300), below(250), 20 + below(100), 10 + below(30));
        switch (below(6)) {
        case 0:
            field(rect, @"12.5 text", 1);
            break;
        case 1:
            pop_up(rect, {@"a", @"b", @"c"}, 2);
            break;
        case 2:
            add([[NSSlider alloc] initWithFrame:rect], 3);
            break;
        case 3:
            [add([[NSBox alloc] initWithFrame:rect]) addSubview:any_button(rect)];
            break;
        default:
            button(rect, (NSButtonType)below(8), 4);
        }
    }
    NSView* any_button(NSRect rect) {
        rect.origin = NSMakePoint(5, 5);
        NSButton* inner = [[[NSButton alloc] initWithFrame:rect] autorelease];
        [inner setTarget:target];
        [inner setAction:@selector(act:)];
        return inner;
    }

    void post_any() {
        static const unichar keys[] = {'\t',   ' ',    '\r',   0x1b,   'x',    '7',
                                       0x7f,   0x19,   0x09,   0xf700, 0xf701, 0xf702,
                                       0xf703, 0xf729, 0xf72b, 0xf728};
        static const NSUInteger masks[] = {0, 0, NSShiftKeyMask, NSControlKeyMask,
                                           NSCommandKeyMask};
        switch (below(5)) {
        case 0:
            NSPostMouse(window, (NSEventType)(1 + below(7)), any_point(), 1 + below(3),
                        masks[below(5)]);
            break;
        case 1:
            NSPostDrag(content, any_point(), any_point());
            break;
        case 2:
            NSPostClick(any_view(), NSMakePoint(below(60), below(20)), 1 + below(3));
            break;
        default:
            NSPostKey(keys[below(16)], masks[below(5)]);
        }
    }

    void change_any() {
        NSView* view = any_view();
        switch (below(9)) {
        case 0:
            [view removeFromSuperview];
            break;
        case 1:
            [view setHidden:below(2)];
            break;
        case 2:
            if ([view isKindOfClass:[NSControl class]]) [(NSControl*)view setEnabled:below(3) > 0];
            break;
        case 3:
            [view setFrame:NSMakeRect(below(300), below(300), below(200), below(40))];
            break;
        case 4:
            if ([view isKindOfClass:[NSPopUpButton class]])
                [[(NSPopUpButton*)view menu] removeItemAtIndex:below(4)];
            else if ([view isKindOfClass:[NSControl class]])
                [(NSControl*)view setFloatValue:(float)below(1000) / 7];
            break;
        case 5:
            if ([content subviews] && below(2)) [content addSubview:view == content ? nil : view];
            break;
        case 6:
            NSRenderScreen();
            break;
        case 7:
            [window setFrame:NSMakeRect(below(900), below(500), below(500), below(400))
                     display:YES];
            break;
        default:
            build();
        }
    }

    std::mt19937 random{GetParam()};
};

TEST_P(StormTest, NothingBreaks) {
    for (int i = 0; i < 12; ++i) build();
    // Actions change the dialog as well.
    hook = [this](id) {
        if (below(4) == 0) change_any();
    };
    for (int step = 0; step < 250; ++step) {
        for (int n = below(6); n-- > 0;) post_any();
        if (below(3) == 0) change_any();
        if (below(4) == 0) NSDispatchEvents();
    }
    NSDispatchEvents();
    hook = nullptr;
    EXPECT_LE([[content subviews] count], 250u);
}

INSTANTIATE_TEST_SUITE_P(Seeds, StormTest, testing::Range(1u, 9u));
