# What a host gets: the two shared libraries, and the public headers under <brask/...>.
include(GNUInstallDirs)
install(TARGETS Lib_Brask Lib_Fenn brask_headers EXPORT brask
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
if(WIN32)
  install(TARGETS platform_names platform EXPORT brask)
endif()
file(GLOB public_headers ${PROJECT_SOURCE_DIR}/include/brask/*.h)
install(FILES ${public_headers} ${PROJECT_SOURCE_DIR}/foundation/fenn.h ${PROJECT_SOURCE_DIR}/platform/platform.h
              ${PROJECT_SOURCE_DIR}/fenn/fenn_host.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/brask)
if(NOT WIN32)
  # What platform.h is made of there; the platform's inner headers stay at home.
  file(READ ${PROJECT_SOURCE_DIR}/platform/platform.h platform_header)
  string(REGEX MATCHALL "portable/[a-z_]+\\.h" portable_headers "${platform_header}")
  list(TRANSFORM portable_headers PREPEND ${PROJECT_SOURCE_DIR}/platform/)
  install(FILES ${portable_headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/brask/portable)
endif()
install(EXPORT brask NAMESPACE brask:: FILE braskConfig.cmake DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/brask)
include(CMakePackageConfigHelpers)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/braskConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/braskConfigVersion.cmake DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/brask)
