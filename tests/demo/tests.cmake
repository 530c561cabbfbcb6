# SPDX-FileCopyrightText: 2026 The telecfg authors
# SPDX-License-Identifier: MIT
# The demo configurator renders every page of its sample table, and refuses a broken table.
if(TARGET telecfg-demo)
    add_test(NAME demo_screenshots
        COMMAND ${CMAKE_COMMAND} -DDEMO=$<TARGET_FILE:telecfg-demo>
            -DOUT=${CMAKE_CURRENT_BINARY_DIR}/demo-shots -DPAGES=7 -DDIALOGS=6
            -P ${CMAKE_CURRENT_LIST_DIR}/screenshots_check.cmake)
    add_test(NAME demo_bad_table
        COMMAND telecfg-demo --table ${CMAKE_CURRENT_LIST_DIR}/tests.cmake --screenshot ${CMAKE_CURRENT_BINARY_DIR}/none)
    set_tests_properties(demo_bad_table PROPERTIES WILL_FAIL TRUE)
    set_tests_properties(demo_screenshots demo_bad_table PROPERTIES
        ENVIRONMENT "${telecfg_test_environment}")
    # The same pages in a dark palette (with the standard and the dark state colours) and on
    # a screen of device pixel ratio 2, to be looked at.
    foreach(look "dark;--dark" "dark-states;--dark;--dark-states" "scale2;" "scale2-dark;--dark")
        list(POP_FRONT look name)
        add_test(NAME demo_screenshots_${name}
            COMMAND ${CMAKE_COMMAND} -DDEMO=$<TARGET_FILE:telecfg-demo> "-DOPTIONS=${look}"
                -DOUT=${CMAKE_CURRENT_BINARY_DIR}/demo-shots-${name} -DPAGES=7 -DDIALOGS=6
                -P ${CMAKE_CURRENT_LIST_DIR}/screenshots_check.cmake)
        set(environment "${telecfg_test_environment}")
        if(name MATCHES "^scale2")
            list(APPEND environment QT_SCALE_FACTOR=2)
        endif()
        set_tests_properties(demo_screenshots_${name} PROPERTIES ENVIRONMENT "${environment}")
    endforeach()
endif()

# The minimal host comes up with every cfg_ control of its form bound and renders it.
if(TARGET telecfg-minimal)
    add_test(NAME minimal_screenshot
        COMMAND telecfg-minimal --screenshot ${CMAKE_CURRENT_BINARY_DIR}/minimal.png)
    set_tests_properties(minimal_screenshot PROPERTIES
        ENVIRONMENT "${telecfg_test_environment}" FAIL_REGULAR_EXPRESSION "telecfg-minimal:")
endif()
