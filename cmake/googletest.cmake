# GoogleTest is built from Debian's source package (googletest), the same way for this machine and for Windows.
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
set(gtest_force_shared_crt ON CACHE BOOL "" FORCE)
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
if(VARNEL_QUICK AND NOT MSVC)
  foreach(part gtest gmock gtest_main)
    target_compile_options(${part} PRIVATE -O0 -g0 $<$<BOOL:${VARNEL_SANITIZE}>:-fno-sanitize=undefined>)
  endforeach()
endif()

# The toolchain's linker for Windows takes time by the square of the functions, seconds a program. What ships is linked by it all the
# same; the test programs by lld where it is there. The compiler starts what is called collect2 in the folder that it is given.
if(CMAKE_CROSSCOMPILING AND WIN32)
  find_program(VARNEL_LLD NAMES ld.lld-14 ld.lld)
  if(VARNEL_LLD)
    file(WRITE ${CMAKE_BINARY_DIR}/lld/collect2 "#!/bin/sh\nexec ${VARNEL_LLD} \"$@\"\n")
    file(CHMOD ${CMAKE_BINARY_DIR}/lld/collect2 PERMISSIONS OWNER_READ OWNER_EXECUTE GROUP_READ GROUP_EXECUTE)
  endif()
endif()

# Tests' sources for Windows are compiled by clang where it is there, in half the time; what they test is compiled as it ships.
if(CMAKE_CROSSCOMPILING AND WIN32 AND VARNEL_QUICK)
  find_program(VARNEL_CLANG clang++-14)
  if(VARNEL_CLANG)
    set(VARNEL_TEST_COMPILER ${CMAKE_SOURCE_DIR}/cmake/scripts/compile_with_clang)
    set_target_properties(gtest gmock gtest_main PROPERTIES CXX_COMPILER_LAUNCHER ${VARNEL_TEST_COMPILER})
  endif()
endif()

# One test program. Its sources follow; link further libraries with target_link_libraries. The headers that every test includes take
# a second to read: the first program reads them for all.
function(varnel_test_program name)
  add_executable(${name} ${ARGN})
  target_link_libraries(${name} PRIVATE varnel_compile gtest gmock gtest_main)
  if(VARNEL_QUICK)
    get_property(first GLOBAL PROPERTY VARNEL_FIRST_TEST_PROGRAM)
    if(first)
      target_precompile_headers(${name} REUSE_FROM ${first})
    else()
      target_precompile_headers(${name} PRIVATE
        <gmock/gmock.h> <gtest/gtest.h>
        <algorithm> <array> <filesystem> <fstream> <functional> <map> <memory> <optional> <regex> <set> <sstream> <string> <vector>)
      set_property(GLOBAL PROPERTY VARNEL_FIRST_TEST_PROGRAM ${name})
    endif()
  endif()
  if(VARNEL_TEST_COMPILER)
    set_target_properties(${name} PROPERTIES CXX_COMPILER_LAUNCHER ${VARNEL_TEST_COMPILER})
  endif()
  if(VARNEL_LLD)
    target_link_options(${name} PRIVATE -fno-use-linker-plugin -B${CMAKE_BINARY_DIR}/lld/)
  endif()
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
endfunction()
