#include "AppKitTest.h"

using appkit_test::AppKitTest;
using testing::ElementsAre;
using testing::IsEmpty;

class TextTest : public AppKitTest {
  protected:
    void SetUp() override {
        AppKitTest::SetUp();
        target->values = YES;
        one = field(NSMakeRect(10, 10, 100, 20), @"one", 1);
        two = field(NSMakeRect(10, 40, 100, 20), @"two", 2);
    }
    bool selected(NSUInteger location, NSUInteger length) {
        const NSRange range = [(NSText*)[window firstResponder] selectedRange];
        return range.location == location && range.length == length;
    }
    NSTextField* one = nil;
    NSTextField* two = nil;
};

TEST_F(TextTest, TabEditsOneFieldAfterTheOtherAndActsWhereTextChanged) {
    [window makeFirstResponder:one];
    EXPECT_EQ([one currentEditor], [window firstResponder]);
    EXPECT_TRUE(selected(0, 3));
    type(@"12");
    EXPECT_EQ(text([one stringValue]), "12");
    EXPECT_THAT(take_log(), IsEmpty());
    key('\t');
    EXPECT_THAT(take_log(), ElementsAre("1=12"));
    EXPECT_EQ([one currentEditor], nil);
    EXPECT_NE([two currentEditor], nil);
    key('\t'); // nothing edited: nothing sent
    EXPECT_THAT(take_log(), IsEmpty());
    EXPECT_NE([one currentEditor], nil);
    key(NSBackTabCharacter);
    EXPECT_NE([two currentEditor], nil);
    [[two cell] setSendsActionOnEndEditing:NO];
    type(@"x");
    key('\t');
    EXPECT_THAT(take_log(), IsEmpty());
    EXPECT_EQ(text([two stringValue]), "x");
}

TEST_F(TextTest, ReturnActsAndKeepsTheFocusWithAllSelected) {
    click(one);
    key('\r');
    EXPECT_THAT(take_log(), ElementsAre("1=one"));
    EXPECT_TRUE(selected(0, 3));
    type(@"5");
    key(NSEnterCharacter);
    EXPECT_THAT(take_log(), ElementsAre("1=5"));
    // The action moves the focus.
    hook = [this](id) { [window makeFirstResponder:two]; };
    type(@"6");
    key('\r');
    EXPECT_NE([two currentEditor], nil);
    EXPECT_EQ(text([one stringValue]), "6");
}

TEST_F(TextTest, EscapeRestoresTheText) {
    [window makeFirstResponder:one];
    type(@"zzz");
    key(NSEscapeCharacter);
    EXPECT_EQ(text([one stringValue]), "one");
    key('\t');
    EXPECT_THAT(take_log(), IsEmpty());
}

TEST_F(TextTest, EscapePressesTheCancelButtonFromWithinAField) {
    [button(NSMakeRect(10, 70, 60, 20), NSMomentaryPushInButton, 3) setKeyEquivalent:@"\033"];
    [window makeFirstResponder:one];
    type(@"zzz");
    key(NSEscapeCharacter);
    EXPECT_EQ(text([one stringValue]), "one");
    EXPECT_THAT(take_log(), ElementsAre("3=Button"));
}

