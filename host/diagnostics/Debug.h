// Diagnostics for debugging the plug-in: message boxes, a trace buffer, the text of a stream.
//
// Main thread only. Formatted text is cut to 2047 characters.

#pragma once

#include <ostream>

namespace debug {

// The low four bits of a message box's type: its buttons. 6 and above mean MB_OK. The higher bits
// have no effect.
enum : unsigned int {
    MB_OK = 0,
    MB_OKCANCEL = 1,
    MB_ABORTRETRYIGNORE = 2,
    MB_YESNO = 3,
    MB_YESNOCANCEL = 4,
    MB_RETRYCANCEL = 5
};

// Shows an alert and waits: 1, 2 or 3 for the first, second or third button. -1 if caption or text
// is null (nothing is shown) or if the alert fails. The text is not a format.
int MessageBox(const char* caption, const char* text, unsigned int type);
// The same with a text formatted by the rules of printf.
int MessageBox(unsigned int type, const char* caption, const char* format, ...)
    __attribute__((format(printf, 3, 4)));
int InfoMessageBox(const char* caption, const char* text);
int ErrorMessageBox(const char* caption, const char* text);
bool QuestionMessageBox(const char* caption, const char* text); // true for "Yes"
// Shows the text, then throws the int -1.
[[noreturn]] void ThrowError(const char* text);

// Formats into a buffer for the debugger; prints nothing. Returns the length of the whole text, or
// a negative number if the format is invalid.
int Trace(const char* format, ...) __attribute__((format(printf, 1, 2)));

// The first 1023 characters of a string stream's text, less the first one if that is '0'. Rewinds
// the stream to be written again. Valid until the next call. The last two arguments are not used.
const char* MakeErrorString(std::basic_ostream<char, std::char_traits<char>>& stream, int,
                            const char*);

} // namespace debug
