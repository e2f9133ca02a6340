# What every target of ours is compiled with. Foreign sources (the test framework) are not.
add_library(varnel_compile INTERFACE)
target_include_directories(varnel_compile INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_definitions(varnel_compile INTERFACE
  VARNEL_VERSION_MAJOR=${PROJECT_VERSION_MAJOR} VARNEL_VERSION_MINOR=${PROJECT_VERSION_MINOR})
if(MSVC)
  target_compile_options(varnel_compile INTERFACE /W4 /WX /utf-8 /permissive- /Zc:__cplusplus)
else()
  target_compile_options(varnel_compile INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Werror
    -Wno-format-zero-length)  # a report without a message is a report
  if(CMAKE_CXX_COMPILER_ID MATCHES Clang)
    # Part of -Wconversion there, but not for the compilers that the product is built with.
    target_compile_options(varnel_compile INTERFACE -Wno-sign-conversion)
  endif()
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    # This release of the compiler sees overlapping copies in std::string's operator+ that are none.
    target_compile_options(varnel_compile INTERFACE -Wno-restrict)
    if(NOT WIN32)
      # Unique symbols would keep the module in memory after it was closed; a host loads and unloads it at will.
      target_compile_options(varnel_compile INTERFACE -fno-gnu-unique)
    endif()
  endif()
endif()
if(WIN32)
  target_compile_definitions(varnel_compile INTERFACE UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX)
endif()
if(VARNEL_SANITIZE)
  add_compile_definitions(VARNEL_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  # Undefined behaviour ends the program without a word but the stack's (ASAN_OPTIONS=handle_sigill=1). The words for each of some
  # 100,000 checks are eight megabytes of pointers to relocate, and the tests load the module thousands of times.
  add_compile_options(-fsanitize-undefined-trap-on-error)
endif()

if(CMAKE_CXX_COMPILER_ID MATCHES Clang AND NOT MSVC)
  add_link_options(-fuse-ld=lld)  # a blink a program, where the system's takes a second
endif()

if(VARNEL_QUICK AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  # The compiler looks for memory to use again only when it has taken this much (KB), which no file of ours does: a tenth of its time.
  add_compile_options("SHELL:--param ggc-min-heapsize=1048576")
endif()

if(VARNEL_COVERAGE)
  # The host calls on one thread: the wait for another one that makes the same static object would count as a branch.
  add_compile_options(--coverage -fprofile-update=atomic -fno-threadsafe-statics)
  add_link_options(--coverage)
endif()

macro(varnel_compile_in_batches)
  if(VARNEL_QUICK)
    set(CMAKE_UNITY_BUILD ON)
    set(CMAKE_UNITY_BUILD_BATCH_SIZE 8)
    if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
      add_compile_options(-Wno-subobject-linkage)  # to the compiler the files of a batch are headers
    endif()
  endif()
endmacro()

# What is no product is built quickly rather than made quick: its files in batches, with little optimisation, and with no more to
# debug with than the lines. To be called by the folders' CMakeLists.txt.
macro(varnel_build_quickly)
  varnel_compile_in_batches()
  if(VARNEL_QUICK)
    if(NOT MSVC)
      add_compile_options($<$<CONFIG:Release>:-O1> $<$<CONFIG:Debug>:-g1>)
    endif()
    if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
      # With little optimisation it takes an empty std::optional for a value that was never set.
      add_compile_options(-Wno-maybe-uninitialized)
    endif()
  endif()
endmacro()

# Of what plays the host and of the tests only the memory is watched: looking for undefined behaviour there as well doubles the time
# that the compiler takes. All that ships is watched for both. To be called by the folders' CMakeLists.txt.
macro(varnel_watch_memory_only)
  if(VARNEL_QUICK AND VARNEL_SANITIZE)
    add_compile_options(-fno-sanitize=undefined)
  endif()
endmacro()

# Header-only libraries of Debian's that both builds share. A cross compiler must not see /usr/include as a whole, so each
# library is reached through a folder of links that holds nothing else.
function(varnel_header_library name)
  set(folder ${CMAKE_BINARY_DIR}/headers/${name})
  file(MAKE_DIRECTORY ${folder})
  foreach(entry ${ARGN})
    if(NOT EXISTS ${entry})
      message(FATAL_ERROR "${entry} is missing: install the packages that ./test installs")
    endif()
    get_filename_component(base ${entry} NAME)
    file(CREATE_LINK ${entry} ${folder}/${base} SYMBOLIC)
  endforeach()
  add_library(${name} INTERFACE)
  target_include_directories(${name} SYSTEM INTERFACE ${folder})
endfunction()
