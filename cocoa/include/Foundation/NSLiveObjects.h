// How many objects live, by class: for tests that check that nothing is leaked. This header is an
// addition of this library; the platform has none of that name.
//
// Counts are always kept. String literals and class objects are not counted; Core Graphics'
// contexts, images, colour spaces and gradients are.
// In Debug and sanitizer builds freed objects are zombies for a while: a message to one (a release
// too many, say) reports class, address and selector on standard error and aborts.
#pragma once

#include <Foundation/NSObjCRuntime.h>

// Calls back for each class that has live objects, in the order of the classes' names.
typedef void (*NSLiveObjectVisitor)(Class aClass, NSUInteger count, void* context);
FOUNDATION_EXPORT void NSVisitLiveObjects(NSLiveObjectVisitor visitor, void* context);
