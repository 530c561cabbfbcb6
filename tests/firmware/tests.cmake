# Firmware: the checksum suite compares with zlib's CRC-32.
find_package(ZLIB REQUIRED)
target_link_libraries(tst_checksums PRIVATE ZLIB::ZLIB)
