# Installing as a desktop program (FHS and freedesktop locations) and the Debian package.
# Included from the top-level CMakeLists.txt after the targets and enable_testing().
include(GNUInstallDirs)

set(VENTRIX_HELP_INSTALL_DIR ${CMAKE_INSTALL_DATADIR}/ventrix/help)

if(VENTRIX_BUILD_UI)
  # The program finds its installed help relative to its own bin directory, so the same binary
  # works under any prefix (/usr from the package, a staging directory, /usr/local); run from the
  # build tree it falls back to the source tree's help/.
  file(RELATIVE_PATH help_from_bin /prefix/${CMAKE_INSTALL_BINDIR} /prefix/${VENTRIX_HELP_INSTALL_DIR})
  target_compile_definitions(ventrix_io PRIVATE
    VENTRIX_HELP_FROM_BIN="${help_from_bin}"
    VENTRIX_SOURCE_HELP_DIR="${PROJECT_SOURCE_DIR}/help")

  install(TARGETS ventrix ventrix-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  install(FILES ${PROJECT_SOURCE_DIR}/packaging/ventrix.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES ${PROJECT_SOURCE_DIR}/packaging/ventrix.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
  if(IS_DIRECTORY ${PROJECT_SOURCE_DIR}/help)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/help/ DESTINATION ${VENTRIX_HELP_INSTALL_DIR})
  endif()

  if(VENTRIX_BUILD_TESTS)
    # Installs into a staging directory and checks that every installed piece is in place.
    find_program(DESKTOP_FILE_VALIDATE desktop-file-validate)
    add_test(NAME InstallLayout COMMAND ${CMAKE_COMMAND}
      -DBUILD_DIR=${PROJECT_BINARY_DIR}
      -DSTAGING_DIR=${PROJECT_BINARY_DIR}/install-check
      -DBINDIR=${CMAKE_INSTALL_BINDIR}
      -DDATADIR=${CMAKE_INSTALL_DATADIR}
      -DDESKTOP_FILE_VALIDATE=${DESKTOP_FILE_VALIDATE}
      -P ${PROJECT_SOURCE_DIR}/tests/install/CheckInstall.cmake)
  endif()
endif()

# ---- Debian package: cpack -G DEB in the build directory gives ventrix_<version>_<arch>.deb
set(VENTRIX_PACKAGE_MAINTAINER "Ventrix maintainers <maintainers@ventrix.invalid>"
  CACHE STRING "Maintainer field of the Debian package")
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ventrix)
set(CPACK_PACKAGE_VENDOR Ventrix)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT ${VENTRIX_PACKAGE_MAINTAINER})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "desktop companion for the X9-410 digital multimeter")
set(CPACK_PACKAGE_DESCRIPTION
  "Ventrix reads the X9-410 multimeter over its RS-232 link and shows each\n\
reading as a virtual LCD with its annunciators, a needle on an analogue dial\n\
and a running graph. It logs up to 432,000 samples, saves the log as text,\n\
graph files and spreadsheets, and prints the graph. The package also holds\n\
ventrix-cli, a virtual meter on a pseudo-terminal and a decoder for captured\n\
byte streams.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION electronics)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
# The shared-library dependencies come from dpkg-shlibdeps; the seven-segment font is only
# recommended, as the LCD falls back to a plain font without it.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS fonts-dseg)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
