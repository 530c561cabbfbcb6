# SPDX-FileCopyrightText: 2026 The telecfg authors
# SPDX-License-Identifier: MIT
# Translation catalogues (translations/*.ts): compiled with lrelease at build time and
# embedded in a target's resources, so the program that carries them opens no file of its
# own; and a check that a catalogue still matches the sources it was extracted from.
# Works with the linguist tools of Qt 5 and of Qt 6, whichever Qt the build uses.
# The tools' imported targets are seen only in the folder that looks for them: each
# function below looks for them where it is called.
macro(telecfg_find_linguist_tools)
    if(DEFINED TELECFG_QT_MAJOR_VERSION)
        set(telecfg_qt_major ${TELECFG_QT_MAJOR_VERSION})
    elseif(TARGET Qt6::Core)
        set(telecfg_qt_major 6)
    else()
        set(telecfg_qt_major 5)
    endif()
    find_package(Qt${telecfg_qt_major} REQUIRED COMPONENTS LinguistTools)
endmacro()

# telecfg_embed_translations(TARGET target NAME resource PREFIX /path TS files...)
# Registers the compiled catalogues at :${PREFIX}/<ts name>.qm under the resource NAME
# (a statically linked program calls Q_INIT_RESOURCE(NAME) or a function that does).
function(telecfg_embed_translations)
    cmake_parse_arguments(arg "" "TARGET;NAME;PREFIX" "TS" ${ARGN})
    telecfg_find_linguist_tools()
    set_source_files_properties(${arg_TS} PROPERTIES OUTPUT_LOCATION ${CMAKE_CURRENT_BINARY_DIR}/${arg_NAME})
    if(telecfg_qt_major EQUAL 6)
        qt6_add_translation(qm_files ${arg_TS})
    else()
        qt5_add_translation(qm_files ${arg_TS})
    endif()
    set(qrc ${CMAKE_CURRENT_BINARY_DIR}/${arg_NAME}.qrc)
    set(content "<RCC>\n  <qresource prefix=\"${arg_PREFIX}\">\n")
    foreach(qm ${qm_files})
        get_filename_component(qm_name ${qm} NAME)
        string(APPEND content "    <file alias=\"${qm_name}\">${qm}</file>\n")
    endforeach()
    string(APPEND content "  </qresource>\n</RCC>\n")
    file(CONFIGURE OUTPUT ${qrc} CONTENT "${content}")
    set(cpp ${CMAKE_CURRENT_BINARY_DIR}/qrc_${arg_NAME}.cpp)
    add_custom_command(OUTPUT ${cpp}
        COMMAND Qt${telecfg_qt_major}::rcc --name ${arg_NAME} --output ${cpp} ${qrc}
        DEPENDS ${qrc} ${qm_files} VERBATIM)
    set_source_files_properties(${cpp} PROPERTIES SKIP_AUTOGEN ON)
    target_sources(${arg_TARGET} PRIVATE ${cpp})
endfunction()

# telecfg_add_catalogue_check(NAME test TS file SOURCES dirs... SOURCE_LANGUAGE l TARGET_LANGUAGE l)
# A test that extracts the texts anew into a copy of the catalogue and fails when anything
# changed (a text new or changed in the sources, an entry the sources no longer have) or the
# catalogue holds an unfinished or obsolete entry.
function(telecfg_add_catalogue_check)
    cmake_parse_arguments(arg "" "NAME;TS;SOURCE_LANGUAGE;TARGET_LANGUAGE" "SOURCES" ${ARGN})
    telecfg_find_linguist_tools()
    string(REPLACE ";" "," sources "${arg_SOURCES}")
    add_test(NAME ${arg_NAME}
        COMMAND ${CMAKE_COMMAND} -DLUPDATE=$<TARGET_FILE:Qt${telecfg_qt_major}::lupdate>
            -DLCONVERT=$<TARGET_FILE:Qt${telecfg_qt_major}::lconvert>
            -DTS=${arg_TS} -DSOURCES=${sources} -DSOURCE_LANGUAGE=${arg_SOURCE_LANGUAGE}
            -DTARGET_LANGUAGE=${arg_TARGET_LANGUAGE}
            -DWORK_DIR=${CMAKE_CURRENT_BINARY_DIR}/${arg_NAME}
            -P ${PROJECT_SOURCE_DIR}/cmake/TelecfgCatalogueCheck.cmake)
endfunction()
