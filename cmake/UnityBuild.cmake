# Compiles several sources of a target as one piece, which spares reading the same headers again and again:
# a build from nothing takes a fraction of the time. The price is paid while working, as one changed
# file compiles its whole piece, so only the presets for ./test and ./run ask for it.
option(QUILLON_UNITY "Compile the sources of a target in few large pieces" OFF)
set(QUILLON_UNITY_LINES 3000 CACHE STRING "Lines of source that one piece has at most")

# quillon_unity(<target>): to be called when the target has all of its sources.
function(quillon_unity target)
  if(NOT QUILLON_UNITY)
    return()
  endif()
  find_package(Python3 REQUIRED COMPONENTS Interpreter)
  get_target_property(sources ${target} SOURCES)
  get_target_property(folder ${target} SOURCE_DIR)
  list(FILTER sources INCLUDE REGEX "[.]cpp$")
  set(absolute)
  foreach(source IN LISTS sources)
    cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY ${folder})
    list(APPEND absolute ${source})
  endforeach()
  # Grouped again when a source changes what it keeps to itself.
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/cmake/unity_groups.py)
  execute_process(
    COMMAND ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/cmake/unity_groups.py ${QUILLON_UNITY_LINES}
            ${absolute}
    OUTPUT_VARIABLE groups OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  string(REPLACE "\n" "|" groups "${groups}")
  string(REPLACE ";" "=" groups "${groups}")
  string(REPLACE "|" ";" groups "${groups}")
  foreach(pair IN LISTS groups)
    string(REGEX MATCH "^([0-9]+)=(.*)$" pair "${pair}")
    set_source_files_properties(${CMAKE_MATCH_2} PROPERTIES UNITY_GROUP "${target}_${CMAKE_MATCH_1}")
  endforeach()
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # An included file counts as a header, whose classes must not use names of one file alone.
    target_compile_options(${target} PRIVATE -Wno-subobject-linkage)
  endif()
endfunction()
