# Builds the Windows programs: this same source tree once more, by mingw-w64, for each machine. The
# i686 ones are the runtime that packages carry. The x86_64 ones serve the tests on 64-bit Wine, and one
# of them is what a test run starts here, since many machines have no other Wine.
include(ExternalProject)

# quillon_windows_programs(<machine> <folder of the release programs> <folder of the test run's program>
#                          <folder of the others>)
function(quillon_windows_programs machine release_folder test_folder others)
  set(what all)
  if(machine STREQUAL "x86_64" AND NOT QUILLON_TESTS)
    # All that the tool itself needs of them.
    set(what qns32x)
  endif()
  ExternalProject_Add(
    runtime-${machine}
    SOURCE_DIR ${CMAKE_SOURCE_DIR}
    BINARY_DIR ${CMAKE_BINARY_DIR}/mingw-${machine}
    CMAKE_GENERATOR Ninja
    CMAKE_CACHE_ARGS
      -DCMAKE_TOOLCHAIN_FILE:FILEPATH=${CMAKE_SOURCE_DIR}/cmake/mingw-${machine}.cmake
      -DCMAKE_BUILD_TYPE:STRING=MinSizeRel
      -DQUILLON_RUNTIME_ONLY:BOOL=ON
      -DQUILLON_TESTS:BOOL=${QUILLON_TESTS}
      -DQUILLON_UNITY:BOOL=${QUILLON_UNITY}
      -DQUILLON_RELEASE_FOLDER:PATH=${release_folder}
      -DQUILLON_TEST_FOLDER:PATH=${test_folder}
      -DQUILLON_WINDOWS_EXTRAS:PATH=${others}
    # Ninja knows in an instant that there is nothing to do; asking it is what follows each change.
    BUILD_ALWAYS ON
    BUILD_COMMAND ${CMAKE_COMMAND} --build <BINARY_DIR> --target ${what}
    INSTALL_COMMAND ""
    STEP_TARGETS build)
endfunction()

quillon_windows_programs(i686 ${QUILLON_TOOL_FOLDER}/Release ${CMAKE_BINARY_DIR}/windows-i686/Test
                         ${CMAKE_BINARY_DIR}/windows-i686)
quillon_windows_programs(x86_64 ${CMAKE_BINARY_DIR}/runtime-x86_64/Release ${QUILLON_TOOL_FOLDER}/Test
                         ${CMAKE_BINARY_DIR}/windows-x86_64)
