# Installs the libraries, the public headers, the CMake package and the pkg-config file.

include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

list(TRANSFORM folivar_kinds PREPEND folivar_ OUTPUT_VARIABLE libraries)
set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/Folivar")

install(
  TARGETS ${libraries}
  EXPORT FolivarTargets
  FILE_SET HEADERS)
if(TARGET folivar_c)
  install(
    TARGETS folivar_c
    EXPORT FolivarTargets
    LIBRARY COMPONENT c
    FILE_SET HEADERS COMPONENT c)
endif()
install(
  EXPORT FolivarTargets
  NAMESPACE Folivar::
  DESTINATION "${package_folder}")

configure_package_config_file(
  "${PROJECT_SOURCE_DIR}/cmake/FolivarConfig.cmake.in" "${PROJECT_BINARY_DIR}/FolivarConfig.cmake"
  INSTALL_DESTINATION "${package_folder}" NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/FolivarConfigVersion.cmake"
                                 COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/FolivarConfig.cmake"
              "${PROJECT_BINARY_DIR}/FolivarConfigVersion.cmake" DESTINATION "${package_folder}")

# From the folder of folivar.pc back to the prefix, so that an installed tree may be moved.
file(RELATIVE_PATH pc_prefix "/prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/prefix")
set(pc_cflags)
if(WIN32 AND BUILD_SHARED_LIBS)
  set(pc_cflags -DFOLIVAR_SHARED)
endif()
set(pc_libs_private -lstdc++ -lm)
foreach(library IN LISTS system_libraries)
  list(APPEND pc_libs_private -l${library})
endforeach()
if(NOT WIN32)
  list(APPEND pc_libs_private -pthread)
endif()
list(JOIN pc_libs_private " " pc_libs_private)
configure_file("${PROJECT_SOURCE_DIR}/cmake/folivar.pc.in" "${PROJECT_BINARY_DIR}/folivar.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/folivar.pc"
        DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
if(TARGET folivar_c)
  configure_file("${PROJECT_SOURCE_DIR}/cmake/folivar-c.pc.in" "${PROJECT_BINARY_DIR}/folivar-c.pc"
                 @ONLY)
  install(
    FILES "${PROJECT_BINARY_DIR}/folivar-c.pc"
    DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig"
    COMPONENT c)
endif()

# The metrics travel inside the library, and their notice must travel with them.
set(notice "${PROJECT_SOURCE_DIR}/folivar/fonts/afm/NOTICE.txt")
install(FILES "${notice}" DESTINATION "${CMAKE_INSTALL_DOCDIR}")
if(TARGET folivar_c)
  install(FILES "${notice}" DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT c)
endif()
