# Lays the example's own files and its freshly built program together as its project names them, so
# that it builds wherever the repository lies: QUILLON_DRIVES="S=<this folder>".
set(example ${CMAKE_SOURCE_DIR}/examples/hello/files)
set(staged ${CMAKE_BINARY_DIR}/example-src/hello)
file(GLOB_RECURSE files CONFIGURE_DEPENDS RELATIVE ${example} ${example}/*)
set(copies)
foreach(file IN LISTS files)
  add_custom_command(
    OUTPUT ${staged}/${file}
    DEPENDS ${example}/${file}
    COMMAND ${CMAKE_COMMAND} -E copy ${example}/${file} ${staged}/${file}
    VERBATIM)
  list(APPEND copies ${staged}/${file})
endforeach()
# The other build knows when its program changes; asking costs one comparison.
add_custom_target(
  quillon_example_sources ALL
  COMMAND ${CMAKE_COMMAND} -E copy_if_different ${CMAKE_BINARY_DIR}/windows-i686/Hej.exe
          ${staged}/Hej.exe
  DEPENDS ${copies}
  VERBATIM)
add_dependencies(quillon_example_sources runtime-i686)
