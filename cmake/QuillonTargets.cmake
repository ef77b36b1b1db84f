# One static library for each folder below src/, its sources being whatever lies in the folder, so
# that a new file needs no change here.
find_package(Threads REQUIRED)
include(UnityBuild)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

find_program(QUILLON_CCACHE ccache)
if(QUILLON_CCACHE)
  set(CMAKE_C_COMPILER_LAUNCHER ${QUILLON_CCACHE})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${QUILLON_CCACHE})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # Without this ccache keeps nothing that is compiled with a precompiled header.
    add_compile_options(-fpch-preprocess)
  endif()
endif()

add_library(quillon_options INTERFACE)
# Designated initializers name the fields that matter and leave the others at their defaults.
target_compile_options(quillon_options INTERFACE -Wall -Wextra -Wshadow -Wconversion -Werror
                                                 -Wno-missing-field-initializers)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 sees an overlap in `"text" + std::string` where there is none (its bug 105651).
  target_compile_options(quillon_options INTERFACE -Wno-restrict)
else()
  # GCC's library uses what it has marked as deprecated itself, in std::stable_sort; GCC tells of our own uses.
  target_compile_options(quillon_options INTERFACE -Wno-deprecated-declarations)
endif()
target_include_directories(quillon_options INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_link_libraries(quillon_options INTERFACE Threads::Threads)
if(QUILLON_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # With the sanitizers' code in between GCC 12 takes std::function for uninitialized.
    add_compile_options(-Wno-maybe-uninitialized)
  endif()
endif()

# quillon_standard_headers(<target>): lets a target of the cross build share the compiled headers of the
# standard library, which are a third of what a file costs. For the tool's own libraries GCC 12 would no longer
# know that they are the system's, and warn of them.
function(quillon_standard_headers target)
  if(NOT WIN32)
    return()
  endif()
  if(target STREQUAL "quillon_helpers")
    target_precompile_headers(
      quillon_helpers PRIVATE <algorithm> <array> <cstdint> <functional> <map> <memory> <optional> <set>
                              <span> <string> <string_view> <unordered_map> <utility> <vector>)
  else()
    target_precompile_headers(${target} REUSE_FROM quillon_helpers)
  endif()
endfunction()

# quillon_library(<folder> [linked libraries...]): with the folders below it that are no library of their
# own. That of a/b is called quillon_a_b.
function(quillon_library folder)
  set(here ${CMAKE_CURRENT_SOURCE_DIR}/${folder})
  file(GLOB sources CONFIGURE_DEPENDS ${here}/*.cpp ${here}/*.h ${here}/*/*.cpp ${here}/*/*.h)
  list(FILTER sources EXCLUDE REGEX "^${here}/(forms|posix|program|solid|win32|writer)/")
  if(WIN32)
    file(GLOB system CONFIGURE_DEPENDS ${here}/win32/*.cpp ${here}/win32/*/*.cpp)
    list(FILTER system EXCLUDE REGEX "/win32/programs/")
  else()
    file(GLOB system CONFIGURE_DEPENDS ${here}/posix/*.cpp)
  endif()
  string(REPLACE "/" "_" folder ${folder})
  if(NOT sources MATCHES "[.]cpp" AND NOT system)
    add_library(quillon_${folder} INTERFACE)
    target_link_libraries(quillon_${folder} INTERFACE quillon_options ${ARGN})
    return()
  endif()
  add_library(quillon_${folder} STATIC ${sources} ${system})
  target_link_libraries(quillon_${folder} PUBLIC quillon_options ${ARGN})
  quillon_standard_headers(quillon_${folder})
  if(WIN32)
    # What the small programs use too stays in files of its own: the linker takes files whole, and with
    # them what they need of the compiler's library.
    set_source_files_properties(${system} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
    if(folder MATCHES "^(helpers|platform|archive.*)$")
      return()
    endif()
  endif()
  quillon_unity(quillon_${folder})
endfunction()

# quillon_quick_sanitized_build(<target>...): for what computes little, so that compiling it for the
# sanitizers takes half the time and running it hardly more. Who builds the fuzz targets alone wants them fast.
function(quillon_quick_sanitized_build)
  if(QUILLON_SANITIZE AND QUILLON_TESTS)
    foreach(target ${ARGN})
      target_compile_options(${target} PRIVATE -O0)
    endforeach()
  endif()
endfunction()

# quillon_quick_build(<target>...): the same for windows and calls, which wait for people and disks: the
# product's build too takes a fifth less time for them, at -O1.
function(quillon_quick_build)
  quillon_quick_sanitized_build(${ARGN})
  if(NOT QUILLON_SANITIZE)
    foreach(target ${ARGN})
      target_compile_options(${target} PRIVATE $<$<CONFIG:Release>:-O1>)
    endforeach()
  endif()
endfunction()

# quillon_test(<folder> [linked libraries...]): one fat test program for each folder of tests/.
function(quillon_test folder)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp
       ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.h)
  if(NOT sources)
    return()
  endif()
  add_executable(${folder}_test ${sources})
  target_link_libraries(${folder}_test PRIVATE quillon_test_support ${ARGN})
  if(QUILLON_SANITIZE AND folder MATCHES "^(archive|pictures)$")
    # They make and compare much data themselves. Headers that were compiled at another level can't be shared.
    set_target_properties(${folder}_test PROPERTIES QUILLON_COMPUTES ON)
  else()
    target_precompile_headers(${folder}_test REUSE_FROM quillon_test_support)
  endif()
  quillon_unity(${folder}_test)
  add_test(NAME ${folder} COMMAND ${folder}_test)
endfunction()

# quillon_window_test(<folder> [linked libraries...]): the same for tests that drive windows.
function(quillon_window_test folder)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp
       ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.h)
  add_executable(${folder}_test ${sources} support/window_main.cpp support/window_test.cpp
                 support/window_looks.cpp)
  target_link_libraries(${folder}_test PRIVATE quillon_test_support Qt6::Test ${ARGN})
  # Compiled once for all of them.
  if(TARGET forms_test AND NOT folder STREQUAL "forms")
    target_precompile_headers(${folder}_test REUSE_FROM forms_test)
  else()
    target_precompile_headers(${folder}_test PRIVATE <QtWidgets/QtWidgets> <QtTest/QTest>
                              <gtest/gtest.h>)
  endif()
  quillon_unity(${folder}_test)
  add_test(NAME ${folder} COMMAND ${folder}_test)
  # Once more on a screen of twice the points, whose pictures end in "@2x".
  add_test(NAME ${folder}_200 COMMAND ${folder}_test)
  set_tests_properties(${folder}_200 PROPERTIES ENVIRONMENT QT_SCALE_FACTOR=2)
endfunction()
