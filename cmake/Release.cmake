# The day of the version, as the metadata and the package tell it: from the change log, else that of the commit at which
# it was configured.
set(changes ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${changes})
file(STRINGS ${changes} released REGEX "^## ${PROJECT_VERSION} \\([0-9-]+\\)$")
if(released MATCHES "\\(([0-9-]+)\\)")
  set(TEMBRA_RELEASE_DATE ${CMAKE_MATCH_1})
  set(TEMBRA_RELEASE_TYPE stable)
else()
  set(TEMBRA_RELEASE_TYPE development)
  find_package(Git QUIET)
  if(GIT_EXECUTABLE)
    execute_process(COMMAND ${GIT_EXECUTABLE} -C ${PROJECT_SOURCE_DIR} log -1 --format=%cs
      OUTPUT_VARIABLE TEMBRA_RELEASE_DATE OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
  endif()
  if(NOT TEMBRA_RELEASE_DATE)
    string(TIMESTAMP TEMBRA_RELEASE_DATE "%Y-%m-%d" UTC)
  endif()
endif()
