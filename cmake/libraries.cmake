# The libraries that hosts link, put together from the folders' sources.
#
#   brask       the controls as one archive, without drawing layer and platform
#   fenn        the drawing layer as an archive
#   Lib_Brask   the controls as a shared library
#   Lib_Fenn    the drawing layer as a shared library; off Windows it carries the platform inside

get_property(brask_sources GLOBAL PROPERTY HOUSE_SOURCES_brask)
get_property(fenn_sources GLOBAL PROPERTY HOUSE_SOURCES_fenn)

set(brask_floors machine text foundation controls items color console browser popup)
list(TRANSFORM brask_floors PREPEND ${HOUSE_FLOORS}/)

add_library(brask STATIC ${brask_sources} $<TARGET_OBJECTS:text>)
target_link_libraries(brask PUBLIC brask_headers platform_names)
# The third level makes the controls a fifth larger, and is felt only in what they call. What is made of controls
# spends its time in these, and is written for room; but for the log and the lists, which are for many entries.
target_compile_options(brask PRIVATE $<$<CONFIG:Release>:-O2>)
set(brask_compound ${brask_sources})
list(FILTER brask_compound INCLUDE REGEX "/(items|color|console|browser|popup)/[^/]*$")
list(FILTER brask_compound EXCLUDE REGEX "/(console/(store|formatted|texts|geometry)|items/list)[a-z_]*[.]cpp$")
set_source_files_properties(${brask_compound} PROPERTIES COMPILE_OPTIONS $<$<CONFIG:Release>:-Os>)
# The loops over whole pictures become twice as fast; and bevels are of what every control paints.
set_source_files_properties(${PROJECT_SOURCE_DIR}/foundation/shrink.cpp ${PROJECT_SOURCE_DIR}/foundation/tools_frame.cpp
                            PROPERTIES COMPILE_OPTIONS $<$<CONFIG:Release>:-O3>)
# The controls throw nothing and catch nothing: without the ways out for exceptions they are a tenth smaller.
target_compile_options(brask PRIVATE -fno-exceptions)
target_compile_definitions(brask PUBLIC BRASK_STATIC FENN_STATIC)
target_include_directories(brask PRIVATE ${brask_floors})

add_library(fenn STATIC ${fenn_sources})
target_link_libraries(fenn PUBLIC brask_headers platform raster text PRIVATE fenn_system)
target_compile_definitions(fenn PUBLIC FENN_STATIC)
target_include_directories(fenn PUBLIC ${HOUSE_FLOORS}/fenn)
set(fenn_seldom ${fenn_sources})
list(FILTER fenn_seldom EXCLUDE REGEX "/(painter|shapes|reports|text|text_[a-z]*|window_[a-z]*|windows_known|system_portable)[.]cpp$")
set_source_files_properties(${fenn_seldom} PROPERTIES COMPILE_OPTIONS $<$<CONFIG:Release>:-Os>)

# On Windows what a library exports is marked in the objects, so the shared ones are compiled for themselves.
if(WIN32)
  add_library(Lib_Brask SHARED ${brask_sources} $<TARGET_OBJECTS:text>)
  target_include_directories(Lib_Brask PRIVATE ${brask_floors})
  target_compile_options(Lib_Brask PRIVATE -fno-exceptions)
  target_link_libraries(Lib_Brask PUBLIC brask_headers platform_names)
  add_library(Lib_Fenn SHARED ${fenn_sources} $<TARGET_OBJECTS:text> $<TARGET_OBJECTS:raster>)
  target_include_directories(Lib_Fenn PRIVATE ${HOUSE_FLOORS}/machine ${HOUSE_FLOORS}/text ${HOUSE_FLOORS}/raster ${HOUSE_FLOORS}/fenn)
  target_link_libraries(Lib_Fenn PUBLIC brask_headers platform PRIVATE fenn_system)
else()
  add_library(Lib_Brask SHARED $<TARGET_OBJECTS:brask> $<TARGET_OBJECTS:text>)
  target_link_libraries(Lib_Brask PUBLIC brask_headers)
  add_library(Lib_Fenn SHARED $<TARGET_OBJECTS:fenn> $<TARGET_OBJECTS:text> $<TARGET_OBJECTS:raster>
                              $<TARGET_OBJECTS:platform>)
  target_link_libraries(Lib_Fenn PUBLIC brask_headers PRIVATE fenn_system platform_system)
endif()
# Templates of the standard library are compiled into it; they are no names of its own.
if(NOT WIN32)
  target_link_options(Lib_Brask PRIVATE LINKER:--version-script=${PROJECT_SOURCE_DIR}/cmake/exports.map)
  set_target_properties(Lib_Brask PROPERTIES LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/exports.map)
endif()
target_compile_definitions(Lib_Brask PRIVATE BRASK_BUILD)
target_compile_definitions(Lib_Fenn PRIVATE FENN_BUILD)
target_link_libraries(Lib_Brask PUBLIC Lib_Fenn)
# Files named exactly so, with the system's ending.
set_target_properties(Lib_Brask Lib_Fenn PROPERTIES PREFIX "" RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin
                      LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
