#include <AppKit/NSGraphicsContext.h>

#include <vector>

namespace {

struct SavedState {
    BOOL antialias = YES;
    NSCompositingOperation operation = NSCompositeSourceOver;
};

CGBlendMode blend_mode(NSCompositingOperation operation) {
    switch (operation) {
    case NSCompositeClear:
        return kCGBlendModeClear;
    case NSCompositeCopy:
        return kCGBlendModeCopy;
    default:
        return kCGBlendModeNormal;
    }
}

thread_local NSGraphicsContext* current = nil;
// Those that +saveGraphicsState remembers; each is retained, and may be nil.
thread_local std::vector<NSGraphicsContext*> remembered;

} // namespace

struct NSSavedStates {
    std::vector<SavedState> all = {SavedState()};
};

@implementation NSGraphicsContext

+ (NSGraphicsContext*)graphicsContextWithGraphicsPort:(void*)port flipped:(BOOL)flipped {
    NSGraphicsContext* made = [[self alloc] init];
    made->_port = CGContextRetain(static_cast<CGContextRef>(port));
    made->_flipped = flipped;
    made->_states = new NSSavedStates;
    return [made autorelease];
}

- (void)dealloc {
    CGContextRelease(_port);
    delete _states;
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
    [current saveGraphicsState];
    remembered.push_back([current retain]);
}

+ (void)restoreGraphicsState {
    if (remembered.empty()) return;
    NSGraphicsContext* last = remembered.back();
    remembered.pop_back();
    [self setCurrentContext:last];
    [last restoreGraphicsState];
    [last release];
}

- (void)saveGraphicsState {
    CGContextSaveGState(_port);
    _states->all.push_back(_states->all.back());
}

- (void)restoreGraphicsState {
    if (_states->all.size() == 1) return;
    _states->all.pop_back();
    CGContextRestoreGState(_port);
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

- (BOOL)shouldAntialias {
    return _states->all.back().antialias;
}

- (void)setShouldAntialias:(BOOL)antialias {
    _states->all.back().antialias = antialias;
    CGContextSetShouldAntialias(_port, antialias);
}

- (NSCompositingOperation)compositingOperation {
    return _states->all.back().operation;
}

- (void)setCompositingOperation:(NSCompositingOperation)operation {
    _states->all.back().operation = operation;
    CGContextSetBlendMode(_port, blend_mode(operation));
}

@end
