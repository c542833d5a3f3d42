# Compiles and links for phones with the distribution's clang and lld: no SDK, no Mac.
#
# An object library whose flags name another target gives dependency tracking, ccache and the
# compilation database for nothing. Only linking needs commands of its own, because CMake
# believes that it builds for Linux.

find_program(PHONE_LINKER ld64.lld-19 REQUIRED)
find_program(PHONE_LIPO llvm-lipo-19 REQUIRED)
find_path(PHONE_LIBCXX __config PATHS /usr/lib/llvm-19/include/c++/v1 REQUIRED NO_DEFAULT_PATH)
execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-resource-dir
                OUTPUT_VARIABLE PHONE_CLANG_RESOURCES OUTPUT_STRIP_TRAILING_WHITESPACE
                COMMAND_ERROR_IS_FATAL ANY)

set(PHONE_DIR ${CMAKE_CURRENT_LIST_DIR}/..)
cmake_path(NORMAL_PATH PHONE_DIR)
# The interpreter itself: what is found may be a script that looks for it at each start.
execute_process(COMMAND ${Python3_EXECUTABLE} -c "import sys; print(sys.executable)"
                OUTPUT_VARIABLE interpreter OUTPUT_STRIP_TRAILING_WHITESPACE
                COMMAND_ERROR_IS_FATAL ANY)
# -B: no byte code beside the sources.
set(PHONE_PYTHON ${interpreter} -B)

set(PHONE_COMPILE_FLAGS
    -nostdinc++  # SHELL: keeps CMake from dropping the repeated word
    "SHELL:-isystem ${PHONE_DIR}include/libcxx"  # before the library: its configuration
    "SHELL:-isystem ${PHONE_LIBCXX}"
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Werror
    -fvisibility=hidden -fvisibility-inlines-hidden
    # What these would need of the C++ library is not in its headers.
    -fno-exceptions -fno-rtti -fno-threadsafe-statics -fno-c++-static-destructors
    -fno-stack-protector)
set(PHONE_C_HEADERS -nostdlibinc "SHELL:-isystem ${PHONE_DIR}include/c"
                    "SHELL:-isystem ${PHONE_CLANG_RESOURCES}/include")
set(PHONE_COMPILE_FLAGS_arm64 --target=arm64-apple-ios15.0 ${PHONE_C_HEADERS})
set(PHONE_COMPILE_FLAGS_arm64e --target=arm64e-apple-ios15.0 -fptrauth-calls -fptrauth-returns
                               -fptrauth-intrinsics ${PHONE_C_HEADERS})
# This machine's own target: for the simulator, which plays what ships.
set(PHONE_COMPILE_FLAGS_linux)

set(stubs ${PROJECT_BINARY_DIR}/stubs)
file(MAKE_DIRECTORY ${stubs})
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PHONE_DIR}imports.txt
                                                               ${PHONE_DIR}stubs.py)
execute_process(COMMAND ${PHONE_PYTHON} ${PHONE_DIR}stubs.py ${PHONE_DIR}imports.txt ${stubs}
                COMMAND_ERROR_IS_FATAL ANY)
