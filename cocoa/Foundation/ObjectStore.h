// Where objects come from and go to: each has a word for its references in front of it, and is
// counted by class while it lives.
#pragma once

#include <Foundation/NSObjCRuntime.h>

namespace object_store {

// A zeroed object with one reference; nil when memory is out.
id make(Class of_class, size_t extra_bytes);
// Frees it, or makes it a zombie in the builds that watch freed objects.
void dispose(id object);

void add_reference(id object);
// False when the last one was given up; the object then has to be deallocated.
bool drop_reference(id object);
NSUInteger reference_count(id object);

// Reports and aborts when the object is a zombie.
void refuse_zombie(id object, SEL selector);

} // namespace object_store
