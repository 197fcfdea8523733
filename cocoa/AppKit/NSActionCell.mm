#include <AppKit/NSActionCell.h>

@implementation NSActionCell
- (id)target {
    return _target;
}
- (void)setTarget:(id)target {
    _target = target;
}
- (SEL)action {
    return _action;
}
- (void)setAction:(SEL)action {
    _action = action;
}
@end
