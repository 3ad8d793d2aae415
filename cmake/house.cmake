# The house rules of the build: warnings, arithmetic, sanitizers, and one include path for each floor.

# Single precision rounds at each step, as the controls' arithmetic is defined.
add_compile_options(-Wall -Wextra -ffp-contract=off)
# A host that builds the library for itself is not stopped by what a compiler of its own complains of.
if(BRASK_TESTS)
  add_compile_options(-Werror)
endif()
if(BRASK_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(BRASK_FUZZER)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
# Controls make many small calls across files: inlining them takes a quarter off a bevel. The objects of the archives
# stay usable for other linkers.
if(NOT WIN32 AND CMAKE_BUILD_TYPE STREQUAL "Release" AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  add_compile_options(-flto=auto -ffat-lto-objects -fno-semantic-interposition -fno-plt)
  add_link_options(-flto=auto -Wl,-Bsymbolic-functions)
endif()
if(WIN32)
  add_compile_definitions(WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0601)
  add_link_options(-static)
endif()

# A floor is reachable as "<folder>/header.h", and only by the targets that link it: each has a directory of its
# own in the build tree, which holds one link to the folder.
set(HOUSE_FLOORS ${CMAKE_BINARY_DIR}/floors)
function(house_floor target folder)
  file(MAKE_DIRECTORY ${HOUSE_FLOORS}/${folder})
  file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${folder} ${HOUSE_FLOORS}/${folder}/${folder} SYMBOLIC)
  target_include_directories(${target} PUBLIC ${HOUSE_FLOORS}/${folder})
endfunction()

# The headers that hosts see, under <brask/...>, wherever they stand in the tree.
set(HOUSE_PUBLIC ${HOUSE_FLOORS}/public)
file(MAKE_DIRECTORY ${HOUSE_PUBLIC}/brask)
file(GLOB house_headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/include/brask/*.h)
list(APPEND house_headers ${PROJECT_SOURCE_DIR}/foundation/fenn.h ${PROJECT_SOURCE_DIR}/platform/platform.h
     ${PROJECT_SOURCE_DIR}/platform/portable ${PROJECT_SOURCE_DIR}/fenn/fenn_host.h)
foreach(header IN LISTS house_headers)
  get_filename_component(name ${header} NAME)
  file(CREATE_LINK ${header} ${HOUSE_PUBLIC}/brask/${name} SYMBOLIC)
endforeach()
add_library(brask_headers INTERFACE)
target_include_directories(brask_headers INTERFACE $<BUILD_INTERFACE:${HOUSE_PUBLIC}> $<INSTALL_INTERFACE:include>)
target_compile_features(brask_headers INTERFACE cxx_std_17)
# A host's source is the same on both systems: names without a letter are the wide ones, and std::min is no macro.
target_compile_definitions(brask_headers INTERFACE $<$<PLATFORM_ID:Windows>:UNICODE;_UNICODE;NOMINMAX>)

# Sources of a library, gathered from the folders that it is made of.
function(house_sources library)
  foreach(source IN LISTS ARGN)
    set_property(GLOBAL APPEND PROPERTY HOUSE_SOURCES_${library} ${CMAKE_CURRENT_SOURCE_DIR}/${source})
  endforeach()
endfunction()

# One test program. It is noted in tests.txt, from which the check runs it.
#   house_test(name SOURCES a.cpp b.cpp LINKS target ...)
set_property(GLOBAL PROPERTY HOUSE_TESTS "")
function(house_test name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE ${arg_LINKS} GTest::gtest_main)
  target_compile_definitions(${name} PRIVATE TESTS_ROOT="${PROJECT_SOURCE_DIR}/tests")
  set_property(GLOBAL APPEND_STRING PROPERTY HOUSE_TESTS "$<TARGET_FILE:${name}>\n")
endfunction()
