# SPDX-FileCopyrightText: 2026 The telecfg authors
# SPDX-License-Identifier: MIT
# The table suite round-trips the demo's sample table, named by its path in the sources.
target_compile_definitions(tst_parametertable PRIVATE
    TELECFG_SAMPLE_TABLE="${PROJECT_SOURCE_DIR}/examples/demo/sample-table.json")
