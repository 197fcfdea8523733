// The autorelease pool of one call into the plug-in or the toolkit of views, for C++ sources.

#pragma once

namespace minihost {

class AutoreleasePool {
  public:
    AutoreleasePool();
    ~AutoreleasePool();
    AutoreleasePool(const AutoreleasePool&) = delete;
    AutoreleasePool& operator=(const AutoreleasePool&) = delete;

  private:
    void* _pool;
};

} // namespace minihost
