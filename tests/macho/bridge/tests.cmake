# The tests of the bridge that can be compiled for phones. The others need what a slice does not have:
# SingleInstances threads, VariadicMessages the library's texts of numbers, TypeComparison tests with
# values (it is compared at compile time, and the same everywhere).
set(BRIDGE_TESTS_FOR_arm64e
    Associations BlockCaptures Blocks CheckedClasses ClassGroups ClassLookup ClassMethodHooks Encodings
    HookResults Hooks Messages Properties Registration Results Retained Super TypeMismatches)
# These count with std::function, whose tables of functions the compiler for arm64e does not sign.
set(BRIDGE_TESTS_FOR_arm64 ${BRIDGE_TESTS_FOR_arm64e}
    AutoreleasePools Classes Deallocation StrongReferences WeakReferences)
