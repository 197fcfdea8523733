// The memory of objects: each has a word for its references in front of it, and is counted by class
// while it lives.
#pragma once

#include <Foundation/NSObjCRuntime.h>

namespace object_memory {

// A zeroed object with one reference; nil when memory is out.
id allocate(Class of_class);
// Frees it, or makes it a zombie in the builds that have zombies.
void deallocate(id object);

void add_reference(id object);
// False when it was the last one: the object then has to be deallocated.
bool drop_reference(id object);

// Reports the message and aborts if the object is a zombie.
void check_zombie(id object, SEL selector);

} // namespace object_memory
