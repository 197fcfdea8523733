// An autorelease pool for the length of a test, with a check that no object is leaked, and the
// names of raised exceptions.
#pragma once

#include <Foundation/NSAutoreleasePool.h>
#include <Foundation/NSLiveObjects.h>
#include <Foundation/NSString.h>

#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <stdexcept>
#include <string>

// By class.
inline std::map<std::string, NSUInteger> live_objects() {
    std::map<std::string, NSUInteger> counts;
    NSVisitLiveObjects(
        [](Class visited, NSUInteger count, void* context) {
            (*static_cast<std::map<std::string, NSUInteger>*>(context))[class_getName(visited)] =
                count;
        },
        &counts);
    return counts;
}

class PoolTest : public testing::Test {
  protected:
    PoolTest() : _before(live_objects()), _pool([[NSAutoreleasePool alloc] init]) {}
    ~PoolTest() override {
        [_pool drain];
        EXPECT_EQ(live_objects(), _before);
    }

  private:
    std::map<std::string, NSUInteger> _before;
    NSAutoreleasePool* _pool;
};

// The name of the exception that the action raises, or "none".
inline std::string raised(const std::function<void()>& action) {
    try {
        action();
    } catch (const std::runtime_error& exception) {
        const std::string text = exception.what();
        return text.substr(0, text.find(':'));
    }
    return "none";
}
