#include "host/diagnostics/Debug.h"

#include <Cocoa/Cocoa.h>

#include <cstdarg>
#include <cstdio>
#include <iterator>

namespace {

struct ButtonSet {
    NSString* buttons[3];
};

const ButtonSet kButtonSets[] = {
    {{@"OK", nil, nil}},    {{@"OK", @"Cancel", nil}},    {{@"Abort", @"Retry", @"Ignore"}},
    {{@"Yes", @"No", nil}}, {{@"Yes", @"No", @"Cancel"}}, {{@"Retry", @"Cancel", nil}}};

const ButtonSet& buttons_of(unsigned int type) {
    const unsigned int set = type & 0xf;
    return kButtonSets[set < std::size(kButtonSets) ? set : 0];
}

// Types of message boxes. Their bits above the button set have no effect.
constexpr unsigned int kInformation = 16 | debug::MB_OK;
constexpr unsigned int kError = 64 | debug::MB_OK;
constexpr unsigned int kQuestion = 32 | debug::MB_YESNO;

char message_buffer[2048];

} // namespace

namespace debug {

int MessageBox(const char* caption, const char* text, unsigned int type) {
    if (!caption || !text) return -1;
    const ButtonSet& set = buttons_of(type);
    NSString* title = [[NSString alloc] initWithCString:caption];
    NSString* message = [[NSString alloc] initWithCString:text];
    const long pressed =
        NSRunAlertPanel(title, @"%@", set.buttons[0], set.buttons[1], set.buttons[2], message);
    [message release];
    [title release];
    switch (pressed) {
    case NSAlertDefaultReturn:
        return 1;
    case NSAlertAlternateReturn:
        return 2;
    case NSAlertOtherReturn:
        return 3;
    default:
        return -1;
    }
}

int MessageBox(unsigned int type, const char* caption, const char* format, ...) {
    if (!format) return -1;
    std::va_list values;
    va_start(values, format);
    std::vsnprintf(message_buffer, sizeof message_buffer, format, values);
    va_end(values);
    return MessageBox(caption, message_buffer, type);
}

int InfoMessageBox(const char* caption, const char* text) {
    return MessageBox(caption, text, kInformation);
}

int ErrorMessageBox(const char* caption, const char* text) {
    return MessageBox(caption, text, kError);
}

bool QuestionMessageBox(const char* caption, const char* text) {
    return MessageBox(caption, text, kQuestion) == 1;
}

void ThrowError(const char* text) {
    MessageBox("Attention", text, kError);
    throw -1;
}

} // namespace debug
