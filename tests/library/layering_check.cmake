# SPDX-FileCopyrightText: 2026 The telecfg authors
# SPDX-License-Identifier: MIT
# The library's folders depend one way, down: config on nothing, controls on config,
# collections on controls, config and network, the form level on everything; nothing but the
# form level includes it. Fails naming every include that points the wrong way.
#   cmake -DSOURCE_DIR=<repository root> -P layering_check.cmake
cmake_minimum_required(VERSION 3.16)

set(allowed_config config)
set(allowed_controls config controls)
set(allowed_collections config controls collections network)
set(allowed_form config controls collections network dialogs form)
set(allowed_firmware firmware)
set(allowed_network network)
set(allowed_dialogs config network dialogs)
set(allowed_import config network dialogs import)

set(wrong "")
foreach(folder config controls collections form firmware network dialogs import)
    file(GLOB_RECURSE files ${SOURCE_DIR}/telecfg/${folder}/*.h ${SOURCE_DIR}/telecfg/${folder}/*.cpp)
    foreach(file ${files})
        file(STRINGS ${file} includes REGEX "^#include \"telecfg/[a-z]+/")
        foreach(line ${includes})
            string(REGEX REPLACE "^#include \"telecfg/([a-z]+)/.*" "\\1" target "${line}")
            if(NOT target IN_LIST allowed_${folder})
                file(RELATIVE_PATH shown ${SOURCE_DIR} ${file})
                string(APPEND wrong "\n  ${shown}: ${line}")
            endif()
        endforeach()
    endforeach()
endforeach()
if(wrong)
    message(FATAL_ERROR "layering: includes that point the wrong way:${wrong}")
endif()
message(STATUS "layering: every include points down")
