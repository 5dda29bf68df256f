# How every target of this project is built: language, warnings, sanitizers, and one function for each sort of target.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

add_library(ruvenmark_options INTERFACE)
target_include_directories(ruvenmark_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(ruvenmark_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(ruvenmark_options INTERFACE -Wno-restrict) # False alarms on std::string (GCC bug 105651).
endif()
if(RUVENMARK_WERROR)
  target_compile_options(ruvenmark_options INTERFACE -Werror)
endif()
if(RUVENMARK_SANITIZE)
  target_compile_options(ruvenmark_options INTERFACE
    -fsanitize=${RUVENMARK_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(ruvenmark_options INTERFACE -fsanitize=${RUVENMARK_SANITIZE})
endif()

# What users run stops at a fault of memory rather than going on with it. Under sanitizers the checks would be doubled.
# Debian's compilers make position-independent objects by themselves.
if(NOT RUVENMARK_SANITIZE)
  include(CheckCXXCompilerFlag)
  check_cxx_compiler_flag(-fcf-protection=full RUVENMARK_HAS_CF_PROTECTION)
  set(hardening -fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -D_GLIBCXX_ASSERTIONS)
  if(RUVENMARK_HAS_CF_PROTECTION)
    list(APPEND hardening -fcf-protection=full)
  endif()
  target_compile_options(ruvenmark_options INTERFACE "$<$<CONFIG:Release>:${hardening}>")
  target_link_options(ruvenmark_options INTERFACE "$<$<CONFIG:Release>:-pie;LINKER:-z,relro,-z,now>")
endif()

# ruvenmark_library(NAME SOURCES file... [LINKS target...]): a folder of the house as a static library.
function(ruvenmark_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(ruvenmark_${name} STATIC ${ARG_SOURCES})
  target_link_libraries(ruvenmark_${name} PUBLIC ruvenmark_options ${ARG_LINKS})
endfunction()

# ruvenmark_test(NAME SOURCES file... [LINKS target...]): one GoogleTest program a folder, each test known to ctest.
function(ruvenmark_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name}_test ${ARG_SOURCES})
  target_include_directories(${name}_test PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_compile_definitions(${name}_test PRIVATE RUVENMARK_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
  target_link_libraries(${name}_test PRIVATE ruvenmark_options ${ARG_LINKS} GTest::gtest GTest::gmock GTest::gtest_main)
  gtest_discover_tests(${name}_test DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
endfunction()
