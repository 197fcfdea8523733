// Alert panels: a modal window with a title, a message and up to three buttons.
#include <AppKit/NSPanel.h>

#include "AlertRecord.h"
#include "Theme.h"
#include "WindowServer.h"

#include <algorithm>
#include <AppKit/AppKit.h>
#include <cmath>
#include <cstdarg>
#include <utility>

using namespace cocoa;

@interface NSAlertTarget : NSObject
- (void)press:(id)sender;
@end

@implementation NSAlertTarget
- (void)press:(id)sender {
    [NSApp stopModalWithCode:[(NSControl*)sender tag]];
}
@end

namespace cocoa {

AlertRecord& alert_record() {
    static AlertRecord* record = new AlertRecord();
    return *record;
}

namespace {

constexpr NSInteger answers[3] = {NSAlertDefaultReturn, NSAlertAlternateReturn, NSAlertOtherReturn};

struct Alert {
    NSString* title;
    NSString* message;
    std::vector<NSString*> buttons; // default, alternate, other
    std::vector<NSInteger> codes;
};

NSTextField* make_label(NSString* text, NSRect frame, NSFont* font) {
    NSTextField* label = [[[NSTextField alloc] initWithFrame:frame] autorelease];
    [label setFont:font];
    [label setEditable:NO];
    [label setBezeled:NO];
    [label setDrawsBackground:NO];
    [label setTextColor:theme::text()];
    [[label cell] setWraps:YES];
    [label setStringValue:text];
    return label;
}

// The height of a wrapped text, line by line as it is drawn.
double wrapped_height(NSString* text, NSFont* font, double width) {
    const double line = theme::measure(@"X", font).height;
    NSArray* paragraphs = [text componentsSeparatedByString:@"\n"];
    double lines = 0;
    for (NSUInteger i = 0; i < [paragraphs count]; ++i) {
        NSArray* words = [[paragraphs objectAtIndex:i] componentsSeparatedByString:@" "];
        double x = 0;
        ++lines;
        for (NSUInteger j = 0; j < [words count]; ++j) {
            NSString* word = [[words objectAtIndex:j] stringByAppendingString:@" "];
            const double w = theme::measure(word, font).width;
            if (x > 0 && x + w > width) {
                ++lines;
                x = 0;
            }
            // A word that is wider than the line is broken.
            lines += std::max(0.0, std::ceil(w / width) - 1);
            x += w;
        }
    }
    return std::min(lines * std::ceil(line), 400.0) + 2;
}

// Escape presses the button "Cancel" or else the last one.
size_t cancel_button(const Alert& alert) {
    for (size_t i = 1; i < alert.buttons.size(); ++i)
        if ([alert.buttons[i] isEqualToString:@"Cancel"]) return i;
    return alert.buttons.size() - 1;
}

void add_buttons(NSView* content, const Alert& alert, id target) {
    double right = NSWidth([content bounds]) - 16;
    for (size_t i = 0; i < alert.buttons.size(); ++i) {
        const double text = theme::measure(alert.buttons[i], theme::font()).width;
        const double width = std::max(76.0, std::ceil(text) + 28);
        NSButton* button =
            [[[NSButton alloc] initWithFrame:NSMakeRect(right - width, 14, width, 24)] autorelease];
        [button setTitle:alert.buttons[i]];
        [button setFont:theme::font()];
        [button setTarget:target];
        [button setAction:@selector(press:)];
        [button setTag:alert.codes[i]];
        if (i == 0) [button setKeyEquivalent:@"\r"];
        if (i > 0 && i == cancel_button(alert)) [button setKeyEquivalent:@"\033"];
        [content addSubview:button];
        right -= width + 10;
    }
}

double buttons_width(const Alert& alert) {
    double width = 32;
    for (NSString* title : alert.buttons)
        width += std::max(76.0, std::ceil(theme::measure(title, theme::font()).width) + 28) + 10;
    return width;
}

NSInteger run_panel(const Alert& alert) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    const double width = std::max(380.0, buttons_width(alert)), inner = width - 40;
    const double title_height = wrapped_height(alert.title, theme::bold_font(), inner - 4);
    const double text_height = wrapped_height(alert.message, theme::font(), inner - 4);
    const double height = 54 + text_height + 8 + title_height + 18;
    NSWindow* window = [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, width, height)
                                                   styleMask:NSTitledWindowMask
                                                     backing:NSBackingStoreBuffered
                                                       defer:YES];
    [window setReleasedWhenClosed:NO];
    NSView* content = [window contentView];
    [content
        addSubview:make_label(alert.title, NSMakeRect(20, 62 + text_height, inner, title_height),
                              theme::bold_font())];
    [content addSubview:make_label(alert.message, NSMakeRect(20, 54, inner, text_height),
                                   theme::font())];
    NSAlertTarget* target = [[NSAlertTarget alloc] init];
    add_buttons(content, alert, target);
    [window center];
    NSWindow* key = [[NSApp keyWindow] retain];
    const NSInteger code = [NSApp runModalForWindow:window];
    [window orderOut:nil];
    if ([key isVisible]) [key makeKeyWindow];
    [key release];
    [window release];
    [target release];
    [pool drain];
    if (code == NSRunAbortedResponse) return NSAlertErrorReturn;
    return code;
}

} // namespace
} // namespace cocoa

NSInteger NSRunAlertPanel(NSString* title, NSString* format, NSString* defaultButton,
                          NSString* alternateButton, NSString* otherButton, ...) {
    [NSApplication sharedApplication];
    va_list arguments;
    va_start(arguments, otherButton);
    NSString* message = [[[NSString alloc] initWithFormat:format ? format : @""
                                                arguments:arguments] autorelease];
    va_end(arguments);
    cocoa::Alert alert = {title ? title : @"", message, {}, {}};
    NSString* const given[3] = {defaultButton ? defaultButton : @"OK", alternateButton,
                                otherButton};
    for (int i = 0; i < 3; ++i) {
        if (!given[i]) continue;
        alert.buttons.push_back(given[i]);
        alert.codes.push_back(answers[i]);
    }
    AlertRecord& record = alert_record();
    if (!std::exchange(record.skip_next, false)) {
        record.shown.push_back({[alert.title UTF8String], [alert.message UTF8String], {}});
        for (NSString* button : alert.buttons)
            record.shown.back().buttons.push_back([button UTF8String]);
    }
    const size_t answer = record.next_answer;
    record.next_answer = 1;
    if (WindowServer::shared().display().has_user()) return run_panel(alert);
    return alert.codes[answer >= 1 && answer <= alert.codes.size() ? answer - 1 : 0];
}
