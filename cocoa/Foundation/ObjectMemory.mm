#include "ObjectMemory.h"

#include <Foundation/NSLiveObjects.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <mutex>
#include <unordered_map>
#include <vector>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/asan_interface.h>
#else
#define ASAN_POISON_MEMORY_REGION(address, size) ((void)(address), (void)(size))
#define ASAN_UNPOISON_MEMORY_REGION(address, size) ((void)(address), (void)(size))
#endif

// The class of zombies. It has no methods: every message ends in the forwarding hook.
__attribute__((objc_root_class))
@interface NSFreedObject {
    Class isa;
}
@end
@implementation NSFreedObject
@end

namespace {

struct alignas(16) Prefix {
    std::atomic<NSUInteger> references;
    Class freed_class; // of a zombie: what it was
};

Prefix* prefix_of(id object) {
    return reinterpret_cast<Prefix*>(object) - 1;
}

struct LiveCounts {
    std::mutex lock;
    std::unordered_map<Class, NSUInteger> by_class;
};
// Never destroyed: objects are freed until the very end of the process.
LiveCounts& live_counts() {
    static LiveCounts* counts = new LiveCounts;
    return *counts;
}

void count(Class of_class, int change) {
    LiveCounts& counts = live_counts();
    std::lock_guard guard(counts.lock);
    counts.by_class[of_class] += change;
}

#ifdef COCOA_ZOMBIES
// Older ones are really freed.
constexpr size_t most_zombies = 100000;

void make_zombie(id object, Class was, size_t size) {
    static std::mutex lock;
    static std::deque<id>* zombies = new std::deque<id>;
    prefix_of(object)->freed_class = was;
    char* body = reinterpret_cast<char*>(object) + sizeof(Class);
    // Overwritten so that the leak checker reaches nothing through it.
    memset(body, 0x55, size - sizeof(Class));
    ASAN_POISON_MEMORY_REGION(body, size - sizeof(Class));
    *reinterpret_cast<Class*>(object) = objc_lookUpClass("NSFreedObject");
    std::lock_guard guard(lock);
    zombies->push_back(object);
    if (zombies->size() <= most_zombies) return;
    free(prefix_of(zombies->front()));
    zombies->pop_front();
}
#endif

} // namespace

namespace object_memory {

id allocate(Class of_class) {
    void* memory = calloc(1, sizeof(Prefix) + class_getInstanceSize(of_class));
    if (!memory) return nil;
    Prefix* prefix = new (memory) Prefix{1, Nil};
    *reinterpret_cast<Class*>(prefix + 1) = of_class;
    count(of_class, 1);
    return reinterpret_cast<id>(prefix + 1);
}

void deallocate(id object) {
    Class of_class = object_getClass(object);
    count(of_class, -1);
#ifdef COCOA_ZOMBIES
    make_zombie(object, of_class, class_getInstanceSize(of_class));
#else
    free(prefix_of(object));
#endif
}

void add_reference(id object) {
    prefix_of(object)->references.fetch_add(1, std::memory_order_relaxed);
}

bool drop_reference(id object) {
    return prefix_of(object)->references.fetch_sub(1, std::memory_order_acq_rel) > 1;
}

void check_zombie(id object, SEL selector) {
    static Class freed = objc_lookUpClass("NSFreedObject");
    if (object_getClass(object) != freed) return;
    fprintf(stderr, "*** -[%s %s]: message sent to deallocated instance %p\n",
            class_getName(prefix_of(object)->freed_class), sel_getName(selector), (void*)object);
    abort();
}

} // namespace object_memory

void NSVisitLiveObjects(NSLiveObjectVisitor visitor, void* context) {
    std::vector<std::pair<Class, NSUInteger>> found;
    {
        LiveCounts& counts = live_counts();
        std::lock_guard guard(counts.lock);
        for (const auto& entry : counts.by_class)
            if (entry.second > 0) found.push_back(entry);
    }
    std::sort(found.begin(), found.end(), [](const auto& a, const auto& b) {
        return strcmp(class_getName(a.first), class_getName(b.first)) < 0;
    });
    for (const auto& [of_class, number] : found) visitor(of_class, number, context);
}
