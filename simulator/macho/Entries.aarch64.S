// Calls with a variable number of arguments: what follows the fixed ones lies on the stack, eight
// bytes each, where this system's compilers look into registers first. The functions behind take it
// as a va_list of this system, in which all registers are used up.
#if defined(__aarch64__)

    .hidden simulatorMachoVariadicForm
    .hidden simulatorMachoFunctionForms
    .hidden simulatorRuntimeVariadicSelectors

.macro ENTRY name
    .text
    .globl \name
    .hidden \name
    .type \name, %function
    .balign 16
\name:
    .cfi_startproc
    hint #34  // bti c
.endm

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
ENTRY simulatorMachoMsgSend
    adrp x9, simulatorRuntimeVariadicSelectors
    ldr x9, [x9, #:lo12:simulatorRuntimeVariadicSelectors]
    lsr x10, x1, #4
    lsr x9, x9, x10
    tbnz w9, #0, 1f
    b objc_msgSend
1:
    cbz x0, 2f
    stp x29, x30, [sp, #-224]!
    .cfi_def_cfa_offset 224
    .cfi_offset x29, -224
    .cfi_offset x30, -216
    mov x29, sp
    stp x0, x1, [sp, #16]
    stp x2, x3, [sp, #32]
    stp x4, x5, [sp, #48]
    stp x6, x7, [sp, #64]
    str x8, [sp, #80]
    stp q0, q1, [sp, #96]
    stp q2, q3, [sp, #128]
    stp q4, q5, [sp, #160]
    stp q6, q7, [sp, #192]
    bl simulatorMachoVariadicForm
    mov x17, x0
    ldp x0, x1, [sp, #16]
    ldp x2, x3, [sp, #32]
    ldp x4, x5, [sp, #48]
    ldp x6, x7, [sp, #64]
    ldr x8, [sp, #80]
    ldp q0, q1, [sp, #96]
    ldp q2, q3, [sp, #128]
    ldp q4, q5, [sp, #160]
    ldp q6, q7, [sp, #192]
    ldp x29, x30, [sp], #224
    .cfi_def_cfa_offset 0
    .cfi_restore x29
    .cfi_restore x30
    cbnz x17, 3f
2:
    b objc_msgSend
3:  // receiver, selector and one argument are fixed
    CALL_WITH_LIST x3
    .cfi_endproc
    .size simulatorMachoMsgSend, . - simulatorMachoMsgSend

ENTRY simulatorMachoSnprintf
    adrp x17, :got:vsnprintf
    ldr x17, [x17, #:got_lo12:vsnprintf]
    CALL_WITH_LIST x3
    .cfi_endproc
    .size simulatorMachoSnprintf, . - simulatorMachoSnprintf

// As many as simulatorMachoFunctionForms has places; one argument is fixed.
ENTRY simulatorMachoFunctionWithDots
    adrp x17, simulatorMachoFunctionForms
    add x17, x17, #:lo12:simulatorMachoFunctionForms
    ldr x17, [x17, x16, lsl #3]
    CALL_WITH_LIST x1
    .cfi_endproc
    .size simulatorMachoFunctionWithDots, . - simulatorMachoFunctionWithDots

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
