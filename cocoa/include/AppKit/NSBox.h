// A frame of a thin line under its title. The title's line of text is left free above the frame
// with an empty title too. Line and title are half-transparent greys that suit dark and light
// surroundings.
#pragma once

#include <AppKit/NSView.h>

@class NSFont;

@interface NSBox : NSView {
  @private
    NSString* _title;
    NSFont* _titleFont;
}
- (NSString*)title; // "Title" until it is set
- (void)setTitle:(NSString*)title;
- (NSFont*)titleFont; // the system font in the small size
- (void)setTitleFont:(NSFont*)font;
- (NSRect)titleRect;  // in the box's coordinates, which are not flipped
- (NSRect)borderRect; // the rectangle of the line, below the title
@end
