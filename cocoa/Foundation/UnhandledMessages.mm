// What happens to messages that have no method: to nil, to freed objects, and unrecognized ones.
#include "ObjectMemory.h"

#include <Foundation/NSObject.h>

#include <cstring>

#if defined(__x86_64__)
// The runtime calls its function nil_method for messages to nil; that clears only the register of
// integer results. This one overrides it: it also clears the registers of floating-point results
// and a structure that is returned in memory. The receiver is nil, so a nonzero first argument is
// the address of such a structure; the selector's types give its size.
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
    object_memory::check_zombie(receiver, selector);
    if (class_respondsToSelector(object_getClass(receiver), @selector(doesNotRecognizeSelector:)))
        [receiver doesNotRecognizeSelector:selector];
    return nullptr; // the runtime reports it and aborts
}

__attribute__((constructor)) void install_hook() {
    __objc_msg_forward2 = no_method;
}

} // namespace
