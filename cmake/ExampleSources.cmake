# Lays the examples' own files, the freshly built program of one and the freshly drawn pictures of the
# other together as their projects name them, so that they build wherever the repository lies:
# QUILLON_DRIVES="S=<this folder>".
set(staged ${CMAKE_BINARY_DIR}/example-src)
set(copies)
foreach(name hello sailing)
  set(example ${CMAKE_SOURCE_DIR}/examples/${name}/files)
  file(GLOB_RECURSE files CONFIGURE_DEPENDS RELATIVE ${example} ${example}/*)
  foreach(file IN LISTS files)
    add_custom_command(
      OUTPUT ${staged}/${name}/${file}
      DEPENDS ${example}/${file}
      COMMAND ${CMAKE_COMMAND} -E copy ${example}/${file} ${staged}/${name}/${file}
      VERBATIM)
    list(APPEND copies ${staged}/${name}/${file})
  endforeach()
endforeach()

find_program(QUILLON_PYTHON python3 REQUIRED)
set(script ${CMAKE_SOURCE_DIR}/examples/sailing/draw_pictures.py)
set(drawn ${staged}/sailing/Bilder)
set(pictures)
foreach(picture Kväll Båt Sjökort Kompass Väder Märke)
  list(APPEND pictures ${drawn}/${picture}.bmp)
endforeach()
add_custom_command(
  OUTPUT ${pictures}
  DEPENDS ${script}
  COMMAND ${QUILLON_PYTHON} ${script} ${drawn}
  VERBATIM)

# The other build knows when its program changes; asking costs one comparison.
add_custom_target(
  quillon_example_sources ALL
  COMMAND ${CMAKE_COMMAND} -E copy_if_different ${CMAKE_BINARY_DIR}/windows-i686/Hej.exe
          ${staged}/hello/Hej.exe
  DEPENDS ${copies} ${pictures}
  VERBATIM)
add_dependencies(quillon_example_sources runtime-i686)
