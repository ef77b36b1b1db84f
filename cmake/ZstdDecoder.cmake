# The decoder of Zstandard for the Windows programs, from Debian's own source package: only what reads a
# frame, without dictionaries of old versions, tables of error texts and code for one kind of processor.
find_program(QUILLON_BASH bash REQUIRED)
execute_process(
  COMMAND ${QUILLON_BASH} ${CMAKE_SOURCE_DIR}/scripts/debian-source.sh libzstd
  OUTPUT_VARIABLE zstd OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
set(zstd ${zstd}/lib)
set(sources)
foreach(file common/entropy_common common/error_private common/fse_decompress common/xxhash
             common/zstd_common decompress/huf_decompress decompress/zstd_ddict
             decompress/zstd_decompress decompress/zstd_decompress_block)
  list(APPEND sources ${zstd}/${file}.c)
endforeach()
add_library(zstd_decoder STATIC ${sources})
target_include_directories(zstd_decoder SYSTEM PUBLIC ${zstd})
target_compile_definitions(
  zstd_decoder PRIVATE ZSTD_LEGACY_SUPPORT=0 ZSTD_STRIP_ERROR_STRINGS=1 ZSTD_TRACE=0 DYNAMIC_BMI2=0
                       ZSTD_DISABLE_ASM=1 HUF_FORCE_DECOMPRESS_X1=1 DEBUGLEVEL=0 ZSTD_NO_INLINE=1
                       ZSTD_FORCE_DECOMPRESS_SEQUENCES_SHORT=1)
# Nothing is thrown through it.
target_compile_options(zstd_decoder PRIVATE -fno-asynchronous-unwind-tables -fno-exceptions)
# The smallest code for a copy of 16 bytes takes a third of the whole time that unpacking takes.
set_source_files_properties(${zstd}/decompress/zstd_decompress_block.c PROPERTIES COMPILE_OPTIONS
                            -mstringop-strategy=loop)
