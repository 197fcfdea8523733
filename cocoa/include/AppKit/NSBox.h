// A frame of a thin line, below its title. Room for the title is left above the frame with an empty
// title too. Line and title are half-transparent greys that suit dark and light surroundings.
#pragma once

#include <AppKit/NSView.h>

@interface NSBox : NSView {
  @private
    NSString* _title;
}
- (NSString*)title; // "Title" at first
- (void)setTitle:(NSString*)title;
@end
