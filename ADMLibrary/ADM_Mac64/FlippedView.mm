#include "ADMLibrary/ADM_Mac64/FlippedView.h"

#include "ADMLibrary/ADM_Mac64/AEColors.h"
#include "ADMLibrary/ADM_Mac64/AppKitValues.h"

@implementation FlippedView

- (id)initWithFrame:(NSRect)frame {
    if ((self = [super initWithFrame:frame]))
        [self setAutoresizingMask:adm::kWidthAndHeightSizable];
    return self;
}

- (BOOL)isFlipped {
    return YES;
}

- (void)drawRect:(NSRect)dirty {
    (void)dirty;
    [GetAEColor(kAEPanelBackground) setFill];
    NSRectFill([self bounds]);
}

@end
