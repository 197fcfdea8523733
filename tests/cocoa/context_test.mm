// Bitmap contexts: how they are made, colours, images, transforms, clips.
#include "Canvas.h"
#include "Pool.h"

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

TEST_F(Contexts, AreNullForUnsupportedFormats) {
    alignas(4) uint8_t data[64];
    const size_t minus = static_cast<size_t>(-1);
    EXPECT_EQ(make(data, 0, 4, 16), nullptr);
    EXPECT_EQ(make(data, 4, 0, 16), nullptr);
    EXPECT_EQ(make(data, minus, 4, 16), nullptr);
    EXPECT_EQ(make(data, 32767, 32767, 4 * 32767), nullptr); // more than 2^31 bytes
    EXPECT_EQ(make(data, 32768, 1, 4 * 32768), nullptr);
    EXPECT_EQ(make(nullptr, 4, 4, 16), nullptr);
    EXPECT_EQ(make(data, 4, 4, 12), nullptr);
    EXPECT_EQ(make(data, 4, 3, 18), nullptr);
    EXPECT_EQ(make(data + 1, 3, 3, 12), nullptr);
    EXPECT_EQ(make(data, 4, 4, 16, 16), nullptr);
    EXPECT_EQ(make(data, 4, 4, 16, 8, 2), nullptr);
    EXPECT_EQ(make(data, 4, 4, 16, 8, kCGImageAlphaPremultipliedLast, false), nullptr);
    EXPECT_EQ(CGBitmapContextCreateImage(nullptr), nullptr);
    EXPECT_EQ(CGBitmapContextGetWidth(nullptr), 0u);
}

TEST_F(Contexts, DrawIntoTheirMemoryAndNothingElse) {
    std::vector<uint8_t> data(20 * 3, 0xAA);
    CGContextRef context = make(data.data(), 3, 3, 20); // rows with 8 bytes to spare
    ASSERT_NE(context, nullptr);
    EXPECT_EQ(CGBitmapContextGetWidth(context), 3u);
    EXPECT_EQ(CGBitmapContextGetHeight(context), 3u);
    EXPECT_EQ(data[0], 0xAA); // nothing is touched before anything is drawn
    CGContextClearRect(context, CGRectMake(-5, -5, 50, 50));
    for (size_t i = 0; i < data.size(); ++i) EXPECT_EQ(data[i], i % 20 < 12 ? 0 : 0xAA) << i;
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

TEST_F(Contexts, BlendByTheirMode) {
    Canvas canvas(4, 1);
    CGContextRef c = canvas.context();
    CGContextSetRGBFillColor(c, 1, 1, 1, 1);
    CGContextFillRect(c, CGRectMake(0, 0, 4, 1));
    CGContextSaveGState(c);
    CGContextSetRGBFillColor(c, 0, 0, 1, 0.2);
    CGContextFillRect(c, CGRectMake(0, 0, 1, 1)); // 0.8 of white under 0.2 of blue
    CGContextSetBlendMode(c, kCGBlendModeCopy);
    CGContextFillRect(c, CGRectMake(1, 0, 1, 1));
    CGContextSetBlendMode(c, kCGBlendModeClear);
    CGContextFillRect(c, CGRectMake(2, 0, 1, 1));
    CGContextRestoreGState(c); // white and normal again
    CGContextFillRect(c, CGRectMake(2.5, 0, 1.5, 1));
    EXPECT_EQ(canvas.at(0, 0), 0xCCCCFFFFu);
    EXPECT_EQ(canvas.at(1, 0), 0x00003333u);
    EXPECT_EQ(canvas.at(2, 0), 0x80808080u);
    EXPECT_EQ(canvas.at(3, 0), 0xFFFFFFFFu);
}

// Red, green over blue, white: each pixel of the 2 x 2 image shows where it is drawn.
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
        double x, y; // signs of the axes
        Pixel pixels[4];
    } cases[] = {
        {1, 1, {red, green, blue, white}},
        {1, -1, {blue, white, red, green}}, // flipped: the top row comes last
        {-1, 1, {green, red, white, blue}},
        {-1, -1, {white, blue, green, red}},
    };
    CGImageRef image = four_corners();
    for (const auto& c : cases) {
        Canvas canvas(2, 2);
        CGContextTranslateCTM(canvas.context(), 1 - c.x, 1 - c.y);
        CGContextScaleCTM(canvas.context(), c.x, c.y);
        CGContextDrawImage(canvas.context(), CGRectMake(0, 0, 2, 2), image);
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(canvas.at(i % 2, i / 2), c.pixels[i]) << &c - cases << ": " << i;
    }
    CGImageRelease(image);
}

