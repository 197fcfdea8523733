// Measuring and drawing text, in the current graphics context.
//
// Points and rectangles are in the current coordinates. In a flipped context a text's origin is its
// upper left corner, otherwise its lower left; it is upright in both. The defaults of the
// attributes are the system font in 12 points, black and the default paragraph style.
#pragma once

#include <Foundation/Foundation.h>
#include <Foundation/NSAttributedString.h>

FOUNDATION_EXPORT NSString* const NSFontAttributeName;            // NSFont
FOUNDATION_EXPORT NSString* const NSForegroundColorAttributeName; // NSColor
FOUNDATION_EXPORT NSString* const NSParagraphStyleAttributeName;  // NSParagraphStyle

@interface NSString (NSStringDrawing)
// The size of the text without wrapping: the widest line and all lines' heights.
- (NSSize)sizeWithAttributes:(NSDictionary*)attributes;
// Without wrapping.
- (void)drawAtPoint:(NSPoint)point withAttributes:(NSDictionary*)attributes;
// Wrapped to the rectangle's width and clipped to the rectangle; lines that do not fit its height
// are left out, except the first.
- (void)drawInRect:(NSRect)rect withAttributes:(NSDictionary*)attributes;
@end

@interface NSAttributedString (NSStringDrawing)
- (NSSize)size;
- (void)drawAtPoint:(NSPoint)point;
- (void)drawInRect:(NSRect)rect;
@end
