# Firmware: the checksum suite compares with zlib's CRC-32.
find_package(ZLIB REQUIRED)
target_link_libraries(tst_checksums PRIVATE ZLIB::ZLIB)

# The command-line tool, run on files it wrote itself.
# The tool target is defined after the tests directory; generator expressions resolve later.
if(TELECFG_BUILD_TOOLS)
    add_test(NAME telecfg_fw_tool
        COMMAND ${CMAKE_COMMAND} -DTOOL=$<TARGET_FILE:telecfg-fw>
            -DWORK_DIR=${CMAKE_CURRENT_BINARY_DIR}/fwtool
            -P ${CMAKE_CURRENT_LIST_DIR}/fwtool_check.cmake)
endif()
