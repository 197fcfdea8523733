// Bitmap contexts: how they are made, colours, images, transforms, clips, gradients.
#include "Canvas.h"
#include "Pool.h"

#include <CoreFoundation/CoreFoundation.h>

#include <climits>
#include <cmath>

namespace {

class Contexts : public PoolTest {};

CGContextRef make(void* data, size_t width, size_t height, size_t row, size_t bits = 8,
                  CGBitmapInfo info = kCGImageAlphaPremultipliedLast, bool with_space = true) {
    CGColorSpaceRef space = with_space ? CGColorSpaceCreateDeviceRGB() : nullptr;
    CGContextRef context = CGBitmapContextCreate(data, width, height, bits, row, space, info);
    CGColorSpaceRelease(space);
    return context;
}

TEST_F(Contexts, AreRefusedForWhatTheyCannotBe) {
    alignas(4) uint8_t data[64];
    const size_t minus = static_cast<size_t>(-1);
    EXPECT_EQ(make(data, 0, 4, 16), nullptr);
    EXPECT_EQ(make(data, 4, 0, 16), nullptr);
    EXPECT_EQ(make(data, minus, 4, 16), nullptr);
    EXPECT_EQ(make(nullptr, minus, 4, 0), nullptr);
    EXPECT_EQ(make(nullptr, 4, minus, 0), nullptr);
    EXPECT_EQ(make(nullptr, 32767, 32767, 0), nullptr); // more than 2^31 bytes
    EXPECT_EQ(make(nullptr, 32768, 1, 0), nullptr);
    EXPECT_EQ(make(data, 4, 4, 12), nullptr);
    EXPECT_EQ(make(data, 4, 3, 18), nullptr);
    EXPECT_EQ(make(data + 1, 3, 3, 12), nullptr);
    EXPECT_EQ(make(data, 4, 4, 16, 16), nullptr);
    EXPECT_EQ(make(data, 4, 4, 16, 8, 2), nullptr);
    EXPECT_EQ(make(data, 4, 4, 16, 8, kCGImageAlphaPremultipliedLast, false), nullptr);
    EXPECT_EQ(CGBitmapContextCreateImage(nullptr), nullptr);
    EXPECT_EQ(CGBitmapContextGetWidth(nullptr), 0u);
}

TEST_F(Contexts, KnowTheirMemory) {
    std::vector<uint8_t> data(20 * 3, 0xAA);
    CGContextRef context = make(data.data(), 3, 3, 20); // rows with 8 bytes to spare
    ASSERT_NE(context, nullptr);
    EXPECT_EQ(CGBitmapContextGetData(context), data.data());
    EXPECT_EQ(CGBitmapContextGetWidth(context), 3u);
    EXPECT_EQ(CGBitmapContextGetHeight(context), 3u);
    EXPECT_EQ(CGBitmapContextGetBytesPerRow(context), 20u);
    EXPECT_EQ(data[0], 0xAA); // nothing is touched before anything is drawn
    CGContextClearRect(context, CGRectMake(-5, -5, 50, 50));
    for (size_t i = 0; i < data.size(); ++i) EXPECT_EQ(data[i], i % 20 < 12 ? 0 : 0xAA) << i;
    EXPECT_EQ(CFGetRetainCount(CGContextRetain(context)), 2);
    CGContextRelease(context);
    CGContextRelease(context);

    context = make(nullptr, 5, 2, 0);
    ASSERT_NE(context, nullptr);
    EXPECT_EQ(CGBitmapContextGetBytesPerRow(context), 20u);
    EXPECT_EQ(static_cast<uint8_t*>(CGBitmapContextGetData(context))[39], 0);
    CGContextRelease(context);
}

TEST_F(Contexts, StorePremultipliedRGBA) {
    Canvas canvas(3, 1);
    CGContextSetRGBFillColor(canvas.context(), 1, 0.5, 0.25, 1);
    CGContextFillRect(canvas.context(), CGRectMake(0, 0, 1, 1));
    CGContextSetRGBFillColor(canvas.context(), 1, 0, 0, 0.5);
    CGContextFillRect(canvas.context(), CGRectMake(1, 0, 1, 1));
    CGContextSetRGBFillColor(canvas.context(), 7, -1, NAN, 1); // clamped
    CGContextFillRect(canvas.context(), CGRectMake(2, 0, 1, 1));
    EXPECT_EQ(canvas.at(0, 0), 0xFF8040FFu);
    EXPECT_EQ(canvas.at(1, 0), 0x80000080u);
    EXPECT_EQ(canvas.at(2, 0), 0xFF0000FFu);
}

TEST_F(Contexts, MixByAlphaAndBlendMode) {
    Canvas canvas(4, 1);
    CGContextRef c = canvas.context();
    CGContextSetGrayFillColor(c, 1, 1);
    CGContextFillRect(c, CGRectMake(0, 0, 4, 1));
    CGContextSaveGState(c);
    CGContextSetRGBFillColor(c, 0, 0, 1, 1);
    CGContextSetAlpha(c, 0.2);
    CGContextFillRect(c, CGRectMake(0, 0, 1, 1)); // 0.8 of white under 0.2 of blue
    CGContextSetAlpha(c, 1);
    CGContextSetBlendMode(c, kCGBlendModeCopy);
    CGContextSetRGBFillColor(c, 0, 1, 0, 0.2);
    CGContextFillRect(c, CGRectMake(1, 0, 1, 1));
    CGContextSetBlendMode(c, kCGBlendModeClear);
    CGContextFillRect(c, CGRectMake(2, 0, 1, 1));
    CGContextRestoreGState(c); // white and normal again
    CGContextFillRect(c, CGRectMake(2.5, 0, 1.5, 1));
    EXPECT_EQ(canvas.at(0, 0), 0xCCCCFFFFu);
    EXPECT_EQ(canvas.at(1, 0), 0x00330033u);
    EXPECT_EQ(canvas.at(2, 0), 0x80808080u);
    EXPECT_EQ(canvas.at(3, 0), 0xFFFFFFFFu);
}

// Red, green over blue, white: each corner of the 2 x 2 image tells where it went.
CGImageRef four_corners() {
    Canvas source(2, 2);
    const double colors[4][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {1, 1, 1}};
    source.flip();
    for (int i = 0; i < 4; ++i) {
        CGContextSetRGBFillColor(source.context(), colors[i][0], colors[i][1], colors[i][2], 1);
        CGContextFillRect(source.context(), CGRectMake(i % 2, i / 2, 1, 1));
    }
    return CGBitmapContextCreateImage(source.context());
}

constexpr Pixel red = 0xFF0000FF, green = 0x00FF00FF, blue = 0x0000FFFF, white = 0xFFFFFFFF;

TEST_F(Contexts, DrawImagesUprightOrMirroredWithTheTransform) {
    const struct {
        CGAffineTransform transform;
        Pixel pixels[4];
    } cases[] = {
        {CGAffineTransformIdentity, {red, green, blue, white}},
        {{1, 0, 0, -1, 0, 2}, {blue, white, red, green}},  // flipped: the top row comes last
        {{-1, 0, 0, 1, 2, 0}, {green, red, white, blue}},  // mirrored
        {{-1, 0, 0, -1, 2, 2}, {white, blue, green, red}}, // half a turn
        {{0, 1, -1, 0, 2, 0}, {green, white, red, blue}},  // a quarter against the clock
    };
    CGImageRef image = four_corners();
    EXPECT_EQ(CGImageGetWidth(image), 2u);
    EXPECT_EQ(CGImageGetHeight(image), 2u);
    for (const auto& c : cases) {
        Canvas canvas(2, 2);
        CGContextConcatCTM(canvas.context(), c.transform);
        CGContextDrawImage(canvas.context(), CGRectMake(0, 0, 2, 2), image);
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(canvas.at(i % 2, i / 2), c.pixels[i]) << &c - cases << ": " << i;
    }
    CGImageRelease(image);
}

TEST_F(Contexts, DrawnAndCopiedWithTheSameFlippedCoordinatesComesOutUpright) {
    // An offscreen is drawn with y downwards but without a transform, then copied into a flipped
    // context: the two mirrorings cancel.
    Canvas offscreen(4, 3), screen(6, 6);
    CGContextFillRect(offscreen.context(), CGRectMake(1, 0, 2, 1)); // meant for the top
    CGImageRef image = CGBitmapContextCreateImage(offscreen.context());
    CGContextDrawImage(screen.flip().context(), CGRectMake(1, 2, 4, 3), image);
    CGImageRelease(image);
    EXPECT_EQ(offscreen.picture(), "....\n....\n.##.\n");
    EXPECT_EQ(screen.picture(), "......\n......\n..##..\n......\n......\n......\n");
}

TEST_F(Contexts, ImagesKeepWhatTheyWereMadeOf) {
    Canvas canvas(4, 1);
    CGContextFillRect(canvas.context(), CGRectMake(0, 0, 2, 1));
    CGImageRef image = CGBitmapContextCreateImage(canvas.context());
    CGContextClearRect(canvas.context(), CGRectMake(0, 0, 4, 1));
    EXPECT_EQ(canvas.picture(), "....\n");
    CGContextSetAlpha(canvas.context(), 0.5);
    CGContextDrawImage(canvas.context(), CGRectMake(2, 0, 4, 1), image);
    CGImageRelease(image);
    EXPECT_EQ(canvas.at(1, 0), 0u);
    EXPECT_EQ(canvas.at(2, 0), 0x00000080u);
    EXPECT_EQ(canvas.at(3, 0), 0x00000080u);
}

TEST_F(Contexts, ScaledImagesFillTheirRectangleToTheEdge) {
    CGImageRef image = four_corners();
    Canvas canvas(8, 8);
    CGContextDrawImage(canvas.context(), CGRectMake(0, 0, 8, 8), image);
    CGImageRelease(image);
    EXPECT_EQ(canvas.at(0, 0), red);
    EXPECT_EQ(canvas.at(7, 0), green);
    EXPECT_EQ(canvas.at(0, 7), blue);
    EXPECT_EQ(canvas.at(7, 7), white);
    for (int i = 0; i < 8; ++i) EXPECT_EQ(canvas.alpha(i, 3), 255);
}

TEST_F(Contexts, CarryTheirTransform) {
    Canvas canvas(10, 10);
    CGContextRef c = canvas.context();
    EXPECT_TRUE(CGAffineTransformIsIdentity(CGContextGetCTM(c)));
    CGContextTranslateCTM(c, 2, 3);
    CGContextScaleCTM(c, 2, -1);
    const CGPoint p = CGPointApplyAffineTransform(CGPointMake(1, 1), CGContextGetCTM(c));
    EXPECT_EQ(p.x, 4);
    EXPECT_EQ(p.y, 2);
    CGContextSaveGState(c);
    CGContextScaleCTM(c, 0, 1); // cannot be inverted: nothing is drawn, and it can be left again
    CGContextFillRect(c, CGRectMake(0, 0, 100, 100));
    CGContextRestoreGState(c);
    CGContextRestoreGState(c); // one too many
    EXPECT_EQ(canvas.picture().find('#'), std::string::npos);
    CGContextFillRect(c, CGRectMake(0, 0, 1, 1)); // x 2 to 4, y 2 to 3
    EXPECT_EQ(canvas.at(2, 7), 0x000000FFu);
    EXPECT_EQ(canvas.at(3, 7), 0x000000FFu);
    EXPECT_EQ(canvas.alpha(4, 7) + canvas.alpha(2, 6) + canvas.alpha(2, 8), 0);
}

TEST(AffineTransform, ConcatenatesAndInverts) {
    const CGAffineTransform turn = CGAffineTransformMakeRotation(M_PI_2);
    CGPoint p = CGPointApplyAffineTransform(CGPointMake(1, 0), turn);
    EXPECT_NEAR(p.x, 0, 1e-15);
    EXPECT_NEAR(p.y, 1, 1e-15);
    const CGAffineTransform t = CGAffineTransformRotate(
        CGAffineTransformTranslate(CGAffineTransformMakeScale(2, 4), 10, 20), 0.3);
    p = CGPointApplyAffineTransform(CGPointZero, t);
    EXPECT_EQ(p.x, 20);
    EXPECT_EQ(p.y, 80);
    p = CGPointApplyAffineTransform(CGPointMake(3, 5),
                                    CGAffineTransformConcat(t, CGAffineTransformInvert(t)));
    EXPECT_NEAR(p.x, 3, 1e-12);
    EXPECT_NEAR(p.y, 5, 1e-12);
    const CGRect r = CGRectApplyAffineTransform(CGRectMake(0, 0, 2, 3), turn);
    EXPECT_NEAR(r.origin.x, -3, 1e-12);
    EXPECT_NEAR(r.size.width, 3, 1e-12);
}

TEST_F(Contexts, ClipToWhatTheyAreTold) {
    Canvas canvas(6, 6);
    CGContextRef c = canvas.context();
    CGContextSaveGState(c);
    CGContextClipToRect(c, CGRectMake(1, 1, 4, 4));
    CGContextClipToRect(c, CGRectMake(3, 0, 6, 3));
    const CGRect box = CGContextGetClipBoundingBox(c);
    EXPECT_TRUE(CGRectEqualToRect(box, CGRectMake(3, 1, 2, 2)));
    CGContextFillRect(c, CGRectMake(-10, -10, 100, 100));
    CGContextClipToRect(c, CGRectMake(0, 0, 1, 1));
    EXPECT_TRUE(CGRectIsNull(CGContextGetClipBoundingBox(c)));
    CGContextRestoreGState(c);
    EXPECT_EQ(canvas.picture(), "......\n......\n......\n...##.\n...##.\n......\n");
}

TEST_F(Contexts, BlendAlongAGradient) {
    const CGFloat components[] = {1, 0, 0, 1, 0, 0, 1, 1};
    CGColorSpaceRef space = CGColorSpaceCreateDeviceRGB();
    CGGradientRef gradient = CGGradientCreateWithColorComponents(space, components, nullptr, 2);
    Canvas canvas(12, 2);
    CGContextMoveToPoint(canvas.context(), 0, 0); // a path under way is not disturbed
    CGContextAddLineToPoint(canvas.context(), 12, 0);
    CGContextDrawLinearGradient(canvas.context(), gradient, CGPointMake(1, 0), CGPointMake(11, 0),
                                kCGGradientDrawsAfterEndLocation);
    EXPECT_EQ(canvas.at(0, 0), 0u);
    EXPECT_EQ(canvas.at(11, 1), 0x0000FFFFu);
    for (int x = 1; x < 11; ++x) { // the pixel's centre is at (x - 0.5) / 10 of the way
        EXPECT_NEAR(canvas.at(x, 0) >> 24, 255 * (1 - (x - 0.5) / 10), 1.5) << x;
        EXPECT_NEAR(canvas.at(x, 1) >> 8 & 0xFF, 255 * (x - 0.5) / 10, 1.5) << x;
        EXPECT_EQ(canvas.alpha(x, 0), 255);
    }
    CGContextAddLineToPoint(canvas.context(), 12, 2);
    CGContextSetGrayFillColor(canvas.context(), 1, 1);
    CGContextFillPath(canvas.context());
    EXPECT_EQ(canvas.at(11, 1), 0xFFFFFFFFu);
    EXPECT_EQ(CGGradientCreateWithColorComponents(space, components, nullptr, 0), nullptr);
    CGGradientRelease(gradient);
    CGColorSpaceRelease(space);
}

} // namespace