TEST_F(Contexts, OffscreensInFlippedCoordinatesAreCopiedUpright) {
    // An offscreen is drawn with y downwards but without a transform, then copied into a flipped
    // context: the two mirrorings cancel out.
    Canvas offscreen(4, 3), screen(6, 6);
    CGContextFillRect(offscreen.context(), CGRectMake(1, 0, 2, 1)); // meant for the top
    CGImageRef image = CGBitmapContextCreateImage(offscreen.context());
    CGContextDrawImage(screen.flip().context(), CGRectMake(1, 2, 4, 3), image);
    CGImageRelease(image);
    EXPECT_EQ(offscreen.picture(), "....\n....\n.##.\n");
    EXPECT_EQ(screen.picture(), "......\n......\n..##..\n......\n......\n......\n");
}

TEST_F(Contexts, ImagesKeepTheirPixelsAndLeaveThePathAlone) {
    Canvas canvas(4, 1);
    CGContextFillRect(canvas.context(), CGRectMake(0, 0, 2, 1));
    CGImageRef image = CGBitmapContextCreateImage(canvas.context());
    CGContextClearRect(canvas.context(), CGRectMake(0, 0, 4, 1));
    EXPECT_EQ(canvas.picture(), "....\n");
    CGContextAddRect(canvas.context(), CGRectMake(0, 0, 1, 1));
    CGContextDrawImage(canvas.context(), CGRectMake(2, 0, 4, 1), image);
    CGImageRelease(image);
    EXPECT_EQ(canvas.picture(), "..##\n");
    CGContextFillPath(canvas.context());
    EXPECT_EQ(canvas.picture(), "#.##\n");
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

TEST_F(Contexts, SaveAndRestoreTheirTransform) {
    Canvas canvas(10, 10);
    CGContextRef c = canvas.context();
    CGContextTranslateCTM(c, 2, 3);
    CGContextScaleCTM(c, 2, -1);
    CGContextSaveGState(c);
    CGContextScaleCTM(c, 0, 1); // cannot be inverted: nothing is drawn
    CGContextFillRect(c, CGRectMake(0, 0, 100, 100));
    CGContextRestoreGState(c);
    CGContextRestoreGState(c); // one too many
    EXPECT_EQ(canvas.picture().find('#'), std::string::npos);
    CGContextFillRect(c, CGRectMake(0, 0, 1, 1)); // x 2 to 4, y 2 to 3
    EXPECT_EQ(canvas.at(2, 7), 0x000000FFu);
    EXPECT_EQ(canvas.at(3, 7), 0x000000FFu);
    EXPECT_EQ(canvas.alpha(4, 7) + canvas.alpha(2, 6) + canvas.alpha(2, 8), 0);
}

TEST_F(Contexts, ClipToIntersections) {
    Canvas canvas(6, 6);
    CGContextRef c = canvas.context();
    CGContextSaveGState(c);
    CGContextClipToRect(c, CGRectMake(1, 1, 4, 4));
    CGContextClipToRect(c, CGRectMake(3, 0, 6, 3));
    CGContextFillRect(c, CGRectMake(-10, -10, 100, 100));
    CGContextClipToRect(c, CGRectMake(0, 0, 1, 1));
    CGContextClearRect(c, CGRectMake(0, 0, 6, 6)); // the clip is empty now
    CGContextRestoreGState(c);
    EXPECT_EQ(canvas.picture(), "......\n......\n......\n...##.\n...##.\n......\n");
}

} // namespace
