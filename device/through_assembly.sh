#!/bin/bash
# Compiles one source to assembly, and that to the object, so that a check can read what the object
# is made of:
#
#   through_assembly.sh ASSEMBLER [LAUNCHER...] COMPILER FLAGS... -o OBJECT -c SOURCE
#
# The assembly is OBJECT.s. CMake calls this as the launcher of the compiler.
set -eu
assembler=$1
shift
object=${*: -3:1}
# Precompiled headers have no assembly.
[[ $object != *.pch ]] || exec "$@"
"$@" -S -o "$object.s"
"$assembler" --target=arm64e-apple-ios15.0 -c "$object.s" -o "$object"
