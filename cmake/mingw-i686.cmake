# Toolchain file: Windows programs for 32-bit machines, the kind that a package carries.
set(QUILLON_TARGET_MACHINE i686)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
