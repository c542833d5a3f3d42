// The instructions of processors that authenticate pointers, one function each.
#if defined(__aarch64__)

    .arch armv8.3-a

.macro SIGNING name
    .text
    .globl \name
    .hidden \name
    .type \name, %function
    .balign 16
\name:
    hint #34  // bti c
.endm

    SIGNING simulatorRuntimePacia
    pacia x0, x1
    ret
    .size simulatorRuntimePacia, . - simulatorRuntimePacia

    SIGNING simulatorRuntimePacda
    pacda x0, x1
    ret
    .size simulatorRuntimePacda, . - simulatorRuntimePacda

    SIGNING simulatorRuntimeXpaci
    xpaci x0
    ret
    .size simulatorRuntimeXpaci, . - simulatorRuntimeXpaci

    SIGNING simulatorRuntimeXpacd
    xpacd x0
    ret
    .size simulatorRuntimeXpacd, . - simulatorRuntimeXpacd

#endif

    .section .note.GNU-stack, "", %progbits
