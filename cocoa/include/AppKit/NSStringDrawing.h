// Measuring and drawing text, in the current graphics context.
//
// Points and rectangles are in the current coordinates. In a flipped context a text's origin is its
// upper left corner, otherwise its lower left; it stands upright in both. Attributes that are
// missing: Helvetica's place is taken by the system font in 12 points, black, the default paragraph
// style.
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
// Wrapped to the rectangle's width and clipped to the rectangle; a line that no longer fits into
// its height is left out, but for the first.
- (void)drawInRect:(NSRect)rect withAttributes:(NSDictionary*)attributes;
@end

@interface NSAttributedString (NSStringDrawing)
- (NSSize)size;
- (void)drawAtPoint:(NSPoint)point;
- (void)drawInRect:(NSRect)rect;
@end
