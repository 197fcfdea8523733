// A button's type, for NSTypeOfButton and the keys of radio buttons.
#pragma once

#include <AppKit/NSButton.h>

@interface NSButtonCell (Private)
- (NSButtonType)buttonType;
@end
