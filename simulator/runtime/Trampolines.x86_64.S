// What imp_implementationWithBlock copies into pages of its own: takes the selector out of a
// message's arguments, puts the block in front of the receiver and calls it. The block's address
// lies TRAMPOLINE_DISTANCE bytes in front of the code.
#if defined(__x86_64__)

#include "simulator/runtime/AssemblyOffsets.h"

#if defined(__CET__)
#include <cet.h>
#else
#define _CET_ENDBR
#endif

// Only tail calls and no stack: unwinders need no description of the copies.
.macro TRAMPOLINE name, block, receiver
    .text
    .globl \name
    .hidden \name
    .type \name, @function
    .balign TRAMPOLINE_SIZE
\name:
1:
    _CET_ENDBR
    movq \block, \receiver
    movq 1b - TRAMPOLINE_DISTANCE(%rip), \block
    jmp *BLOCK_INVOKE_OFFSET(\block)
    .balign TRAMPOLINE_SIZE
    .size \name, . - \name
.endm

    TRAMPOLINE simulatorRuntimeTrampoline, %rdi, %rsi
    // %rdi: where the structure goes
    TRAMPOLINE simulatorRuntimeTrampoline_stret, %rsi, %rdx

#endif

    .section .note.GNU-stack, "", %progbits
