# SPDX-FileCopyrightText: 2026 The telecfg authors
# SPDX-License-Identifier: MIT
# Runs Doxygen over the Doxyfile the build configured (the `docs` target). Doxygen is found
# here, at build time, so a build folder configured before the release tools were installed
# still builds the reference once they are.
#   cmake -DDOXYFILE=<build>/docs/Doxyfile -P cmake/TelecfgDocs.cmake
find_program(TELECFG_DOXYGEN doxygen)
if(NOT TELECFG_DOXYGEN)
  message(FATAL_ERROR "docs: Doxygen is not installed; `scripts/setup-deps release` installs it")
endif()
get_filename_component(output ${DOXYFILE} DIRECTORY)
file(REMOVE ${output}/warnings.log)
execute_process(COMMAND ${TELECFG_DOXYGEN} ${DOXYFILE} RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "docs: Doxygen failed (${result}); see ${output}/warnings.log")
endif()
