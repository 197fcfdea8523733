// A C string as a Cocoa string for the length of a scope.

#pragma once

#include <Cocoa/Cocoa.h>

namespace adm {

class CocoaText {
  public:
    // `text`, which may be null, in the Mac Roman encoding.
    explicit CocoaText(const char* text)
        : _string(text ? CFStringCreateWithCString(nullptr, text, kCFStringEncodingMacRoman)
                       : nullptr) {}
    ~CocoaText() {
        if (_string) CFRelease(_string);
    }
    CocoaText(const CocoaText&) = delete;
    CocoaText& operator=(const CocoaText&) = delete;

    // nil if the text was null.
    NSString* string() const { return (NSString*)_string; }

  private:
    CFStringRef _string;
};

} // namespace adm
