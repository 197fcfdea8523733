// How many objects live, class by class: for tests that demand that nothing is left behind.
// This header is an addition of this library; the platform has none of that name.
//
// Counts are always kept. String literals are not counted, class objects neither; Core Graphics'
// contexts, images, colour spaces and gradients are objects here and are counted like the others.
// In Debug and sanitizer builds a freed object is kept for a while as a zombie: a message to it
// (one release too many, say) names class, address and selector on standard error and aborts.
#pragma once

#include <Foundation/NSObjCRuntime.h>

// Objects of exactly this class, or of any class.
FOUNDATION_EXPORT NSUInteger NSLiveObjectCount(Class aClass);
FOUNDATION_EXPORT NSUInteger NSLiveObjectTotal(void);

// Calls back for each class that has live objects, in the order of the classes' names.
typedef void (*NSLiveObjectVisitor)(Class aClass, NSUInteger count, void* context);
FOUNDATION_EXPORT void NSVisitLiveObjects(NSLiveObjectVisitor visitor, void* context);

// Whether freed objects become zombies in this build.
FOUNDATION_EXPORT BOOL NSFreedObjectsAreWatched(void);
