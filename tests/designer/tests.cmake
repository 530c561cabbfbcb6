# SPDX-FileCopyrightText: 2026 The telecfg authors
# SPDX-License-Identifier: MIT
# The Designer plugin as Designer sees it: loaded through QPluginLoader, with the shared
# library it links. The check links neither telecfg nor the test support, so that the
# widgets it meets are the plugin's own.
if(TARGET telecfg_designer)
    find_package(${TELECFG_QT} ${TELECFG_QT_MINIMUM} REQUIRED COMPONENTS UiPlugin Test)
    add_executable(designer_plugincheck ${CMAKE_CURRENT_LIST_DIR}/plugincheck.cpp)
    set_target_properties(designer_plugincheck PROPERTIES AUTOMOC ON)
    target_link_libraries(designer_plugincheck PRIVATE Qt::UiPlugin Qt::Widgets Qt::Test)
    telecfg_warnings(designer_plugincheck)
    add_dependencies(designer_plugincheck telecfg_designer)
    add_test(NAME designer_plugin COMMAND designer_plugincheck)
    set_tests_properties(designer_plugin PROPERTIES ENVIRONMENT
        "${telecfg_test_environment};TELECFG_DESIGNER_PLUGIN=$<TARGET_FILE:telecfg_designer>")
endif()
