# SPDX-FileCopyrightText: 2026 The telecfg authors
# SPDX-License-Identifier: MIT
# The two-value dialog's fields read numbers through the system locale, which the toolkit
# takes from the environment at start-up: run the suite under a point locale and again under
# a comma one, each telling the separator it must see.
set_tests_properties(tst_dialogs PROPERTIES ENVIRONMENT
    "${telecfg_test_environment};LC_ALL=C;LANG=C;TELECFG_TEST_DECIMAL_POINT=.")
add_test(NAME tst_dialogs_comma COMMAND tst_dialogs)
set_tests_properties(tst_dialogs_comma PROPERTIES ENVIRONMENT
    "${telecfg_test_environment};LC_ALL=pl_PL.UTF-8;LANG=pl_PL.UTF-8;TELECFG_TEST_DECIMAL_POINT=,")
