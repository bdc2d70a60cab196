# The package for Debian: `tools/package` builds it. docs/dependencies.md says what each package is for that is not linked.
set(TEMBRA_MAINTAINER "The Tembra authors <tembra@tembra.invalid>" CACHE STRING
  "Who stands behind the package, with an address")

set(CPACK_GENERATOR DEB)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PACKAGE_NAME tembra)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "shelf for screenshots and files at the top edge of the screen")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER ${TEMBRA_MAINTAINER})
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Rest the pointer at the top edge of the screen and a shelf drops down with
the screenshots, live, as the desktop's own screenshot tool writes them, and
with a tray for files. New captures are announced and put on the clipboard.
.
The editor draws on a screenshot and keeps the original. The text of an image
is read with Tesseract, on this computer.")

# What is linked, and the tables of icons; then what is loaded or asked at run time where it is there.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS hicolor-icon-theme)
string(CONCAT CPACK_DEBIAN_PACKAGE_RECOMMENDS
  "dconf-gsettings-backend | gsettings-backend, default-dbus-session-bus | dbus-session-bus, fonts-inter, "
  "gstreamer1.0-libav, gstreamer1.0-plugins-good, libcanberra0, libheif1, qt6-image-formats-plugins, "
  "qt6-translations-l10n, qt6-wayland, xdg-utils, tesseract-ocr-eng")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "ffmpegthumbnailer, sound-theme-freedesktop, xdg-desktop-portal")

include(CPack)

# What Debian's policy wants beside the program.
if(TEMBRA_PACKAGE_MANAGED)
  find_program(GZIP gzip REQUIRED)
  set(folder ${PROJECT_BINARY_DIR}/package)
  execute_process(COMMAND date --utc --rfc-email --date=${TEMBRA_RELEASE_DATE}
    OUTPUT_VARIABLE TEMBRA_RELEASE_TIME OUTPUT_STRIP_TRAILING_WHITESPACE)
  # Its heading and its copyright are said before; an empty line is a full stop there.
  file(READ ${PROJECT_SOURCE_DIR}/LICENSE TEMBRA_LICENSE_TEXT)
  string(REGEX REPLACE "^.*Copyright[^\n]*\n\n" "" TEMBRA_LICENSE_TEXT "${TEMBRA_LICENSE_TEXT}")
  string(STRIP "${TEMBRA_LICENSE_TEXT}" TEMBRA_LICENSE_TEXT)
  string(REPLACE "\n\n" "\n.\n" TEMBRA_LICENSE_TEXT "${TEMBRA_LICENSE_TEXT}")
  string(REPLACE "\n" "\n " TEMBRA_LICENSE_TEXT " ${TEMBRA_LICENSE_TEXT}")
  configure_file(${PROJECT_SOURCE_DIR}/packaging/debian/changelog.in ${folder}/changelog @ONLY)
  configure_file(${PROJECT_SOURCE_DIR}/packaging/debian/copyright.in ${folder}/copyright @ONLY)
  add_custom_command(OUTPUT ${folder}/changelog.gz ${folder}/NEWS.gz
    COMMAND ${GZIP} -9nc ${folder}/changelog > ${folder}/changelog.gz
    COMMAND ${GZIP} -9nc ${PROJECT_SOURCE_DIR}/CHANGELOG.md > ${folder}/NEWS.gz
    DEPENDS ${folder}/changelog ${PROJECT_SOURCE_DIR}/CHANGELOG.md VERBATIM)
  add_custom_target(tembra_package_documents ALL DEPENDS ${folder}/changelog.gz ${folder}/NEWS.gz)
  install(FILES ${folder}/changelog.gz ${folder}/NEWS.gz ${folder}/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
endif()
