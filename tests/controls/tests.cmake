# SPDX-FileCopyrightText: 2026 The telecfg authors
# SPDX-License-Identifier: MIT
# The line edit's patterns and the decimal spin box follow the system locale, which the
# toolkit reads from the environment at start-up: run their suites under a point locale
# and again under a comma one.
foreach(suite tst_cfglineedit tst_cfgdoublespinbox)
    set_tests_properties(${suite} PROPERTIES ENVIRONMENT
        "${telecfg_test_environment};LC_ALL=C;LANG=C")
    add_test(NAME ${suite}_comma COMMAND ${suite})
    set_tests_properties(${suite}_comma PROPERTIES ENVIRONMENT
        "${telecfg_test_environment};LC_ALL=pl_PL.UTF-8;LANG=pl_PL.UTF-8")
endforeach()

# The default images come from their own optional library.
target_link_libraries(tst_defaultimages PRIVATE telecfg_images)
# Again on a screen of device pixel ratio 2, where the sharp variants are drawn.
add_test(NAME tst_defaultimages_scale2 COMMAND tst_defaultimages)
set_tests_properties(tst_defaultimages_scale2 PROPERTIES ENVIRONMENT
    "${telecfg_test_environment};QT_SCALE_FACTOR=2")
