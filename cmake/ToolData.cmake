# What ToolFolder needs that is not compiled: resources/ laid beside the programs, file by file, so
# that a changed file follows at the next build.
file(GLOB_RECURSE resources CONFIGURE_DEPENDS RELATIVE ${CMAKE_SOURCE_DIR}/resources
     ${CMAKE_SOURCE_DIR}/resources/*)
set(copies)
foreach(file IN LISTS resources)
  add_custom_command(
    OUTPUT ${QUILLON_TOOL_FOLDER}/${file}
    DEPENDS ${CMAKE_SOURCE_DIR}/resources/${file}
    COMMAND ${CMAKE_COMMAND} -E copy ${CMAKE_SOURCE_DIR}/resources/${file}
            ${QUILLON_TOOL_FOLDER}/${file}
    VERBATIM)
  list(APPEND copies ${QUILLON_TOOL_FOLDER}/${file})
endforeach()
add_custom_target(quillon_tool_data ALL DEPENDS ${copies})
