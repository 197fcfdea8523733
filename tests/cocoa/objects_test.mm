#include "Pool.h"

#include <Foundation/Foundation.h>

@protocol Talking
- (id)say:(id)what;
@end

// Counts what happens to it.
@interface Probe : NSObject <Talking> {
  @public
    int* _deaths;
    NSMutableArray* _log;
}
+ (Probe*)probeWithDeaths:(int*)deaths;
@end

@interface QuietProbe : Probe
- (double)real;
- (NSRect)rect;
- (NSRange)range;
@end

@implementation Probe
+ (Probe*)probeWithDeaths:(int*)deaths {
    Probe* probe = [[[self alloc] init] autorelease];
    probe->_deaths = deaths;
    return probe;
}
- (void)dealloc {
    if (_deaths) ++*_deaths;
    [super dealloc];
}
- (id)say:(id)what {
    return what;
}
- (void)heard:(NSNotification*)notification {
    [_log addObject:[notification name]];
}
- (void)leave:(NSNotification*)notification {
    [_log addObject:@"leaves"];
    [[NSNotificationCenter defaultCenter] removeObserver:[notification object]];
}
@end

@implementation QuietProbe
- (double)real {
    return 1;
}
- (NSRect)rect {
    return NSMakeRect(1, 2, 3, 4);
}
- (NSRange)range {
    return NSMakeRange(1, 2);
}
@end

namespace {

class Objects : public PoolTest {
  protected:
    // The default centre stays for good.
    static void SetUpTestSuite() { [NSNotificationCenter defaultCenter]; }
};

TEST_F(Objects, LiveByTheirReferences) {
    int deaths = 0;
    Probe* probe = [[Probe alloc] init];
    probe->_deaths = &deaths;
    EXPECT_EQ(NSLiveObjectCount([Probe class]), 1u);
    EXPECT_EQ([[probe retain] retainCount], 2u);
    [probe release];
    EXPECT_EQ(deaths, 0);
    [probe release];
    EXPECT_EQ(deaths, 1);
    EXPECT_EQ(NSLiveObjectCount([Probe class]), 0u);
}

TEST_F(Objects, TellTheirClass) {
    Probe* probe = [QuietProbe probeWithDeaths:nullptr];
    EXPECT_TRUE([probe isKindOfClass:[Probe class]]);
    EXPECT_TRUE([probe isKindOfClass:[NSObject class]]);
    EXPECT_FALSE([probe isKindOfClass:[NSString class]]);
    EXPECT_FALSE([probe isMemberOfClass:[Probe class]]);
    EXPECT_EQ([probe class], [QuietProbe class]);
    EXPECT_EQ([probe superclass], [Probe class]);
    EXPECT_TRUE([probe conformsToProtocol:@protocol(Talking)]);
    EXPECT_TRUE([probe conformsToProtocol:@protocol(NSObject)]);
    EXPECT_FALSE([probe conformsToProtocol:@protocol(NSCopying)]);
    EXPECT_TRUE([probe respondsToSelector:@selector(say:)]);
    EXPECT_FALSE([probe respondsToSelector:@selector(nextObject)]);
    EXPECT_TRUE([QuietProbe instancesRespondToSelector:@selector(real)]);
    EXPECT_EQ([probe performSelector:@selector(say:) withObject:@"hi"], @"hi");
    EXPECT_EQ(NSClassFromString(@"QuietProbe"), [QuietProbe class]);
    EXPECT_STREQ([NSStringFromSelector(@selector(say:)) UTF8String], "say:");
}

TEST_F(Objects, NilAnswersZeroOfEveryKind) {
    QuietProbe* none = nil;
    volatile double noise = 42.5; // leaves something in the floating-point registers
    EXPECT_EQ(noise * 2, 85);
    EXPECT_EQ([none real], 0.0);
    EXPECT_TRUE(NSEqualRects([none rect], NSZeroRect));
    EXPECT_TRUE(NSEqualRanges([none range], NSMakeRange(0, 0)));
    EXPECT_EQ([none say:@"x"], nil);
}

TEST_F(Objects, PoolsReleaseInTheirOrderAndNest) {
    int deaths = 0;
    NSAutoreleasePool* outer = [[NSAutoreleasePool alloc] init];
    [Probe probeWithDeaths:&deaths];
    NSAutoreleasePool* inner = [[NSAutoreleasePool alloc] init];
    [Probe probeWithDeaths:&deaths];
    [outer addObject:[[Probe probeWithDeaths:&deaths] retain]];
    [inner release];
    EXPECT_EQ(deaths, 1); // the third is still held by the outer pool
    [[NSAutoreleasePool alloc] init];
    [Probe probeWithDeaths:&deaths];
    [outer drain]; // and with it the pool inside
    EXPECT_EQ(deaths, 4);
}

TEST(ObjectsWithoutPool, AreReportedAndStay) {
    Probe* probe = [[Probe alloc] init];
    testing::internal::CaptureStderr();
    [probe autorelease];
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_NE(said.find("class Probe autoreleased with no pool"), std::string::npos) << said;
    EXPECT_EQ([probe retainCount], 1u);
    [probe release];
}

TEST_F(Objects, UnknownMessagesRaise) {
    NSString* reason = nil;
    try {
        [(NSMutableArray*)[Probe probeWithDeaths:nullptr] removeLastObject];
    } catch (const NSRaisedException& exception) {
        reason = [[[exception.object() reason] retain] autorelease];
        EXPECT_EQ([exception.object() name], NSInvalidArgumentException);
    }
    EXPECT_TRUE([reason hasPrefix:@"-[Probe removeLastObject]: unrecognized selector"]);
}

TEST(FreedObjectsDeathTest, AreNamedWhenTheyAreSentAMessage) {
    if (!NSFreedObjectsAreWatched()) GTEST_SKIP() << "only in Debug and sanitizer builds";
    const auto release_twice = [] {
        Probe* probe = [[Probe alloc] init];
        [probe release];
        [probe release];
    };
    EXPECT_DEATH(release_twice(), "-\\[Probe release\\]: message sent to deallocated instance 0x");
}

TEST_F(Objects, NotificationsReachThoseWhoAskedForThem) {
    NSNotificationCenter* center = [NSNotificationCenter defaultCenter];
    Probe* all = [Probe probeWithDeaths:nullptr];
    Probe* some = [Probe probeWithDeaths:nullptr];
    Probe* leaver = [Probe probeWithDeaths:nullptr];
    all->_log = [NSMutableArray array];
    some->_log = [NSMutableArray array];
    leaver->_log = [NSMutableArray array];
    [center addObserver:leaver selector:@selector(leave:) name:@"c" object:nil];
    [center addObserver:all selector:@selector(heard:) name:nil object:nil];
    [center addObserver:some selector:@selector(heard:) name:@"a" object:leaver];
    [center addObserver:some selector:@selector(heard:) name:@"c" object:nil];

    [center postNotificationName:@"a" object:leaver];
    [center postNotificationName:@"a" object:all];
    [center postNotificationName:@"b" object:leaver];
    [center postNotificationName:@"c" object:some]; // leaver takes `some` out of this very posting
    [center postNotificationName:@"a" object:leaver];
    EXPECT_STREQ([[all->_log componentsJoinedByString:@""] UTF8String], "aabca");
    EXPECT_STREQ([[some->_log componentsJoinedByString:@""] UTF8String], "a");
    [center removeObserver:leaver];
    [center removeObserver:all];
    [center postNotificationName:@"c" object:nil];
    EXPECT_EQ([all->_log count], 5u);
    EXPECT_EQ([leaver->_log count], 1u);
}

} // namespace