TEST_F(TextTest, KeysEdit) {
    constexpr NSUInteger S = NSShiftKeyMask, C = NSControlKeyMask;
    struct Step {
        unichar key;
        NSUInteger modifiers;
    };
    struct Case {
        NSString* before; // caret at the end
        std::vector<Step> keys;
        const char* after;
    } cases[] = {
        {@"abc", {{NSDeleteCharacter, 0}}, "ab"},
        {@"abc", {{NSHomeFunctionKey, 0}, {NSDeleteFunctionKey, 0}}, "bc"},
        {@"abc", {{NSLeftArrowFunctionKey, 0}, {'x', 0}}, "abxc"},
        {@"abc", {{NSLeftArrowFunctionKey, S}, {NSLeftArrowFunctionKey, S}, {'x', 0}}, "ax"},
        {@"abc", {{NSHomeFunctionKey, S}, {NSRightArrowFunctionKey, 0}, {'x', 0}}, "abcx"},
        {@"abc", {{NSHomeFunctionKey, S}, {NSLeftArrowFunctionKey, 0}, {'x', 0}}, "xabc"},
        {@"abc", {{'a', C}, {'x', 0}}, "x"},
        {@"abc", {{'a', NSCommandKeyMask}, {NSDeleteCharacter, 0}}, ""},
        {@"abc", {{'a', C}, {'c', C}, {NSEndFunctionKey, 0}, {'v', C}}, "abcabc"},
        {@"abc", {{NSLeftArrowFunctionKey, S}, {'x', C}, {NSHomeFunctionKey, 0}, {'v', C}}, "cab"},
        {@"12 34", {{NSLeftArrowFunctionKey, C}, {'x', 0}}, "12 x34"},
        {@"12 34", {{NSDeleteCharacter, C}}, "12 "},
        {@"", {{NSDeleteCharacter, 0}, {NSDeleteFunctionKey, 0}, {NSLeftArrowFunctionKey, 0}}, ""},
        {@"a\U0001F600", {{NSDeleteCharacter, 0}}, "a"},
        {@"a\U0001F600", {{NSLeftArrowFunctionKey, 0}, {'x', 0}}, "ax\U0001F600"},
        {@"abc", {{0xF704, 0}, {'q', C}}, "abc"}, // keys without a command
    };
    for (const Case& c : cases) {
        [window makeFirstResponder:nil];
        [one setStringValue:c.before];
        [window makeFirstResponder:one];
        key(NSEndFunctionKey);
        for (const Step& step : c.keys) key(step.key, step.modifiers);
        EXPECT_EQ(text([one stringValue]), c.after) << text(c.before);
    }
}

TEST_F(TextTest, InsertedTextStaysOnOneLine) {
    [window makeFirstResponder:one];
    [[one currentEditor] insertText:@"a\nb\tc"];
    EXPECT_EQ(text([one stringValue]), "a b c");
}

TEST_F(TextTest, TheMouseSetsTheCaretAndSelects) {
    [one setStringValue:@"12.5 px"];
    NSPostClick(one, NSMakePoint(99, 10));
    NSDispatchEvents();
    EXPECT_TRUE(selected(7, 0));
    NSPostClick(one, NSMakePoint(2, 10));
    NSDispatchEvents();
    EXPECT_TRUE(selected(0, 0));
    NSPostClick(one, NSMakePoint(99, 10), 1, NSShiftKeyMask);
    NSDispatchEvents();
    EXPECT_TRUE(selected(0, 7));
    NSPostClick(one, NSMakePoint(8, 10), 2);
    NSDispatchEvents();
    EXPECT_TRUE(selected(0, 4));
    NSPostClick(one, NSMakePoint(8, 10), 3);
    NSDispatchEvents();
    EXPECT_TRUE(selected(0, 7));
    NSPostDrag(one, NSMakePoint(99, 10), NSMakePoint(-50, 10));
    NSDispatchEvents();
    EXPECT_TRUE(selected(0, 7));
}

TEST_F(TextTest, AClickOnAnotherFieldEndsTheEditingOneOnAButtonDoesNot) {
    NSButton* b = button(NSMakeRect(200, 10, 80, 20), NSMomentaryPushInButton, 3);
    [b setTitle:@"b"];
    click(one);
    type(@"1");
    click(b);
    EXPECT_THAT(take_log(), ElementsAre("3=b"));
    EXPECT_NE([one currentEditor], nil);
    EXPECT_EQ(text([one stringValue]), "one1"); // read while it is edited
    click(two);
    EXPECT_THAT(take_log(), ElementsAre("1=one1"));
    EXPECT_NE([two currentEditor], nil);
}

TEST_F(TextTest, ProgramsMayChangeAFieldThatIsEdited) {
    [window makeFirstResponder:one];
    type(@"x");
    [one setStringValue:@"new"];
    EXPECT_EQ(text([one stringValue]), "new");
    EXPECT_NE([one currentEditor], nil);
    type(@"y");
    [one setEnabled:NO];
    EXPECT_EQ([one currentEditor], nil);
    EXPECT_EQ(text([one stringValue]), "new");
    [one setEnabled:YES];
    [window makeFirstResponder:one];
    type(@"kept");
    [one removeFromSuperview];
    EXPECT_EQ(text([one stringValue]), "kept");
    EXPECT_EQ([window firstResponder], window);
    EXPECT_THAT(take_log(), IsEmpty());
}

TEST_F(TextTest, LabelsTakeNoFocus) {
    [one setEditable:NO];
    EXPECT_TRUE(NSTextFieldIsLabel(one));
    EXPECT_FALSE(NSTextFieldIsLabel(two));
    click(one);
    EXPECT_EQ([window firstResponder], window);
    key('\t');
    EXPECT_NE([two currentEditor], nil);
}