file(GLOB PHONE_STUBS ${stubs}/*.tbd)

set(PHONE_LINK_FLAGS
    # arm64 for both: the linker has no arm64e, and refuses chained fixups for what it does not know.
    -arch arm64 -platform_version ios 15.0 15.0 -dylib -adhoc_codesign
    -dead_strip -dead_strip_dylibs
    -x  # no names of what is not exported: nobody asks for them
    -no_encryption  # the command for it would keep the first page to itself
    -install_name @rpath/Dozewell2.dylib
    # Nothing is imported from it, so the linker would leave it out; and a phone may lack it.
    -needed_library ${stubs}/Cephei.tbd -weak_library ${stubs}/Cephei.tbd
    # Where root-less injection platforms keep their libraries, then the same for phones that
    # move the root elsewhere.
    -rpath /var/jb/Library/Frameworks -rpath /var/jb/usr/lib
    -rpath @loader_path/.jbroot/Library/Frameworks -rpath @loader_path/.jbroot/usr/lib)
# Pointers and initialisers in the only forms that an arm64e loader takes without signatures.
set(PHONE_FIXUP_FLAGS -fixup_chains -init_offsets)

file(GLOB PHONE_TOOLS CONFIGURE_DEPENDS ${PHONE_DIR}*.py ${PHONE_DIR}macho/*.py)

# phone_objects(NAME ARCH SOURCES...): the object library NAME.
function(phone_objects name arch)
  add_library(${name} OBJECT ${ARGN})
  # Headers are searched in the order given: the C++ library's come before those of C.
  target_compile_options(${name} PRIVATE ${PHONE_COMPILE_FLAGS} ${PHONE_COMPILE_FLAGS_${arch}})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  target_compile_definitions(${name} PRIVATE ${DOZEWELL_REPOSITORY_DEFINITION})
endfunction()

# phone_objects_of(VARIABLE NAME): its objects, without the headers that it has precompiled.
function(phone_objects_of variable name)
  set(${variable} "$<FILTER:$<TARGET_OBJECTS:${name}>,EXCLUDE,[.]pch$>" PARENT_SCOPE)
endfunction()

# phone_assembly(OBJECTS LIST): the arm64e object library OBJECTS is made by way of assembly, which
# stays beside the objects for the check that reads it; LIST is the file that will name the results.
function(phone_assembly objects list)
  set_target_properties(${objects} PROPERTIES CXX_COMPILER_LAUNCHER
    "${PHONE_DIR}through_assembly.sh;${CMAKE_CXX_COMPILER};${CMAKE_CXX_COMPILER_LAUNCHER}")
  phone_objects_of(objects_of ${objects})
  file(GENERATE OUTPUT ${list} CONTENT "$<JOIN:${objects_of},.s\n>.s\n")
endfunction()

# phone_slice(DIRECTORY ARCH OBJECTS [STUBS stubs...] [FIXUP_FLAGS flags...]): links the object library OBJECTS
# and finishes DIRECTORY/Dozewell2.dylib. The linker's own output stays in DIRECTORY/linked, with a list
# of what lies where.
function(phone_slice directory arch objects)
  cmake_parse_arguments(PARSE_ARGV 3 ARG "" "" "STUBS;FIXUP_FLAGS")
  if(NOT ARG_FIXUP_FLAGS)
    set(ARG_FIXUP_FLAGS ${PHONE_FIXUP_FLAGS})
  endif()
  # The signature's identifier is the file's name, so it is the final one from the start.
  set(linked ${directory}/linked/Dozewell2.dylib)
  set(finished ${directory}/Dozewell2.dylib)
  phone_objects_of(objects_of ${objects})
  file(MAKE_DIRECTORY ${directory}/linked)
  add_custom_command(
    OUTPUT ${finished} ${linked}
    COMMAND ${PHONE_LINKER} ${PHONE_LINK_FLAGS} ${ARG_FIXUP_FLAGS} ${objects_of}
            ${PHONE_STUBS} ${ARG_STUBS} -map ${linked}.map -o ${linked}
    COMMAND ${PHONE_PYTHON} ${PHONE_DIR}finish_slice.py ${linked} ${arch} ${finished}
    DEPENDS ${objects_of} ${PHONE_STUBS} ${ARG_STUBS} ${PHONE_TOOLS}
    COMMENT "Linking ${finished}"
    COMMAND_EXPAND_LISTS VERBATIM)
endfunction()

# phone_fat(OUTPUT SLICES...)
function(phone_fat output)
  add_custom_command(OUTPUT ${output} COMMAND ${PHONE_LIPO} -create ${ARGN} -output ${output}
                     DEPENDS ${ARGN} COMMENT "Joining ${output}" VERBATIM)
endfunction()
