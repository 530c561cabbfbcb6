# SPDX-FileCopyrightText: 2026 The telecfg authors
# SPDX-License-Identifier: MIT
# The library's English catalogue: its suite reads the catalogue and leaves the English
# dialogs as PNG files under english-dialogs/; a check fails when the catalogue no longer
# matches the library's sources; the demo renders its pages in English.
target_compile_definitions(tst_translations PRIVATE
    TELECFG_CATALOGUE="${PROJECT_SOURCE_DIR}/translations/telecfg_en.ts"
    TELECFG_SHOTS="${CMAKE_CURRENT_BINARY_DIR}/english-dialogs")
telecfg_add_catalogue_check(NAME telecfg_catalogue
    TS ${PROJECT_SOURCE_DIR}/translations/telecfg_en.ts
    SOURCES ${PROJECT_SOURCE_DIR}/telecfg SOURCE_LANGUAGE pl TARGET_LANGUAGE en)
if(TARGET telecfg-demo)
    add_test(NAME demo_english_screenshots
        COMMAND telecfg-demo --lang en --screenshot ${CMAKE_CURRENT_BINARY_DIR}/demo-english)
    set_tests_properties(demo_english_screenshots PROPERTIES
        ENVIRONMENT "${telecfg_test_environment}")
endif()
