# Debian's cross compiler and user-mode emulator: g++-aarch64-linux-gnu, qemu-user; and the libraries
# that scripts/aarch64-libraries.sh has put into the build folder.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_C_COMPILER aarch64-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
set(CMAKE_ASM_COMPILER aarch64-linux-gnu-gcc)
# A processor that authenticates pointers, and does so fast; the root of the target's loader.
set(CMAKE_CROSSCOMPILING_EMULATOR
    qemu-aarch64 -cpu max,pauth-impdef=on -L /usr/aarch64-linux-gnu)

cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH AARCH64_LIBRARIES)
string(APPEND AARCH64_LIBRARIES /build/aarch64-libraries)
set(CMAKE_FIND_ROOT_PATH ${AARCH64_LIBRARIES})
set(ENV{PKG_CONFIG_LIBDIR} ${AARCH64_LIBRARIES}/usr/lib/aarch64-linux-gnu/pkgconfig)
set(ENV{PKG_CONFIG_SYSROOT_DIR} ${AARCH64_LIBRARIES})
# What their packages leave out because a machine of that kind searches there anyway; and each library
# finds those that it was linked with.
set(folder ${AARCH64_LIBRARIES}/usr/lib/aarch64-linux-gnu)
set(CMAKE_CXX_FLAGS_INIT "-isystem ${AARCH64_LIBRARIES}/usr/include/aarch64-linux-gnu")
string(APPEND CMAKE_CXX_FLAGS_INIT " -isystem ${AARCH64_LIBRARIES}/usr/include")
foreach(kind EXE SHARED MODULE)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT "-L${folder} -Wl,-rpath-link,${folder}")
endforeach()
set(CMAKE_BUILD_RPATH ${folder})
if(NOT EXISTS ${folder})
  message(FATAL_ERROR "Please run scripts/aarch64-libraries.sh first")
endif()
