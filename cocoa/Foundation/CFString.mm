#include "StringText.h"

#include <CoreFoundation/CoreFoundation.h>

#include <cstdlib>
#include <cstring>
#include <map>
#include <mutex>
#include <string>

const CFAllocatorRef kCFAllocatorDefault = nullptr;

namespace {

id object_of(CFTypeRef reference) {
    return (id)(void*)reference;
}

std::optional<encodings::Encoding> encoding_of_cf(CFStringEncoding encoding) {
    switch (encoding) {
    case kCFStringEncodingMacRoman:
        return encodings::Encoding::mac_roman;
    case kCFStringEncodingISOLatin1:
        return encodings::Encoding::iso_latin1;
    case kCFStringEncodingASCII:
        return encodings::Encoding::ascii;
    case kCFStringEncodingUTF8:
        return encodings::Encoding::utf8;
    default:
        return std::nullopt;
    }
}

} // namespace

CFTypeRef CFRetain(CFTypeRef object) {
    if (!object) abort();
    return [object_of(object) retain];
}

void CFRelease(CFTypeRef object) {
    if (!object) abort();
    [object_of(object) release];
}

CFIndex CFGetRetainCount(CFTypeRef object) {
    return [object_of(object) retainCount];
}

Boolean CFEqual(CFTypeRef a, CFTypeRef b) {
    return [object_of(a) isEqual:object_of(b)];
}

CFStringRef CFStringCreateWithCString(CFAllocatorRef, const char* bytes,
                                      CFStringEncoding encoding) {
    const auto known = encoding_of_cf(encoding);
    if (!bytes || !known) return nullptr;
    auto text = encodings::decode(bytes, *known);
    return text ? (CFStringRef)[[NSString alloc] initWithText:&*text] : nullptr;
}

CFIndex CFStringGetLength(CFStringRef string) {
    return [(NSString*)string length];
}

Boolean CFStringGetCString(CFStringRef string, char* buffer, CFIndex size,
                           CFStringEncoding encoding) {
    if (!buffer || size <= 0) return false;
    buffer[0] = 0;
    const auto known = encoding_of_cf(encoding);
    if (!string || !known) return false;
    const auto bytes = encodings::encode(text_of((NSString*)string), *known);
    if (!bytes || bytes->size() >= static_cast<size_t>(size)) return false;
    memcpy(buffer, bytes->c_str(), bytes->size() + 1);
    return true;
}

CFStringRef __CFStringMakeConstantString(const char* text) {
    static std::mutex lock;
    static auto* made = new std::map<std::string, CFStringRef>;
    std::lock_guard guard(lock);
    CFStringRef& constant = (*made)[text];
    if (!constant) constant = CFStringCreateWithCString(nullptr, text, kCFStringEncodingASCII);
    return constant;
}
