# SPDX-FileCopyrightText: 2026 The telecfg authors
# SPDX-License-Identifier: MIT
# Script mode: installs telecfg into a scratch prefix and builds tiny hosts against it.
include(${CMAKE_CURRENT_LIST_DIR}/run.cmake)

file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)
foreach(component runtime dev tools designer Unspecified)
    run(${CMAKE_COMMAND} --install ${TELECFG_BUILD_DIR} --prefix ${prefix} --component ${component})
endforeach()
# The Designer plugin lies under the prefix and loads from there, as Designer loads it
# through QT_PLUGIN_PATH, with the library it links found relative to itself.
if(DESIGNER_PLUGIN_DIR)
    file(GLOB plugin ${prefix}/${DESIGNER_PLUGIN_DIR}/*${PACKAGE}_designer*)
    if(NOT plugin)
        message(FATAL_ERROR "the Designer plugin is not installed in ${prefix}/${DESIGNER_PLUGIN_DIR}")
    endif()
    get_filename_component(plugins ${prefix}/${DESIGNER_PLUGIN_DIR} DIRECTORY)
    set(ENV{QT_PLUGIN_PATH} ${plugins})
    unset(ENV{LD_LIBRARY_PATH})
    run(${PLUGIN_CHECK})
    unset(ENV{QT_PLUGIN_PATH})
    run(ldd ${plugin})
    if(NOT last_output MATCHES "lib${PACKAGE}\\.so\\.[0-9]+ => ${prefix}/")
        message(FATAL_ERROR "the installed Designer plugin does not load the installed library:\n${last_output}")
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
# A host built with nothing but pkg-config's flags links the default images too.
file(WRITE ${WORK_DIR}/pc_host.cpp
    "#include <telecfg/images/defaultimages.h>\n#include <QFile>\n"
    "int main() { initDefaultImages(); return QFile::exists(\":/images/arrow.png\") ? 0 : 1; }\n")
run(${PKG_CONFIG} --cflags --libs ${PACKAGE})
string(STRIP "${last_output}" pc_flags)
separate_arguments(pc_flags UNIX_COMMAND "${pc_flags}")
if(NOT SANITIZE)
    run(c++ -std=c++17 -fPIC ${WORK_DIR}/pc_host.cpp -o ${WORK_DIR}/pc_host ${pc_flags})
    get_filename_component(libdir ${lib} DIRECTORY)
    set(ENV{LD_LIBRARY_PATH} ${libdir})
    run(${WORK_DIR}/pc_host)
    unset(ENV{LD_LIBRARY_PATH})
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
