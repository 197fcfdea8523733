#include "Pool.h"

#include <Foundation/Foundation.h>

// Counts its deallocations.
@interface Probe : NSObject {
  @public
    int* _deaths;
}
+ (Probe*)probeWithDeaths:(int*)deaths;
- (id)say:(id)what;
- (double)real;
- (NSRect)rect;
- (NSRange)range;
@end

@interface UnknownMessages
- (void)noSuchMessage;
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

@interface QuietProbe : Probe
@end
@implementation QuietProbe
@end

namespace {

class Objects : public PoolTest {};

TEST_F(Objects, LiveByTheirReferences) {
    int deaths = 0;
    Probe* probe = [[Probe alloc] init];
    probe->_deaths = &deaths;
    EXPECT_EQ(live_objects()["Probe"], 1u);
    [[probe retain] release];
    EXPECT_EQ(deaths, 0);
    [probe release];
    EXPECT_EQ(deaths, 1);
    EXPECT_EQ(live_objects().count("Probe"), 0u);
}

TEST_F(Objects, KnowTheirClassAndMethods) {
    Probe* probe = [QuietProbe probeWithDeaths:nullptr];
    EXPECT_TRUE([probe isKindOfClass:[Probe class]]);
    EXPECT_TRUE([probe isKindOfClass:[NSObject class]]);
    EXPECT_FALSE([probe isKindOfClass:[NSString class]]);
    EXPECT_EQ([probe class], [QuietProbe class]);
    EXPECT_TRUE([probe respondsToSelector:@selector(say:)]);
    EXPECT_FALSE([probe respondsToSelector:@selector(noSuchMessage)]);
    EXPECT_EQ([probe performSelector:@selector(say:) withObject:@"hi"], @"hi");
}

TEST_F(Objects, MessagesToNilReturnZeroOfEveryKind) {
    Probe* none = nil;
    volatile double noise = 42.5; // leaves something in the floating-point registers
    EXPECT_EQ(noise * 2, 85);
    EXPECT_EQ([none real], 0.0);
    EXPECT_EQ([none rect].origin.y + [none rect].size.height, 0);
    EXPECT_EQ([none range].location + [none range].length, 0u);
    EXPECT_EQ([none say:@"x"], nil);
}

TEST_F(Objects, PoolsReleaseWhenDrainedAndNest) {
    int deaths = 0;
    NSAutoreleasePool* outer = [[NSAutoreleasePool alloc] init];
    [Probe probeWithDeaths:&deaths];
    NSAutoreleasePool* inner = [[NSAutoreleasePool alloc] init];
    [Probe probeWithDeaths:&deaths];
    [inner release];
    EXPECT_EQ(deaths, 1);
    [[NSAutoreleasePool alloc] init];
    [Probe probeWithDeaths:&deaths];
    [outer drain]; // and with it the pool inside
    EXPECT_EQ(deaths, 3);
}

TEST(ObjectsWithoutPool, AreReportedAndStay) {
    int deaths = 0;
    Probe* probe = [[Probe alloc] init];
    probe->_deaths = &deaths;
    testing::internal::CaptureStderr();
    [probe autorelease];
    const std::string report = testing::internal::GetCapturedStderr();
    EXPECT_NE(report.find("class Probe autoreleased with no pool"), std::string::npos) << report;
    EXPECT_EQ(deaths, 0);
    [probe release];
}

TEST_F(Objects, UnknownMessagesRaise) {
    std::string text;
    try {
        [(id)[Probe probeWithDeaths:nullptr] noSuchMessage];
    } catch (const std::runtime_error& exception) {
        text = exception.what();
    }
    const std::string start = "NSInvalidArgumentException: -[Probe noSuchMessage]: unrecognized";
    EXPECT_EQ(text.substr(0, start.size()), start);
}

#ifndef NDEBUG
TEST(ZombiesDeathTest, ReportMessages) {
    const auto release_twice = [] {
        Probe* probe = [[Probe alloc] init];
        [probe release];
        [probe release];
    };
    EXPECT_DEATH(release_twice(), "-\\[Probe release\\]: message sent to deallocated instance 0x");
}
#endif

} // namespace
