# What every target of the project shares.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release)
endif()

# The build tree has the shape of an installation: bin/ beside share/skyloft/.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(SKYLOFT_SHARE_DIR ${CMAKE_BINARY_DIR}/share/skyloft)

find_program(SKYLOFT_CCACHE ccache)
if(SKYLOFT_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${SKYLOFT_CCACHE})
endif()

option(SKYLOFT_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
if(SKYLOFT_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

option(SKYLOFT_FUZZ "Build the fuzzers; needs clang" OFF)
if(SKYLOFT_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

option(SKYLOFT_TIDY "Run clang-tidy while compiling" OFF)

# Our own code compiles without a warning; libraries' headers are theirs.
function(skyloft_target target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(${target} PRIVATE -Wno-restrict)  # g++ 12 sees overlaps in std::string that are none
  endif()
  if(SKYLOFT_TIDY)
    set_target_properties(${target} PROPERTIES CXX_CLANG_TIDY "clang-tidy;--quiet;--extra-arg=-Wno-unknown-warning-option")
  endif()
endfunction()

# skyloft_test(base_dates_test dates_test.cpp LIBS skyloft_base ENV TZ=UTC LANG=C): one test program; every TEST is a
# ctest entry of its own and runs in its own process.
function(skyloft_test name)
  cmake_parse_arguments(arg "" "" "LIBS;ENV" ${ARGN})
  add_executable(${name} ${arg_UNPARSED_ARGUMENTS})
  skyloft_target(${name})
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE ${arg_LIBS} GTest::gtest GTest::gtest_main)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  # One property that is a list: every step to the test cuts at semicolons and takes some backslashes away.
  set(environment QT_QPA_PLATFORM=offscreen ${arg_ENV})
  string(REPEAT "\\" 8 escape)
  string(REPLACE ";" "${escape};" environment "${environment}")
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60
    PROPERTIES TIMEOUT 120 ENVIRONMENT "${environment}")
endfunction()
