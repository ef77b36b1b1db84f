# The desktop program. Qt's headers take long to compile, so the form kit's precompiled header serves
# all windows; no class of ours needs moc.
find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets Svg DBus PrintSupport)

set(CMAKE_AUTORCC ON)
file(GLOB icons CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/ui/*.qrc)
quillon_library(ui quillon_shell Qt6::Widgets Qt6::Svg)
# For one file alone, which finds the headers beside those of Widgets; flags of their own would cost
# all windows their precompiled header.
target_link_libraries(quillon_ui INTERFACE $<LINK_ONLY:Qt6::DBus>)
target_sources(quillon_ui PRIVATE ${icons})
target_precompile_headers(quillon_ui PRIVATE <QtWidgets/QtWidgets>)
quillon_quick_build(quillon_ui)

# quillon_forms(<folder>): the windows of src/<folder>/forms, a library beside that of their logic.
set(QUILLON_FORMS)
function(quillon_forms folder)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/forms/*.cpp
       ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/forms/*.h)
  if(NOT sources)
    return()
  endif()
  add_library(quillon_${folder}_forms STATIC ${sources})
  target_link_libraries(quillon_${folder}_forms PUBLIC quillon_ui quillon_${folder})
  target_precompile_headers(quillon_${folder}_forms REUSE_FROM quillon_ui)
  quillon_unity(quillon_${folder}_forms)
  quillon_quick_build(quillon_${folder}_forms)
  list(APPEND QUILLON_FORMS quillon_${folder}_forms)
  set(QUILLON_FORMS ${QUILLON_FORMS} PARENT_SCOPE)
endfunction()

quillon_forms(filelist)
quillon_forms(actions)
quillon_forms(design)
quillon_forms(importers)
quillon_forms(builder)
quillon_forms(shell)
quillon_forms(tools)
# Linked, but not needed by who includes the forms.
target_link_libraries(quillon_tools_forms INTERFACE $<LINK_ONLY:Qt6::PrintSupport>)

file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/app/*.cpp
     ${CMAKE_CURRENT_SOURCE_DIR}/app/*.h)
list(FILTER sources EXCLUDE REGEX "/main[.]cpp$")
add_library(quillon_app STATIC ${sources})
target_link_libraries(quillon_app PUBLIC ${QUILLON_FORMS} quillon_ui)
target_precompile_headers(quillon_app REUSE_FROM quillon_ui)
quillon_unity(quillon_app)
quillon_quick_build(quillon_app)

add_executable(quillon ${CMAKE_CURRENT_SOURCE_DIR}/app/main.cpp)
target_link_libraries(quillon PRIVATE quillon_app)
target_precompile_headers(quillon REUSE_FROM quillon_ui)
quillon_quick_build(quillon)
set_target_properties(quillon PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${QUILLON_TOOL_FOLDER})
add_dependencies(quillon quillon_tool_data)

set(QUILLON_FORMS ${QUILLON_FORMS} PARENT_SCOPE)
