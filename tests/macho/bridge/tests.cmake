# The tests of the bridge that can be compiled for phones. The others need what a slice does not have:
# SingleInstances threads, VariadicMessages the library's texts of numbers, TypeComparison tests with
# values (it is compared at compile time, and the same everywhere).
set(BRIDGE_TESTS_FOR_PHONES
    Associations AutoreleasePools BlockCaptures Blocks CheckedClasses ClassGroups ClassLookup
    ClassMethodHooks Classes Deallocation Encodings HookResults Hooks Messages Properties Registration
    Results Retained StrongReferences Super TypeMismatches WeakReferences)
