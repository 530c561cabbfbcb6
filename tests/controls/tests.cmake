# SPDX-FileCopyrightText: 2026 The telecfg authors
# SPDX-License-Identifier: MIT
# The value controls' suite reads numbers through the system locale, which the toolkit takes
# from the environment at start-up: run it under a point locale and again under a comma one.
set_tests_properties(tst_valuecontrols PROPERTIES ENVIRONMENT
    "${telecfg_test_environment};LC_ALL=C;LANG=C")
add_test(NAME tst_valuecontrols_comma COMMAND tst_valuecontrols)
set_tests_properties(tst_valuecontrols_comma PROPERTIES ENVIRONMENT
    "${telecfg_test_environment};LC_ALL=pl_PL.UTF-8;LANG=pl_PL.UTF-8")

# The default images come from their own optional library.
target_link_libraries(tst_defaultimages PRIVATE telecfg_images)
# Again on a screen of device pixel ratio 2, where the sharp variants are drawn.
add_test(NAME tst_defaultimages_scale2 COMMAND tst_defaultimages)
set_tests_properties(tst_defaultimages_scale2 PROPERTIES ENVIRONMENT
    "${telecfg_test_environment};QT_SCALE_FACTOR=2")
