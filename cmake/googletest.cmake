# GoogleTest is built from Debian's source package (googletest), the same way for this machine and for Windows.
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
set(gtest_force_shared_crt ON CACHE BOOL "" FORCE)
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)

# One test program. Its sources follow; link further libraries with target_link_libraries.
function(varnel_test_program name)
  add_executable(${name} ${ARGN})
  target_link_libraries(${name} PRIVATE varnel_compile gtest gmock gtest_main)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
endfunction()
