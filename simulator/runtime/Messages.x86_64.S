// Message sends for x86-64 (System V): find the implementation in the class's method cache and
// jump to it with every argument register and the stack as the caller left them.
#if defined(__x86_64__)

#include "simulator/runtime/AssemblyOffsets.h"

#if defined(__CET__)
#include <cet.h>
#else
#define _CET_ENDBR
#endif

#define TO_OBJECT 0  // the first argument is the receiver
#define TO_SUPER 1   // a struct objc_super: the class to search
#define TO_SUPER2 2  // a struct objc_super: the class whose superclass to search

    .hidden simulatorRuntimeLookUp
    .hidden simulatorRuntimeForwardingTarget

// Saves what may carry arguments (%al: the number of vector registers of a variadic call) and
// realigns nothing: %rbp is 16-byte aligned after the push.
.macro SAVE_ARGUMENTS
    pushq %rbp
    .cfi_def_cfa_offset 16
    .cfi_offset %rbp, -16
    movq %rsp, %rbp
    .cfi_def_cfa_register %rbp
    subq $192, %rsp
    movq %rax, -8(%rbp)
    movq %rdi, -16(%rbp)
    movq %rsi, -24(%rbp)
    movq %rdx, -32(%rbp)
    movq %rcx, -40(%rbp)
    movq %r8, -48(%rbp)
    movq %r9, -56(%rbp)
    movaps %xmm0, -192(%rbp)
    movaps %xmm1, -176(%rbp)
    movaps %xmm2, -160(%rbp)
    movaps %xmm3, -144(%rbp)
    movaps %xmm4, -128(%rbp)
    movaps %xmm5, -112(%rbp)
    movaps %xmm6, -96(%rbp)
    movaps %xmm7, -80(%rbp)
.endm

.macro RESTORE_ARGUMENTS
    movaps -192(%rbp), %xmm0
    movaps -176(%rbp), %xmm1
    movaps -160(%rbp), %xmm2
    movaps -144(%rbp), %xmm3
    movaps -128(%rbp), %xmm4
    movaps -112(%rbp), %xmm5
    movaps -96(%rbp), %xmm6
    movaps -80(%rbp), %xmm7
    movq -8(%rbp), %rax
    movq -16(%rbp), %rdi
    movq -24(%rbp), %rsi
    movq -32(%rbp), %rdx
    movq -40(%rbp), %rcx
    movq -48(%rbp), %r8
    movq -56(%rbp), %r9
    leave
    .cfi_def_cfa %rsp, 8
    .cfi_restore %rbp
.endm

// \first and \selector: the registers of the first two Objective-C arguments. Only %r10 and %r11
// are free here.
.macro MESSAGE name, first, selector, target, stret, forward
    .text
    .globl \name
    .type \name, @function
    .p2align 6
\name:
    .cfi_startproc
    _CET_ENDBR
.if \target == TO_OBJECT
    testq \first, \first
    jz 4f
    movq (\first), %r10
.else
    movq 8(\first), %r10
.if \target == TO_SUPER2
    movq CLASS_SUPERCLASS_OFFSET(%r10), %r10
.endif
    testq %r10, %r10
    jz 3f
.endif
    movq CLASS_CACHE_OFFSET(%r10), %r11
    movq \selector, %r10
1:  // %r11: the cache; %r10: the byte offset of a bucket, before the mask
    andq CACHE_MASK_OFFSET(%r11), %r10
    cmpq \selector, (CACHE_BUCKETS_OFFSET + BUCKET_SELECTOR_OFFSET)(%r11, %r10)
    jne 2f
    movq (CACHE_BUCKETS_OFFSET + BUCKET_IMPLEMENTATION_OFFSET)(%r11, %r10), %r11
.if \target != TO_OBJECT
    movq (\first), \first
.endif
    jmp *%r11
2:  // another selector's bucket, or the empty one that ends the probe
    cmpq $0, (CACHE_BUCKETS_OFFSET + BUCKET_SELECTOR_OFFSET)(%r11, %r10)
    je 3f
    addq $BUCKET_SIZE, %r10
    jmp 1b
3:  // not cached
    SAVE_ARGUMENTS
    movq \first, %r10
    movq \selector, %rsi
.if \target == TO_OBJECT
    movq %r10, %rdi
    movq (%r10), %rdx
.else
    movq (%r10), %rdi
    movq 8(%r10), %rdx
.if \target == TO_SUPER2
    movq CLASS_SUPERCLASS_OFFSET(%rdx), %rdx
.endif
.endif
    call simulatorRuntimeLookUp
    movq %rax, %r11
    RESTORE_ARGUMENTS
.if \target != TO_OBJECT
    movq (\first), \first
.endif
    testq %r11, %r11
    jz \forward
    jmp *%r11
.if \target == TO_OBJECT
4:  // nil: zero in every register that can carry a result; a structure in memory is left alone
.if \stret
    movq %rdi, %rax
.else
    xorl %eax, %eax
    xorl %edx, %edx
    pxor %xmm0, %xmm0
    pxor %xmm1, %xmm1
.endif
    ret
.endif
    .cfi_endproc
    .size \name, . - \name
.endm

// Sends the message on to the object that the receiver names.
.macro FORWARD name, first, selector, send
    .text
    .globl \name
    .hidden \name
    .type \name, @function
    .p2align 4
\name:
    .cfi_startproc
    _CET_ENDBR
    SAVE_ARGUMENTS
    movq \first, %rdi
    movq \selector, %rsi
    call simulatorRuntimeForwardingTarget
    movq %rax, %r11
    RESTORE_ARGUMENTS
    movq %r11, \first
    jmp \send@PLT
    .cfi_endproc
    .size \name, . - \name
.endm

    FORWARD simulatorRuntimeForward, %rdi, %rsi, objc_msgSend
    FORWARD simulatorRuntimeForward_stret, %rsi, %rdx, objc_msgSend_stret

    MESSAGE objc_msgSend, %rdi, %rsi, TO_OBJECT, 0, simulatorRuntimeForward
    MESSAGE objc_msgSendSuper, %rdi, %rsi, TO_SUPER, 0, simulatorRuntimeForward
    MESSAGE objc_msgSendSuper2, %rdi, %rsi, TO_SUPER2, 0, simulatorRuntimeForward

    // %rdi: where the structure goes
    MESSAGE objc_msgSend_stret, %rsi, %rdx, TO_OBJECT, 1, simulatorRuntimeForward_stret
    MESSAGE objc_msgSendSuper_stret, %rsi, %rdx, TO_SUPER, 1, simulatorRuntimeForward_stret
    MESSAGE objc_msgSendSuper2_stret, %rsi, %rdx, TO_SUPER2, 1, simulatorRuntimeForward_stret

#endif

    .section .note.GNU-stack, "", %progbits
