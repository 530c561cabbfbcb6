# SPDX-FileCopyrightText: 2026 The telecfg authors
# SPDX-License-Identifier: MIT
# Installs a Qt 5 and a Qt 6 build of telecfg into one prefix and builds a host against
# each: no file may be installed by both, and each host must run on its own Qt.
#   cmake -DQT5_BUILD=build/default -DQT6_BUILD=build/qt6 -DWORK_DIR=... -P side_by_side.cmake
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/run.cmake)

get_filename_component(consumer ${CMAKE_CURRENT_LIST_DIR}/consumer ABSOLUTE)
# Absolute, so the hosts' builds find the prefix wherever they run.
get_filename_component(WORK_DIR ${WORK_DIR} ABSOLUTE)
get_filename_component(QT5_BUILD ${QT5_BUILD} ABSOLUTE)
get_filename_component(QT6_BUILD ${QT6_BUILD} ABSOLUTE)
file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)
set(installed "")
foreach(build QT5_BUILD QT6_BUILD)
    # The Designer plugins too: each under its own Qt's plugin folder within the prefix.
    set(files "")
    foreach(component runtime dev tools designer Unspecified)
        run(${CMAKE_COMMAND} --install ${${build}} --prefix ${prefix} --component ${component})
        if(EXISTS ${${build}}/install_manifest_${component}.txt)
            file(STRINGS ${${build}}/install_manifest_${component}.txt listed)
            list(APPEND files ${listed})
        endif()
    endforeach()
    foreach(file ${files})
        if(file IN_LIST installed)
            message(FATAL_ERROR "both builds install ${file}")
        endif()
    endforeach()
    list(APPEND installed ${files})
endforeach()

set(ENV{QT_QPA_PLATFORM} offscreen)
set(packages telecfg telecfg-qt6)
set(majors 5 6)
foreach(package major IN ZIP_LISTS packages majors)
    run(${CMAKE_COMMAND} -S ${consumer} -B ${WORK_DIR}/${package} -G Ninja
        -DCMAKE_PREFIX_PATH=${prefix} -DTELECFG_PACKAGE=${package})
    run(${CMAKE_COMMAND} --build ${WORK_DIR}/${package})
    run(${WORK_DIR}/${package}/telecfg_consumer)
    if(NOT last_output MATCHES "^Qt ${major}\\.")
        message(FATAL_ERROR "the ${package} host runs on another Qt: ${last_output}")
    endif()
    message(STATUS "${package}: ${last_output}")
endforeach()
