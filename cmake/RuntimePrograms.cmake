# The programs of the setup runtime, for the cross build. The folders of src/runtime/win32 are a part
# of the runtime library, from which each program links what it uses. A folder below `programs`, named
# after a program, has what is compiled for that program alone: its entry point, its resources and
# further sources. `lean` is a library of its own, which all programs are linked with.
set(programs ${CMAKE_CURRENT_SOURCE_DIR}/runtime/win32/programs)

# Below all other libraries, so that the linker meets it behind them and before libstdc++.
add_library(quillon_lean STATIC ${programs}/lean/failures.cpp ${programs}/lean/load_configuration.cpp)
target_include_directories(quillon_lean PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
include(DelayLoad)
add_dependencies(quillon_lean quillon_delayed_libraries)
target_link_libraries(quillon_options INTERFACE quillon_lean ${delayed})
# Programs begin at wWinMain. They are compiled in one piece at the link, since GCC 12 breaks down over
# symbols that two pieces of a program share, and now and then over the one piece that it makes of them.
target_link_options(quillon_options INTERFACE -municode -flto-partition=none)
# Programs are loaded at random addresses, and data are not executable. A 32-bit program registers
# no exception handlers, so that none on its stack is accepted; 64-bit programs have theirs in a
# read-only table.
target_link_options(quillon_options INTERFACE -Wl,--dynamicbase,--nxcompat)
if(QUILLON_TARGET_MACHINE STREQUAL "i686")
  target_link_options(quillon_options INTERFACE -Wl,--no-seh -Wl,-u,_kLoadConfiguration)
else()
  target_link_options(quillon_options INTERFACE -Wl,--high-entropy-va -Wl,-u,kLoadConfiguration)
endif()
find_program(QUILLON_PYTHON python3 REQUIRED)

# quillon_runtime_program(<folder of the sources> <file name> <folder> [linked libraries...])
function(quillon_runtime_program source file folder)
  file(GLOB sources CONFIGURE_DEPENDS ${programs}/${source}/*.cpp ${programs}/${source}/*.rc
       ${programs}/${source}/*.def)
  if(NOT sources MATCHES "[.]cpp")
    return()
  endif()
  get_filename_component(name ${file} NAME_WLE)
  get_filename_component(ending ${file} LAST_EXT)
  if(ending STREQUAL ".DLL")
    add_library(${source} SHARED ${sources})
    # No import library is made, since no program links against one.
    set_target_properties(${source} PROPERTIES ENABLE_EXPORTS OFF)
    # Otherwise every function would be kept for callers; only those in the .def file are called.
    target_link_options(${source} PRIVATE -fwhole-program)
  else()
    add_executable(${source} WIN32 ${sources})
  endif()
  set_target_properties(
    ${source} PROPERTIES PREFIX "" OUTPUT_NAME ${name} SUFFIX ${ending}
                         RUNTIME_OUTPUT_DIRECTORY ${folder}
                         ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/implib/${source})
  target_link_libraries(${source} PRIVATE quillon_runtime quillon_platform ${ARGN})
  add_custom_command(
    TARGET ${source} POST_BUILD
    COMMAND ${QUILLON_PYTHON} ${CMAKE_SOURCE_DIR}/cmake/load_configuration.py $<TARGET_FILE:${source}>
    VERBATIM)
endfunction()

set(release ${QUILLON_RELEASE_FOLDER})
quillon_runtime_program(setup32 SETUP32.EXE ${release})
quillon_runtime_program(qns32x QNS32X.EXE ${release}/Small32 uuid)
quillon_runtime_program(dunzip32 DUNZIP32.DLL ${release})
# The same with the decoder of Zstandard, for packages with a solid container.
quillon_runtime_program(dunzip32_solid DUNZIP32.DLL ${release}/Solid zstd_decoder)
if(TARGET dunzip32_solid)
  target_sources(dunzip32_solid PRIVATE ${programs}/dunzip32/dunzip32.cpp)
endif()
quillon_runtime_program(qnreg32 QNREG32.EXE ${release})
quillon_runtime_program(qnxreg2 QNXREG2.EXE ${release})
quillon_runtime_program(qnxunin QNXUNIN.EXE ${release})
quillon_runtime_program(selfx QNSELFX.EXE ${release} quillon_archive_solid)
if(TARGET qns32x)
  # The full version shows JPEG pictures too; nothing that is shown so far knows the difference. The
  # third copy is the one that a test run starts, in a folder that takes the files of the project that
  # is tried.
  add_custom_command(
    TARGET qns32x POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E make_directory ${release}/Full32 ${QUILLON_TEST_FOLDER}
    COMMAND ${CMAKE_COMMAND} -E copy ${release}/Small32/QNS32X.EXE ${release}/Full32/QNS32X.EXE
    COMMAND ${CMAKE_COMMAND} -E copy ${release}/Small32/QNS32X.EXE 
            ${QUILLON_TEST_FOLDER}/Qns32x.exe)
endif()
# The tool's program that describes a machine, for Windows.
add_executable(Diagnos WIN32 ${CMAKE_CURRENT_SOURCE_DIR}/diagnos/program/win32/main.cpp)
set_target_properties(Diagnos PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${QUILLON_WINDOWS_EXTRAS}/Diagnos)
target_link_libraries(Diagnos PRIVATE quillon_diagnos)
