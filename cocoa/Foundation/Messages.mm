// What the runtime does with messages that have no method: to nil, to freed objects, and those that
// nobody understands. Also the names of classes and selectors.
#include "ObjectStore.h"

#include <Foundation/NSException.h>
#include <Foundation/NSString.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#if defined(__x86_64__)
// The runtime answers messages to nil with its function nil_method, which clears only the register
// of integer results. This one takes its place: it clears those of floating-point results too, and
// a structure that is returned in memory. The receiver is nil, so a first argument that is not 0 is
// the address of such a structure; its size stands in the selector's types.
asm(R"(
    .text
    .globl nil_method
    .type nil_method, @function
nil_method:
    .cfi_startproc
    testq %rdi, %rdi
    jne 1f
    xorl %eax, %eax
    xorl %edx, %edx
    pxor %xmm0, %xmm0
    pxor %xmm1, %xmm1
    ret
1:  pushq %rdi
    .cfi_adjust_cfa_offset 8
    movq %rdx, %rsi
    call cocoa_clear_nil_result@PLT
    popq %rax
    .cfi_adjust_cfa_offset -8
    ret
    .cfi_endproc
    .size nil_method, .-nil_method
)");
#endif

extern "C" __attribute__((used, visibility("default"))) void cocoa_clear_nil_result(void* result,
                                                                                    SEL selector) {
    const char* types = sel_getTypeEncoding(selector);
    if (types) memset(result, 0, objc_sizeof_type(types));
}

namespace {

IMP no_method(id receiver, SEL selector) {
    object_store::refuse_zombie(receiver, selector);
    if (class_respondsToSelector(object_getClass(receiver), @selector(doesNotRecognizeSelector:)))
        [receiver doesNotRecognizeSelector:selector];
    return nullptr; // the runtime then reports in its own way and aborts
}

__attribute__((constructor)) void install_hook() {
    __objc_msg_forward2 = no_method;
}

} // namespace

NSString* NSStringFromClass(Class aClass) {
    return aClass ? [NSString stringWithUTF8String:class_getName(aClass)] : nil;
}

Class NSClassFromString(NSString* name) {
    return name ? objc_lookUpClass([name UTF8String]) : Nil;
}

NSString* NSStringFromSelector(SEL selector) {
    return selector ? [NSString stringWithUTF8String:sel_getName(selector)] : nil;
}

SEL NSSelectorFromString(NSString* name) {
    return name ? sel_registerName([name UTF8String]) : nullptr;
}

void NSLogv(NSString* format, va_list arguments) {
    NSString* line = [[NSString alloc] initWithFormat:format arguments:arguments];
    fprintf(stderr, "%s\n", [line UTF8String]);
    [line release];
}

void NSLog(NSString* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    NSLogv(format, arguments);
    va_end(arguments);
}
