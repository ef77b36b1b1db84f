# Windows looks for what a program imports in the program's own folder first, except for a few
# libraries of the system that it knows. So the Windows programs import those of kernel32 alone (and the
# C library), and load all others when they are first called: by then they have told Windows to look in
# the system's folder only (src/runtime/win32/processes/program_start.cpp).
set(delayed "")
foreach(library advapi32 comctl32 gdi32 ole32 oleaut32 shell32 user32)
  set(output ${CMAKE_BINARY_DIR}/delay/lib${library}.a)
  add_custom_command(
    OUTPUT ${output}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/delay
    COMMAND ${CMAKE_CURRENT_LIST_DIR}/delay-library.sh ${QUILLON_TARGET_MACHINE}-w64-mingw32
            ${library} ${output}
    DEPENDS ${CMAKE_CURRENT_LIST_DIR}/delay-library.sh
    VERBATIM)
  list(APPEND delayed ${output})
endforeach()
add_custom_target(quillon_delayed_libraries DEPENDS ${delayed})
