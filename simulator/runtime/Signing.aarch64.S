// The instructions of processors that authenticate pointers, one function each.
#if defined(__aarch64__)

#include "simulator/runtime/Assembly.aarch64.inc"

    .arch armv8.3-a

HIDDEN_FUNCTION simulatorRuntimePacia
    pacia x0, x1
    ret
END_FUNCTION simulatorRuntimePacia

HIDDEN_FUNCTION simulatorRuntimePacda
    pacda x0, x1
    ret
END_FUNCTION simulatorRuntimePacda

HIDDEN_FUNCTION simulatorRuntimeXpaci
    xpaci x0
    ret
END_FUNCTION simulatorRuntimeXpaci

HIDDEN_FUNCTION simulatorRuntimeXpacd
    xpacd x0
    ret
END_FUNCTION simulatorRuntimeXpacd

#endif

    .section .note.GNU-stack, "", %progbits
