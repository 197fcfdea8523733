#include <AppKit/NSGraphicsContext.h>

#include <vector>

namespace {

thread_local NSGraphicsContext* current = nil;
// By +saveGraphicsState; each is retained, and may be nil.
thread_local std::vector<NSGraphicsContext*> saved_contexts;

} // namespace

@implementation NSGraphicsContext

+ (NSGraphicsContext*)graphicsContextWithGraphicsPort:(void*)port flipped:(BOOL)flipped {
    NSGraphicsContext* made = [[self alloc] init];
    made->_port = CGContextRetain(static_cast<CGContextRef>(port));
    made->_flipped = flipped;
    return [made autorelease];
}

- (void)dealloc {
    CGContextRelease(_port);
    [super dealloc];
}

+ (NSGraphicsContext*)currentContext {
    return current;
}

+ (void)setCurrentContext:(NSGraphicsContext*)context {
    [context retain];
    [current release];
    current = context;
}

+ (void)saveGraphicsState {
    CGContextSaveGState([current CGContext]);
    saved_contexts.push_back([current retain]);
}

+ (void)restoreGraphicsState {
    if (saved_contexts.empty()) return;
    NSGraphicsContext* last = saved_contexts.back();
    saved_contexts.pop_back();
    [self setCurrentContext:last];
    CGContextRestoreGState([last CGContext]);
    [last release];
}

- (BOOL)isFlipped {
    return _flipped;
}

- (void*)graphicsPort {
    return _port;
}

- (CGContextRef)CGContext {
    return _port;
}

- (void)setShouldAntialias:(BOOL)antialias {
    CGContextSetShouldAntialias(_port, antialias);
}

@end
