// A list of rows under a header, of which many can be selected: what the lists of layers and of
// files have in common. It scrolls by wheel, keys and the bar at its right; what a row shows and
// what selecting does is its subclass's.
//
// 1. A press on a row calls pressRow:modifiers:; while the button is down dragToRow: follows, also
//    above and below the list, which scrolls then.
// 2. Up, Down, Home, End and the page keys move the cursor and call moveToRow:extending:.
// 3. A double click, and Return, call openRow:.

#pragma once

#include <Cocoa/Cocoa.h>
#include <string>

@interface RowList : NSView {
  @private
    CGFloat _scroll; // points that the rows are moved up
    NSInteger _cursor;
    CGFloat _grip; // where in the bar's knob the mouse holds it
}
// For subclasses: what there is, and what happens.
- (NSInteger)rowCount;
- (BOOL)isRowSelected:(NSInteger)row;
- (void)drawHeader:(NSRect)rect;
- (void)drawRow:(NSInteger)row inRect:(NSRect)rect color:(NSColor*)color;
- (void)pressRow:(NSInteger)row modifiers:(NSUInteger)modifiers; // -1: below the last
- (void)dragToRow:(NSInteger)row;
- (void)moveToRow:(NSInteger)row extending:(BOOL)extending;
- (void)openRow:(NSInteger)row;
- (std::string)emptyText;

// For whoever changes what is in the list.
- (NSInteger)cursor; // -1 for none
- (void)setCursor:(NSInteger)row;
- (void)showRow:(NSInteger)row; // scrolls it into sight
- (void)rowsChanged;            // scrolls back what is past the end, and draws anew
@end
