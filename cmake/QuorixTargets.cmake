# Flags and helpers shared by every target of the project.

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # Without this it refuses every file that has a precompiled header, and a second checkout finds nothing of the first.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros
    CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=true ${CCACHE_PROGRAM})
endif()

add_library(quorix_flags INTERFACE)
target_compile_options(quorix_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion
  # Contraction to fused multiply-add would change results.
  -ffp-contract=off
  # Where it optimises most, GCC 12 sees overlaps and overflows of 2^63 bytes in its own std::basic_string.
  "$<$<AND:$<CONFIG:Release>,$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict;-Wno-stringop-overflow;-Wno-array-bounds>"
  $<$<BOOL:${QUORIX_WERROR}>:-Werror>)
target_include_directories(quorix_flags INTERFACE ${PROJECT_SOURCE_DIR}/src)
if(QUORIX_SANITIZE)
  target_compile_options(quorix_flags INTERFACE -fsanitize=${QUORIX_SANITIZE} -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  target_link_options(quorix_flags INTERFACE -fsanitize=${QUORIX_SANITIZE})
endif()
if(QUORIX_COVERAGE)
  target_compile_options(quorix_flags INTERFACE --coverage)
  target_link_options(quorix_flags INTERFACE --coverage)
endif()

# quorix_precompile(TARGET HEADER...): precompiled headers that work together with ccache.
function(quorix_precompile target)
  target_precompile_headers(${target} PRIVATE ${ARGN})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    target_compile_options(${target} PRIVATE "SHELL:-Xclang -fno-pch-timestamp")
  else()
    target_compile_options(${target} PRIVATE -fpch-preprocess)
  endif()
endfunction()

# quorix_add_tests(NAME SOURCE...): one GoogleTest program, run as one test. Link more with target_link_libraries.
function(quorix_add_tests name)
  add_executable(${name} ${ARGN})
  target_link_libraries(${name} PRIVATE quorix_core quorix_test_support GTest::gmock GTest::gtest_main)
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES TIMEOUT 300 ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()

# quorix_add_fuzzer(NAME SOURCE...): a libFuzzer program; its corpus is fuzz/corpus/NAME.
function(quorix_add_fuzzer name)
  add_executable(${name} ${ARGN})
  target_link_libraries(${name} PRIVATE quorix_core quorix_flags)
  target_compile_options(${name} PRIVATE -fsanitize=fuzzer)
  target_link_options(${name} PRIVATE -fsanitize=fuzzer)
endfunction()
