#include "minihost/dialog/AutoreleasePool.h"

#include <Cocoa/Cocoa.h>

namespace minihost {

AutoreleasePool::AutoreleasePool() : _pool([[NSAutoreleasePool alloc] init]) {}

AutoreleasePool::~AutoreleasePool() {
    [static_cast<NSAutoreleasePool*>(_pool) drain];
}

} // namespace minihost
