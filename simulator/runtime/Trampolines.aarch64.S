// What imp_implementationWithBlock copies into pages of its own: takes the selector out of a
// message's arguments, puts the block in front of the receiver and calls it. The block's address
// lies TRAMPOLINE_DISTANCE bytes in front of the code.
#if defined(__aarch64__)

#include "simulator/runtime/AssemblyOffsets.h"

    .text
    .globl simulatorRuntimeTrampoline
    .hidden simulatorRuntimeTrampoline
    .type simulatorRuntimeTrampoline, %function
    .balign TRAMPOLINE_SIZE
// Only a tail call and no stack: unwinders need no description of the copies.
simulatorRuntimeTrampoline:
1:
    hint #34  // bti c
    mov x1, x0
    ldr x0, 1b - TRAMPOLINE_DISTANCE
    ldr x17, [x0, #BLOCK_INVOKE_OFFSET]
    br x17
    .balign TRAMPOLINE_SIZE
    .size simulatorRuntimeTrampoline, . - simulatorRuntimeTrampoline

// The same where a block's function is signed over its place.
    .arch armv8.3-a
    .globl simulatorRuntimeTrampoline_signed
    .hidden simulatorRuntimeTrampoline_signed
    .type simulatorRuntimeTrampoline_signed, %function
    .balign TRAMPOLINE_SIZE
simulatorRuntimeTrampoline_signed:
1:
    hint #34  // bti c
    mov x1, x0
    ldr x0, 1b - TRAMPOLINE_DISTANCE
    ldr x17, [x0, #BLOCK_INVOKE_OFFSET]
    add x16, x0, #BLOCK_INVOKE_OFFSET
    braa x17, x16
    .balign TRAMPOLINE_SIZE
    .size simulatorRuntimeTrampoline_signed, . - simulatorRuntimeTrampoline_signed

#endif

    .section .note.GNU-stack, "", %progbits
