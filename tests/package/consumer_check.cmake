# SPDX-FileCopyrightText: 2026 The telecfg authors
# SPDX-License-Identifier: MIT
# Script mode: installs telecfg into a scratch prefix and builds tiny hosts against it.
include(${CMAKE_CURRENT_LIST_DIR}/run.cmake)

file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)
# Everything but the Designer plugin, which goes to Qt's own folder (staged below).
foreach(component runtime dev tools Unspecified)
    run(${CMAKE_COMMAND} --install ${TELECFG_BUILD_DIR} --prefix ${prefix} --component ${component})
endforeach()
if(DESIGNER_PLUGIN_DIR)
    set(ENV{DESTDIR} ${WORK_DIR}/stage)
    run(${CMAKE_COMMAND} --install ${TELECFG_BUILD_DIR} --component designer)
    unset(ENV{DESTDIR})
    file(GLOB plugin ${WORK_DIR}/stage${DESIGNER_PLUGIN_DIR}/*${PACKAGE}_designer*)
    if(NOT plugin)
        message(FATAL_ERROR "the Designer plugin is not installed in ${DESIGNER_PLUGIN_DIR}")
    endif()
endif()

foreach(private licence_p.h firmwarekeys.h countrycode.h boundcontrol.h)
    file(GLOB_RECURSE leaked ${prefix}/include/*/${private})
    if(leaked)
        message(FATAL_ERROR "private header installed: ${leaked}")
    endif()
endforeach()

# A sanitized library needs a sanitized host.
set(flags "")
if(SANITIZE)
    set(flags "-DCMAKE_CXX_FLAGS=-fsanitize=${SANITIZE}"
              "-DCMAKE_EXE_LINKER_FLAGS=-fsanitize=${SANITIZE}")
endif()

# 1. find_package against the installed tree.
run(${CMAKE_COMMAND} -S ${CONSUMER_DIR} -B ${WORK_DIR}/consumer -G Ninja
    -DCMAKE_PREFIX_PATH=${prefix} -DTELECFG_PACKAGE=${PACKAGE} -DCMAKE_BUILD_TYPE=Release ${flags})
run(${CMAKE_COMMAND} --build ${WORK_DIR}/consumer)
run(${WORK_DIR}/consumer/telecfg_consumer)
message(STATUS "find_package consumer: ${last_output}")
if(NOT last_output MATCHES "^Qt ${QT_MAJOR}\\.[0-9.]+, telecfg ${VERSION} ")
    message(FATAL_ERROR "the ${PACKAGE} host runs on another Qt or telecfg than ${VERSION}")
endif()
# The SONAME carries the major version, as the CMake package's SameMajorVersion promises.
file(GLOB_RECURSE libs ${prefix}/lib*/lib${PACKAGE}.so.*)
string(REGEX MATCH "^[0-9]+" major "${VERSION}")
find_program(READELF readelf REQUIRED)
list(GET libs 0 lib)
run(${READELF} -d ${lib})
if(NOT last_output MATCHES "\\[lib${PACKAGE}\\.so\\.${major}\\]")
    message(FATAL_ERROR "the SONAME of ${lib} is not lib${PACKAGE}.so.${major}:\n${last_output}")
endif()

# 2. pkg-config names the same library and headers.
find_program(PKG_CONFIG pkg-config REQUIRED)
set(ENV{PKG_CONFIG_PATH} ${prefix}/lib/pkgconfig:${prefix}/lib/x86_64-linux-gnu/pkgconfig)
run(${PKG_CONFIG} --libs ${PACKAGE})
if(NOT last_output MATCHES "-l${PACKAGE}( |\n|$)")
    message(FATAL_ERROR "${PACKAGE}.pc does not link ${PACKAGE}: ${last_output}")
endif()
run(${PKG_CONFIG} --modversion ${PACKAGE})
string(STRIP "${last_output}" pc_version)
if(NOT pc_version STREQUAL VERSION)
    message(FATAL_ERROR "${PACKAGE}.pc says version ${pc_version}, the project is ${VERSION}")
endif()
run(${PKG_CONFIG} --variable=includedir ${PACKAGE})
string(STRIP "${last_output}" includedir)
file(REAL_PATH "${includedir}" includedir)
if(NOT EXISTS ${includedir}/telecfg/config/mainconfig.h)
    message(FATAL_ERROR "${PACKAGE}.pc points at ${includedir}, which has no telecfg headers")
endif()

# 3. add_subdirectory: tests, benchmarks and examples stay off for a host that embeds it.
file(MAKE_DIRECTORY ${WORK_DIR}/embed)
file(WRITE ${WORK_DIR}/embed/CMakeLists.txt
    "cmake_minimum_required(VERSION 3.25)\nproject(embedding_host CXX)\n"
    "add_subdirectory(${TELECFG_SOURCE_DIR} telecfg)\n"
    "add_executable(embedding_host ${CONSUMER_DIR}/main.cpp)\n"
    "target_link_libraries(embedding_host PRIVATE telecfg::telecfg telecfg::images)\n")
run(${CMAKE_COMMAND} -S ${WORK_DIR}/embed -B ${WORK_DIR}/embed/build -G Ninja
    -DTELECFG_QT_MAJOR_VERSION=${QT_MAJOR})
run(${CMAKE_COMMAND} --build ${WORK_DIR}/embed/build --target help)
if(last_output MATCHES "tst_|bench_|telecfg-demo")
    message(FATAL_ERROR "an embedded telecfg builds its own tests or examples:\n${last_output}")
endif()
