// Fonts: which there are, and how large their texts are.
#include "Pool.h"

#include <AppKit/AppKit.h>
#include <cmath>

namespace {

class Fonts : public PoolTest {
  protected:
    static NSSize size(NSString* text, NSFont* font) {
        return [text
            sizeWithAttributes:[NSDictionary
                                   dictionaryWithObjectsAndKeys:font, NSFontAttributeName, nil]];
    }
};

TEST_F(Fonts, SystemFontsComeInTheSizesOfControls) {
    EXPECT_EQ([NSFont systemFontSizeForControlSize:0], 13);
    EXPECT_EQ([NSFont systemFontSizeForControlSize:1], 11);
    EXPECT_EQ([NSFont systemFontSizeForControlSize:2], 9);
    EXPECT_EQ([[NSFont systemFontOfSize:9] pointSize], 9);
    EXPECT_EQ([[NSFont systemFontOfSize:0] pointSize], [NSFont systemFontSize]);
}

TEST_F(Fonts, AreFoundByNameOrNotAtAll) {
    NSFont* courier = [NSFont fontWithName:@"Courier" size:9];
    ASSERT_NE(courier, nil);
    EXPECT_EQ([courier pointSize], 9);
    EXPECT_DOUBLE_EQ(size(@"iiii", courier).width, size(@"WWWW", courier).width);
    EXPECT_EQ([[NSFont fontWithName:@"Courier" size:0] pointSize], 12);
    NSFont* bold = [NSFont fontWithName:@"Inter-Bold" size:12];
    EXPECT_GT(size(@"mmmm", bold).width, size(@"mmmm", [NSFont systemFontOfSize:12]).width);
    EXPECT_EQ([NSFont fontWithName:@"No Such Typeface" size:12], nil);
    EXPECT_EQ([NSFont fontWithName:@"Inter-NoSuchStyle" size:12], nil);
    EXPECT_EQ([NSFont fontWithName:@"" size:12], nil);
    EXPECT_EQ([NSFont fontWithName:nil size:12], nil);
}

TEST_F(Fonts, MeasureTextsInProportion) {
    NSFont* small = [NSFont systemFontOfSize:10];
    NSFont* large = [NSFont systemFontOfSize:40];
    const NSSize one = size(@"Cylinder", small), four = size(@"Cylinder", large);
    EXPECT_NEAR(four.width, 4 * one.width, 0.1) << "nothing is hinted";
    // Heights are the lines' own, rounded up to whole points.
    EXPECT_EQ(one.height, std::ceil(one.height));
    EXPECT_NEAR(four.height, 4 * one.height, 4);
    EXPECT_NEAR(size(@"Cylinder\nCylinder", small).height, 2 * one.height, 1);
    EXPECT_NEAR(size(@"Cylinder\nCyl", small).width, one.width, 0.1);
    EXPECT_GT(size(@"Cylinders", small).width, one.width);
    EXPECT_EQ(size(@"", small).width, 0);
}

TEST_F(Fonts, MeasureWhateverTextThereIs) {
    NSFont* font = [NSFont systemFontOfSize:9];
    EXPECT_GT(size([NSString stringWithFormat:@"%500000d", 1], font).width, 100000);
    EXPECT_GT(size(@"\xff\xfe broken", font).width, 10);
    EXPECT_GT(size(@"\xf0\x9f\x98\x80 \xd7\xa9\xd7\x9c", font).width,
              5); // beyond the plane, leftwards
}

} // namespace
