# SPDX-FileCopyrightText: 2026 The telecfg authors
# SPDX-License-Identifier: MIT
# Packaging cannot rot silently: install the built tree and build a host against it with
# find_package (and pkg-config), and take telecfg in with add_subdirectory as hosts may.
add_test(NAME package_consumer
    COMMAND ${CMAKE_COMMAND}
        -DTELECFG_BUILD_DIR=${PROJECT_BINARY_DIR}
        -DTELECFG_SOURCE_DIR=${PROJECT_SOURCE_DIR}
        -DWORK_DIR=${CMAKE_CURRENT_BINARY_DIR}/package
        -DCONSUMER_DIR=${CMAKE_CURRENT_LIST_DIR}/consumer
        -DSANITIZE=${TELECFG_SANITIZE}
        -DDESIGNER_PLUGIN_DIR=$<$<TARGET_EXISTS:telecfg_designer>:${TELECFG_DESIGNER_PLUGIN_DIR}>
        -DPLUGIN_CHECK=$<$<TARGET_EXISTS:designer_plugincheck>:$<TARGET_FILE:designer_plugincheck>>
        -DPACKAGE=${TELECFG_NAME}
        -DQT_MAJOR=${TELECFG_QT_MAJOR_VERSION}
        -DVERSION=${PROJECT_VERSION}
        -P ${CMAKE_CURRENT_LIST_DIR}/consumer_check.cmake)
set_tests_properties(package_consumer PROPERTIES
    ENVIRONMENT "${telecfg_test_environment}" TIMEOUT 600)
