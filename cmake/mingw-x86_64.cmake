# Toolchain file: the same programs for 64-bit Wine, which runs no 32-bit program.
set(QUILLON_TARGET_MACHINE x86_64)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
