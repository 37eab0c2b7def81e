# Flags that every target of the project shares, and the two functions by which a folder becomes a target.

add_library(vigrel_flags INTERFACE)
target_compile_options(vigrel_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wconversion
  $<$<BOOL:${VIGREL_WERROR}>:-Werror>)
target_include_directories(vigrel_flags INTERFACE ${PROJECT_SOURCE_DIR}/src)

# An index or iterator out of range ends a program at once, in tests and at the station alike.
add_compile_definitions(_GLIBCXX_ASSERTIONS)

if(VIGREL_SANITIZE)
  add_compile_options(-fsanitize=${VIGREL_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${VIGREL_SANITIZE})
endif()

# What the distribution builds its own programs with, for builds that are delivered: sanitizers bring checks of their
# own, and -D_FORTIFY_SOURCE asks for optimisation.
set(VIGREL_HARDENED OFF)
if(NOT CMAKE_BUILD_TYPE STREQUAL "Debug" AND NOT VIGREL_SANITIZE AND NOT VIGREL_FUZZ)
  set(VIGREL_HARDENED ON)
  include(CheckPIESupported)
  check_pie_supported(LANGUAGES CXX)
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
  add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3 -fstack-protector-strong -fstack-clash-protection)
  add_link_options(-Wl,-z,relro -Wl,-z,now)
endif()

# Without a call at every comparison of two numbers, which took a fifth to four fifths of the time: words that inputs need
# come from the inputs in fuzz/corpus, from fuzz/*.dict and the comparisons of memory.
if(VIGREL_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-coverage=trace-cmp -fno-sanitize-recover=all)
  add_link_options(-fsanitize=address,undefined)
endif()

# vigrel_library(name [FOLDER folder] [DEPENDS lib...]): every *.cpp of the calling folder, or of a folder in it, as the
# static library vigrel_<name>.
function(vigrel_library name)
  cmake_parse_arguments(arg "" "FOLDER" "DEPENDS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${arg_FOLDER}/*.cpp)
  if(sources)
    add_library(vigrel_${name} STATIC ${sources})
    target_link_libraries(vigrel_${name} PUBLIC vigrel_flags ${arg_DEPENDS})
  else()
    add_library(vigrel_${name} INTERFACE)
    target_link_libraries(vigrel_${name} INTERFACE vigrel_flags ${arg_DEPENDS})
  endif()
endfunction()

# vigrel_tests(name [DEPENDS lib...] [LABEL label] [ENVIRONMENT var=value] [SERIAL]): every *.cpp of the calling folder
# as the test program <name>_tests. The label is the name unless given. SERIAL: no other test runs beside it.
function(vigrel_tests name)
  cmake_parse_arguments(arg "SERIAL" "LABEL;ENVIRONMENT" "DEPENDS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  if(NOT sources)
    return()
  endif()
  if(NOT arg_LABEL)
    set(arg_LABEL ${name})
  endif()
  if(NOT arg_ENVIRONMENT)
    set(arg_ENVIRONMENT TZ=Europe/Stockholm)
  endif()
  add_executable(${name}_tests ${sources})
  target_include_directories(${name}_tests PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(${name}_tests PRIVATE vigrel_flags ${arg_DEPENDS} GTest::gtest GTest::gtest_main)
  gtest_discover_tests(${name}_tests TEST_PREFIX "${name}." DISCOVERY_TIMEOUT 60
    PROPERTIES LABELS ${arg_LABEL} ENVIRONMENT ${arg_ENVIRONMENT} TIMEOUT 300 RUN_SERIAL ${arg_SERIAL})
endfunction()
include(GoogleTest)
