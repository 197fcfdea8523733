// The autorelease pool of one C++ scope.

#pragma once

#include <Cocoa/Cocoa.h>

namespace minihost {

class AutoreleasePool {
  public:
    AutoreleasePool() : _pool([[NSAutoreleasePool alloc] init]) {}
    ~AutoreleasePool() { [_pool drain]; }
    AutoreleasePool(const AutoreleasePool&) = delete;
    AutoreleasePool& operator=(const AutoreleasePool&) = delete;

  private:
    NSAutoreleasePool* _pool;
};

} // namespace minihost
