# SPDX-FileCopyrightText: 2026 The telecfg authors
# SPDX-License-Identifier: MIT
add_test(NAME layering COMMAND ${CMAKE_COMMAND} -DSOURCE_DIR=${PROJECT_SOURCE_DIR}
    -P ${CMAKE_CURRENT_LIST_DIR}/layering_check.cmake)

# Every C++ block of README.md is compiled as it stands, one translation unit each, against
# the library and the minimal example's form (ui_form.h); the test builds them.
file(READ ${PROJECT_SOURCE_DIR}/README.md telecfg_readme)
# A list splits at semicolons: the code's own are kept apart until each block is written.
string(REPLACE ";" "@semicolon@" telecfg_readme "${telecfg_readme}")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/README.md)
string(REGEX MATCHALL "```cpp\n[^`]*```" telecfg_readme_blocks "${telecfg_readme}")
set(telecfg_readme_sources "")
set(telecfg_readme_index 0)
foreach(block IN LISTS telecfg_readme_blocks)
    math(EXPR telecfg_readme_index "${telecfg_readme_index} + 1")
    string(REGEX REPLACE "^```cpp\n(.*)```$" "\\1" code "${block}")
    set(source ${CMAKE_CURRENT_BINARY_DIR}/readme/snippet${telecfg_readme_index}.cpp)
    string(REPLACE "@semicolon@" ";" code "${code}")
    file(WRITE ${source}.new "${code}")
    configure_file(${source}.new ${source} COPYONLY)
    list(APPEND telecfg_readme_sources ${source})
endforeach()
add_library(readme_snippets OBJECT EXCLUDE_FROM_ALL ${telecfg_readme_sources}
    ${PROJECT_SOURCE_DIR}/examples/minimal/form.ui)
set_target_properties(readme_snippets PROPERTIES AUTOUIC ON AUTOMOC ON
    AUTOUIC_SEARCH_PATHS ${PROJECT_SOURCE_DIR}/examples/minimal)
target_link_libraries(readme_snippets PRIVATE telecfg::telecfg telecfg::images)
telecfg_warnings(readme_snippets)
add_test(NAME readme_snippets
    COMMAND ${CMAKE_COMMAND} --build ${CMAKE_BINARY_DIR} --target readme_snippets)
# Building the snippets brings an out-of-date library up to date first: alone, so that no
# other suite has its library relinked under it.
set_tests_properties(readme_snippets PROPERTIES RUN_SERIAL TRUE)
