# SPDX-FileCopyrightText: 2026 The telecfg authors
# SPDX-License-Identifier: MIT
# The table's source file is generated from its data; this keeps the two from drifting apart.
# To update the table: edit telecfg/network/data/e212-operators.tsv, then
#   cmake --build --preset default --target update-countrytable
set(telecfg_country_data ${PROJECT_SOURCE_DIR}/telecfg/network/data/e212-operators.tsv)
set(telecfg_country_source ${PROJECT_SOURCE_DIR}/telecfg/network/countrytable_data.cpp)

add_executable(countrytable-gen ${PROJECT_SOURCE_DIR}/tools/countrytable-gen/countrytable-gen.cpp)
telecfg_warnings(countrytable-gen)

add_custom_target(update-countrytable
    COMMAND countrytable-gen ${telecfg_country_data} ${telecfg_country_source}
    COMMENT "Writing telecfg/network/countrytable_data.cpp from the operator data")

add_test(NAME countrytable_data_current
    COMMAND countrytable-gen --check ${telecfg_country_data} ${telecfg_country_source})

# The generator refuses data that would build a wrong table.
file(GLOB telecfg_bad_country_data ${CMAKE_CURRENT_LIST_DIR}/gen-rejects/*.tsv)
foreach(bad ${telecfg_bad_country_data})
    get_filename_component(name ${bad} NAME_WE)
    add_test(NAME countrytable_gen_rejects_${name}
        COMMAND countrytable-gen ${bad} ${CMAKE_CURRENT_BINARY_DIR}/rejected_${name}.cpp)
    set_tests_properties(countrytable_gen_rejects_${name} PROPERTIES
        PASS_REGULAR_EXPRESSION "countrytable-gen: [^\n]+: ")
endforeach()

# The compiled table is checked row by row against the data it came from.
target_compile_definitions(tst_network PRIVATE
    TELECFG_COUNTRY_DATA="${telecfg_country_data}")
