# What the two mingw-w64 toolchains share. The setup runtime has to fit on a floppy disk beside the
# product, so everything here looks at size, and at equal bytes for equal sources.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR ${QUILLON_TARGET_MACHINE})

# The compiler of the win32 thread model: the other one brings 25 KB of pthreads to each program.
set(prefix ${QUILLON_TARGET_MACHINE}-w64-mingw32)
set(CMAKE_C_COMPILER ${prefix}-gcc-win32)
set(CMAKE_CXX_COMPILER ${prefix}-g++-win32)
set(CMAKE_RC_COMPILER ${prefix}-windres)
# Archives of link-time-optimisation objects need the compiler's own archiver.
set(CMAKE_AR ${prefix}-gcc-ar-win32 CACHE FILEPATH "")
set(CMAKE_RANLIB ${prefix}-gcc-ranlib-win32 CACHE FILEPATH "")
set(CMAKE_C_COMPILER_AR ${CMAKE_AR})
set(CMAKE_C_COMPILER_RANLIB ${CMAKE_RANLIB})
set(CMAKE_CXX_COMPILER_AR ${CMAKE_AR})
set(CMAKE_CXX_COMPILER_RANLIB ${CMAKE_RANLIB})

set(CMAKE_FIND_ROOT_PATH /usr/${prefix})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# The static zlib; the import library of its DLL lies beside it.
set(CMAKE_FIND_LIBRARY_SUFFIXES .a)
set(ZLIB_LIBRARY /usr/${prefix}/lib/libz.a CACHE FILEPATH "")

# Windows XP is the newest system that a project can name, and nothing newer is called.
set(flags "-Os -flto -ffunction-sections -fdata-sections -fmerge-all-constants")
string(APPEND flags " -DUNICODE -D_UNICODE -D_WIN32_WINNT=0x0501 -DWINVER=0x0501")
string(APPEND flags " -D_WIN32_IE=0x0600 -DNOMINMAX -DWIN32_LEAN_AND_MEAN")
set(CMAKE_C_FLAGS_INIT "${flags}")
set(CMAKE_CXX_FLAGS_INIT "${flags}")
# Resource scripts are UTF-8 like all sources.
set(CMAKE_RC_FLAGS_INIT "-c 65001")
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -s -Wl,--gc-sections -Wl,--no-insert-timestamp")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static -s -Wl,--gc-sections -Wl,--no-insert-timestamp")
