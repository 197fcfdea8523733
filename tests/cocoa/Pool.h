// A pool for the length of a test, what is left alive once it is drained, and what is raised.
#pragma once

#include <Foundation/NSAutoreleasePool.h>
#include <Foundation/NSLiveObjects.h>
#include <Foundation/NSRaisedException.h>
#include <Foundation/NSString.h>

#include <functional>
#include <gtest/gtest.h>
#include <string>

class PoolTest : public testing::Test {
  protected:
    PoolTest() : _before(NSLiveObjectTotal()), _pool([[NSAutoreleasePool alloc] init]) {}
    ~PoolTest() override {
        [_pool drain];
        EXPECT_EQ(NSLiveObjectTotal(), _before) << "objects are left behind";
    }

  private:
    NSUInteger _before;
    NSAutoreleasePool* _pool;
};

// The name of the exception that the action raises, or "none".
inline std::string raised(const std::function<void()>& action) {
    try {
        action();
    } catch (const NSRaisedException& exception) {
        return [[exception.object() name] UTF8String];
    }
    return "none";
}
