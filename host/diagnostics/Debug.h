// For whoever debugs the plug-in: message boxes, a trace buffer, the text of a stream.
//
// Main thread only. A formatted text is cut to 2047 characters.

#pragma once

#include <ostream>

namespace debug {

// Low bits of a message box's type: its buttons. 6 and above stand for MB_OK; higher bits have no
// effect.
enum : unsigned int {
    MB_OK = 0,
    MB_OKCANCEL = 1,
    MB_ABORTRETRYIGNORE = 2,
    MB_YESNO = 3,
    MB_YESNOCANCEL = 4,
    MB_RETRYCANCEL = 5
};

// Shows an alert and waits: 1, 2 or 3 for the first, second or third button. -1 if caption or text
// is null (nothing is shown) or if the alert fails. The text is shown as it reads.
int MessageBox(const char* caption, const char* text, unsigned int type);
// The same with a text made by the rules of printf.
int MessageBox(unsigned int type, const char* caption, const char* format, ...)
    __attribute__((format(printf, 3, 4)));
int InfoMessageBox(const char* caption, const char* text);
int ErrorMessageBox(const char* caption, const char* text);
bool QuestionMessageBox(const char* caption, const char* text); // true for "Yes"
// Shows the text, then throws the int -1.
[[noreturn]] void ThrowError(const char* text);

// Formats into a buffer that a debugger can look at; prints nothing. The length of the whole text,
// or a negative number if the format is no good.
int Trace(const char* format, ...) __attribute__((format(printf, 1, 2)));

// The text of a string stream, at most 1023 characters of it, without its first character if that
// is '0'; the stream can be written afresh then. Good until the next call. The last two arguments
// are not used.
const char* MakeErrorString(std::basic_ostream<char, std::char_traits<char>>& stream, int,
                            const char*);

} // namespace debug
