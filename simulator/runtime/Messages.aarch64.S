// Message sends for aarch64 (AAPCS64): find the implementation in the class's method cache and
// jump to it with every argument register and the stack as the caller left them.
#if defined(__aarch64__)

#include "simulator/runtime/Assembly.aarch64.inc"
#include "simulator/runtime/AssemblyOffsets.h"

#define TO_OBJECT 0  // the first argument is the receiver
#define TO_SUPER 1   // a struct objc_super: the class to search
#define TO_SUPER2 2  // a struct objc_super: the class whose superclass to search

    .arch armv8.3-a  // only where pointers are signed
    .hidden simulatorRuntimeLookUp
    .hidden simulatorRuntimeSigns
    .hidden simulatorRuntimeWrongIsa
    .hidden simulatorRuntimeForwardingTarget

.macro MESSAGE name, target
    .text
    .globl \name
    .type \name, %function
    .p2align 6
\name:
    .cfi_startproc
    hint #34  // bti c
.if \target == TO_OBJECT
    cbz x0, 4f
    ldr x9, [x0]
    adrp x10, simulatorRuntimeSigns
    ldrb w10, [x10, #:lo12:simulatorRuntimeSigns]
    cbnz w10, 5f
6:  // x9: the class
.else
    ldr x9, [x0, #8]
.if \target == TO_SUPER2
    ldr x9, [x9, #CLASS_SUPERCLASS_OFFSET]
.endif
    cbz x9, 3f
.endif
    ldr x10, [x9, #CLASS_CACHE_OFFSET]
    ldr x11, [x10, #CACHE_MASK_OFFSET]
    add x10, x10, #CACHE_BUCKETS_OFFSET
    and x12, x1, x11
1:  // x10: the buckets; x11: the mask; x12: the byte offset of a bucket
    add x13, x10, x12
    ldr x14, [x13, #BUCKET_SELECTOR_OFFSET]
    sub x15, x14, x1
    cbnz x15, 2f
    // x15 is 0, but comes from the load: the address dependency keeps the two loads in order.
    add x13, x13, x15
    ldr x17, [x13, #BUCKET_IMPLEMENTATION_OFFSET]
.if \target != TO_OBJECT
    ldr x0, [x0]
.endif
    br x17
2:  // another selector's bucket, or the empty one that ends the probe
    cbz x14, 3f
    add x12, x12, #BUCKET_SIZE
    and x12, x12, x11
    b 1b
3:  // not cached; x9: the class to search
    SAVE_ARGUMENTS
    mov x2, x9
.if \target != TO_OBJECT
    ldr x0, [x0]
.endif
    bl simulatorRuntimeLookUp
    mov x17, x0
    RESTORE_ARGUMENTS
.if \target != TO_OBJECT
    ldr x0, [x0]
.endif
    cbz x17, simulatorRuntimeForward
    br x17
.if \target == TO_OBJECT
4:  // nil: zero in every register that can carry a result; a structure in memory is left alone
    mov x0, #0
    mov x1, #0
    movi d0, #0
    movi d1, #0
    movi d2, #0
    movi d3, #0
    ret
5:  // x9: the class signed over its place, as simulator/runtime/Signing.h says
    mov x10, x0
    movk x10, #0x6ae1, lsl #48
    mov x11, x9
    xpacd x11
    mov x12, x11
    pacda x12, x10
    cmp x12, x9
    mov x9, x11
    b.eq 6b
    SAVE_ARGUMENTS  // for whoever looks at the stack
    bl simulatorRuntimeWrongIsa
.endif
    .cfi_endproc
    .size \name, . - \name
.endm

// Sends the message on to the object that the receiver names.
HIDDEN_FUNCTION simulatorRuntimeForward
    SAVE_ARGUMENTS
    bl simulatorRuntimeForwardingTarget
    mov x17, x0
    RESTORE_ARGUMENTS
    mov x0, x17
    b objc_msgSend
END_FUNCTION simulatorRuntimeForward

    MESSAGE objc_msgSend, TO_OBJECT
    MESSAGE objc_msgSendSuper, TO_SUPER
    MESSAGE objc_msgSendSuper2, TO_SUPER2

#endif

    .section .note.GNU-stack, "", %progbits
