# Installs the build into a fresh staging directory and checks the installed layout: both
# programs, the help, the desktop entry (valid, naming the installed program and icon) and the
# icon. Run by ctest as: cmake -DBUILD_DIR=... -DSTAGING_DIR=... -DBINDIR=... -DDATADIR=...
#   [-DDESKTOP_FILE_VALIDATE=...] -P CheckInstall.cmake
file(REMOVE_RECURSE ${STAGING_DIR})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${STAGING_DIR}
  RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "cmake --install failed (${result}):\n${output}")
endif()

set(desktop ${STAGING_DIR}/${DATADIR}/applications/ventrix.desktop)
set(expected
  ${STAGING_DIR}/${BINDIR}/ventrix
  ${STAGING_DIR}/${BINDIR}/ventrix-cli
  ${STAGING_DIR}/${DATADIR}/ventrix/help/contents.txt
  ${desktop}
  ${STAGING_DIR}/${DATADIR}/icons/hicolor/scalable/apps/ventrix.svg)
set(missing)
foreach(path IN LISTS expected)
  if(NOT EXISTS ${path})
    list(APPEND missing ${path})
  endif()
endforeach()
if(missing)
  list(JOIN missing "\n  " missingText)
  message(FATAL_ERROR "not installed:\n  ${missingText}")
endif()

# The installed tool runs from its installed place.
execute_process(COMMAND ${STAGING_DIR}/${BINDIR}/ventrix-cli --help
  RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT result EQUAL 0 OR NOT output MATCHES "usage: ventrix-cli")
  message(FATAL_ERROR "installed ventrix-cli --help failed (${result}):\n${output}")
endif()

# The desktop entry starts the installed program by name and shows the installed icon.
file(STRINGS ${desktop} execLine REGEX "^Exec=")
file(STRINGS ${desktop} iconLine REGEX "^Icon=")
if(NOT execLine STREQUAL "Exec=ventrix" OR NOT iconLine STREQUAL "Icon=ventrix")
  message(FATAL_ERROR "desktop entry names '${execLine}' and '${iconLine}'")
endif()
if(DESKTOP_FILE_VALIDATE)
  execute_process(COMMAND ${DESKTOP_FILE_VALIDATE} ${desktop}
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0 OR NOT output STREQUAL "")
    message(FATAL_ERROR "desktop-file-validate:\n${output}")
  endif()
endif()
file(REMOVE_RECURSE ${STAGING_DIR})
