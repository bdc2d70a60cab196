# Run at each build, as a script with SOURCE, OUTPUT and perhaps GIT: writes a header that names the commit which is
# built, and touches it only when that is another one.
set(archived "$Format:%h$")
set(commit "")
if(GIT AND EXISTS ${SOURCE}/.git)
  execute_process(COMMAND ${GIT} -C ${SOURCE} describe --always --abbrev=7 --dirty=+ --exclude=*
    OUTPUT_VARIABLE commit OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
elseif(NOT archived MATCHES "Format")
  # `git archive` filled it in.
  set(commit ${archived})
endif()
file(CONFIGURE OUTPUT ${OUTPUT} CONTENT "#pragma once\n\n#define TEMBRA_COMMIT \"${commit}\"\n")
