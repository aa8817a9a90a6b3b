# Installs libraries, headers, the CMake package, pkg-config files, the notices, and vorn-inspect with its
# man page and completion. The installation can be moved as a whole.
include(CMakePackageConfigHelpers)

set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/VornLib")
set(pkg_config_folder "${CMAKE_INSTALL_LIBDIR}/pkgconfig")

install(TARGETS VornLib EXPORT VornLibTargets
  INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/include/" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
  FILES_MATCHING PATTERN "*.h")
if(TARGET vorn_c)
  install(TARGETS vorn_c EXPORT VornLibTargets
    INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
  install(FILES "${PROJECT_SOURCE_DIR}/bindings/c/include/vorn/vorn_c.h"
    DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/vorn")
  if(WIN32)
    install(FILES "${PROJECT_SOURCE_DIR}/bindings/c/src/vorn_c.def"
      DESTINATION "${CMAKE_INSTALL_LIBDIR}")
  endif()
endif()
if(MINGW)
  install(FILES ${VORN_COMPILER_RUNTIME} DESTINATION "${CMAKE_INSTALL_BINDIR}")
endif()

install(EXPORT VornLibTargets NAMESPACE VornLib:: DESTINATION "${package_folder}")
configure_package_config_file("${CMAKE_CURRENT_LIST_DIR}/VornLibConfig.cmake.in" VornLibConfig.cmake
  INSTALL_DESTINATION "${package_folder}" NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(VornLibConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
  "${CMAKE_CURRENT_BINARY_DIR}/VornLibConfig.cmake"
  "${CMAKE_CURRENT_BINARY_DIR}/VornLibConfigVersion.cmake"
  DESTINATION "${package_folder}")

# The path from the folder of a pkg-config file to the prefix.
file(RELATIVE_PATH prefix_from_pkg_config
  "/prefix/${pkg_config_folder}" "/prefix")
if(VORN_SHARED)
  set(pkg_config_definition "")
  set(pkg_config_libraries "")
else()
  set(pkg_config_definition " -DVORN_STATIC")
  set(pkg_config_libraries " -lstdc++ -pthread")
endif()
configure_file("${CMAKE_CURRENT_LIST_DIR}/VornLib.pc.in" VornLib.pc @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/VornLib.pc" DESTINATION "${pkg_config_folder}")
if(TARGET vorn_c)
  configure_file("${CMAKE_CURRENT_LIST_DIR}/vorn_c.pc.in" vorn_c.pc @ONLY)
  install(FILES "${CMAKE_CURRENT_BINARY_DIR}/vorn_c.pc" DESTINATION "${pkg_config_folder}")
endif()

if(TARGET vorn-inspect)
  file(RELATIVE_PATH libraries_from_programs
    "/prefix/${CMAKE_INSTALL_BINDIR}" "/prefix/${CMAKE_INSTALL_LIBDIR}")
  set_target_properties(vorn-inspect PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries_from_programs}")
  install(TARGETS vorn-inspect)
  if(UNIX)
    install(FILES "${PROJECT_SOURCE_DIR}/inspect/vorn-inspect.1"
      DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
    install(FILES "${PROJECT_SOURCE_DIR}/inspect/vorn-inspect.bash-completion"
      DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" RENAME vorn-inspect)
  endif()
endif()

# The licences of what is inside.
if(WIN32)
  install(FILES "${PROJECT_SOURCE_DIR}/THIRD-PARTY.md" DESTINATION licenses)
else()
  install(FILES "${PROJECT_SOURCE_DIR}/THIRD-PARTY.md"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/VornLib")
endif()
