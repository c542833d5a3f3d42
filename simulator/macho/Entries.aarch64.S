// Calls with a variable number of arguments: what follows the fixed ones lies on the stack, eight
// bytes each, where this system's compilers look into registers first. The functions behind take it
// as a va_list of this system, in which all registers are used up.
#if defined(__aarch64__)

#include "simulator/runtime/Assembly.aarch64.inc"

    .hidden simulatorMachoVariadicForm
    .hidden simulatorMachoFunctionForms
    .hidden simulatorRuntimeVariadicSelectors

// Calls x17 with the list's place in `list`, which is the argument behind the fixed ones.
.macro CALL_WITH_LIST list
    stp x29, x30, [sp, #-48]!
    .cfi_def_cfa_offset 48
    .cfi_offset x29, -48
    .cfi_offset x30, -40
    mov x29, sp
    add x9, sp, #48
    stp x9, xzr, [sp, #16]   // the stack; no general registers
    stp xzr, xzr, [sp, #32]  // no vector registers; both offsets are 0
    add \list, sp, #16
    blr x17
    ldp x29, x30, [sp], #48
    .cfi_def_cfa_offset 0
    .cfi_restore x29
    .cfi_restore x30
    ret
.endm

// Most selectors are no such method's, and what the runtime has marked tells.
HIDDEN_FUNCTION simulatorMachoMsgSend
    adrp x9, simulatorRuntimeVariadicSelectors
    ldr x9, [x9, #:lo12:simulatorRuntimeVariadicSelectors]
    lsr x10, x1, #4
    lsr x9, x9, x10
    tbnz w9, #0, 1f
    b objc_msgSend
1:
    cbz x0, 2f
    SAVE_ARGUMENTS
    bl simulatorMachoVariadicForm
    mov x17, x0
    RESTORE_ARGUMENTS
    cbnz x17, 3f
2:
    b objc_msgSend
3:  // receiver, selector and one argument are fixed
    CALL_WITH_LIST x3
END_FUNCTION simulatorMachoMsgSend

HIDDEN_FUNCTION simulatorMachoSnprintf
    adrp x17, :got:vsnprintf
    ldr x17, [x17, #:got_lo12:vsnprintf]
    CALL_WITH_LIST x3
END_FUNCTION simulatorMachoSnprintf

// As many as simulatorMachoFunctionForms has places; one argument is fixed.
HIDDEN_FUNCTION simulatorMachoFunctionWithDots
    adrp x17, simulatorMachoFunctionForms
    add x17, x17, #:lo12:simulatorMachoFunctionForms
    ldr x17, [x17, x16, lsl #3]
    CALL_WITH_LIST x1
END_FUNCTION simulatorMachoFunctionWithDots

    .globl simulatorMachoFunctionEntries
    .hidden simulatorMachoFunctionEntries
    .type simulatorMachoFunctionEntries, %function
    .balign 16
simulatorMachoFunctionEntries:
    .irp index, 0, 1, 2, 3, 4, 5, 6, 7
    mov x16, #\index
    b simulatorMachoFunctionWithDots
    .endr
    .size simulatorMachoFunctionEntries, . - simulatorMachoFunctionEntries

#endif

    .section .note.GNU-stack, "", %progbits
