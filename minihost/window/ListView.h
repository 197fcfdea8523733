// A list of rows under a header: what the lists of layers and of files have in common. It scrolls
// by wheel, keys and the scroll bar at its right; a subclass draws the rows and selects them.
//
// 1. A press on a row calls pressRow:modifiers:, dragging on dragToRow:, also above and below the
//    list, which scrolls then.
// 2. Up, Down, Home, End and the page keys move the cursor and call moveToRow:extending:.
// 3. A double click and Return call openRow:.

#pragma once

#include <Cocoa/Cocoa.h>
#include <string>

@interface ListView : NSView {
  @private
    CGFloat _scroll; // points by which the rows are moved up
    NSInteger _cursor;
}
- (NSInteger)cursor; // -1 for none
- (void)setCursor:(NSInteger)row;
- (void)showRow:(NSInteger)row; // scrolls it into view
- (void)rowsChanged;            // adjusts the scrolling and redraws
@end

// What every subclass implements.
@interface ListView (Subclass)
- (NSInteger)rowCount;
- (BOOL)isRowSelected:(NSInteger)row;
- (void)drawHeader:(NSRect)rect;
- (void)drawRow:(NSInteger)row inRect:(NSRect)rect color:(NSColor*)color;
- (void)pressRow:(NSInteger)row modifiers:(NSUInteger)modifiers; // row -1: below the last
- (void)dragToRow:(NSInteger)row;
- (void)moveToRow:(NSInteger)row extending:(BOOL)extending;
- (void)openRow:(NSInteger)row;
- (std::string)emptyText;
@end
