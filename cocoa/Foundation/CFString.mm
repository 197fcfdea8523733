#include "NSStringStorage.h"
#include "TextEncoding.h"

#include <CoreFoundation/CoreFoundation.h>

#include <cstdlib>
#include <cstring>

void CFRelease(CFTypeRef object) {
    if (!object) abort();
    [(id)(void*)object release];
}

CFStringRef CFStringCreateWithCString(CFAllocatorRef, const char* bytes,
                                      CFStringEncoding encoding) {
    if (!bytes || encoding != kCFStringEncodingMacRoman) return nullptr;
    std::string text = text_encoding::from_mac_roman(bytes);
    return (CFStringRef)[[NSString alloc] initWithUTF8:&text];
}

Boolean CFStringGetCString(CFStringRef string, char* buffer, CFIndex size,
                           CFStringEncoding encoding) {
    if (!buffer || size <= 0) return false;
    buffer[0] = 0;
    if (!string || encoding != kCFStringEncodingMacRoman) return false;
    const auto bytes = text_encoding::to_mac_roman(utf8_of((NSString*)string));
    if (!bytes || bytes->size() >= static_cast<size_t>(size)) return false;
    memcpy(buffer, bytes->c_str(), bytes->size() + 1);
    return true;
}
