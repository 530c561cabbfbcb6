# SPDX-FileCopyrightText: 2026 The telecfg authors
# SPDX-License-Identifier: MIT
# Firmware: the checksum suite compares with zlib's CRC-32.
find_package(ZLIB REQUIRED)
target_link_libraries(tst_checksums PRIVATE ZLIB::ZLIB)

# The command-line tool, run on files it wrote itself; its inspection of damaged files; its
# Polish catalogue against its sources.
if(TARGET telecfg-fw)
    add_test(NAME telecfg_fw_tool
        COMMAND ${CMAKE_COMMAND} -DTOOL=$<TARGET_FILE:telecfg-fw>
            -DWORK_DIR=${CMAKE_CURRENT_BINARY_DIR}/fwtool -DVERSION=${PROJECT_VERSION}
            -P ${CMAKE_CURRENT_LIST_DIR}/fwtool_check.cmake)
    target_link_libraries(tst_fwtool PRIVATE telecfg_fwtool)
    telecfg_add_catalogue_check(NAME telecfg_fw_catalogue
        TS ${PROJECT_SOURCE_DIR}/translations/telecfg-fw_pl.ts
        SOURCES ${PROJECT_SOURCE_DIR}/tools/telecfg-fw SOURCE_LANGUAGE en TARGET_LANGUAGE pl)
else()
    set_target_properties(tst_fwtool PROPERTIES EXCLUDE_FROM_ALL ON)
    set_tests_properties(tst_fwtool PROPERTIES DISABLED ON)
endif()

# The fuzz targets' entry functions replay the seed corpus the library's own writer makes
# (and any inputs kept under fuzz/corpus) in every build, whatever the compiler.
set(telecfg_fuzz_dir ${PROJECT_SOURCE_DIR}/fuzz)
add_executable(firmware_fuzz_seeds ${telecfg_fuzz_dir}/make_seeds.cpp)
target_link_libraries(firmware_fuzz_seeds PRIVATE telecfg_static)
telecfg_warnings(firmware_fuzz_seeds)
add_test(NAME fuzz_seeds COMMAND firmware_fuzz_seeds ${CMAKE_CURRENT_BINARY_DIR}/fuzzcorpus)
set_tests_properties(fuzz_seeds PROPERTIES FIXTURES_SETUP fuzz_corpus)
foreach(target getfirmwarefromfile recode decode decrypt decrypt1 addencodedfirmware)
    add_executable(replay_${target} ${telecfg_fuzz_dir}/fuzz_${target}.cpp
        ${telecfg_fuzz_dir}/replay_main.cpp)
    target_link_libraries(replay_${target} PRIVATE telecfg_static)
    telecfg_warnings(replay_${target})
    add_test(NAME fuzz_replay_${target} COMMAND replay_${target}
        ${CMAKE_CURRENT_BINARY_DIR}/fuzzcorpus/${target} ${telecfg_fuzz_dir}/corpus/${target})
    set_tests_properties(fuzz_replay_${target} PROPERTIES FIXTURES_REQUIRED fuzz_corpus)
endforeach()
if(TARGET telecfg_fwtool)
    add_executable(replay_fileinspection ${telecfg_fuzz_dir}/fuzz_fileinspection.cpp
        ${telecfg_fuzz_dir}/replay_main.cpp)
    target_link_libraries(replay_fileinspection PRIVATE telecfg_fwtool)
    telecfg_warnings(replay_fileinspection)
    add_test(NAME fuzz_replay_fileinspection COMMAND replay_fileinspection
        ${CMAKE_CURRENT_BINARY_DIR}/fuzzcorpus/fileinspection
        ${telecfg_fuzz_dir}/corpus/fileinspection)
    set_tests_properties(fuzz_replay_fileinspection PROPERTIES FIXTURES_REQUIRED fuzz_corpus)
endif()
