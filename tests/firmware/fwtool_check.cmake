# SPDX-FileCopyrightText: 2026 The telecfg authors
# SPDX-License-Identifier: MIT
# Runs the built telecfg-fw on files it wrote itself: every form packs, reads back, verifies
# and unpacks to the payload, and every failure kind leaves with its own exit status.
# Called with -DTOOL=... -DWORK_DIR=...
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})

function(expect_exit status)
    execute_process(COMMAND ${TOOL} ${ARGN} WORKING_DIRECTORY ${WORK_DIR}
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
    if(NOT result EQUAL status)
        message(FATAL_ERROR "telecfg-fw ${ARGN}: exit ${result}, expected ${status}\n${output}${errors}")
    endif()
    set(last_output "${output}${errors}" PARENT_SCOPE)
endfunction()

function(expect_same a b)
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${WORK_DIR}/${a} ${WORK_DIR}/${b}
        RESULT_VARIABLE differ)
    if(differ)
        message(FATAL_ERROR "${a} and ${b} differ")
    endif()
endfunction()

# 5100 bytes of payload: three pages, the last filled up with spaces by --pad 32.
string(REPEAT "telecfg firmware " 300 payload)
file(WRITE ${WORK_DIR}/raw.bin "${payload}")
string(REPEAT " " 1044 fill)
file(WRITE ${WORK_DIR}/padded.bin "${payload}${fill}")

foreach(form compressed plain sealed)
    expect_exit(0 pack raw.bin -o ${form}.fw --form ${form} --hw1 0x1234 --hw2 7
                --name demo.bin --date 2026-01-02 --user serwis --pad 32)
    expect_exit(0 info ${form}.fw)
    if(NOT last_output MATCHES "Forma: ${form}" OR NOT last_output MATCHES "Nazwa: demo\n")
        message(FATAL_ERROR "info of ${form}.fw:\n${last_output}")
    endif()
    expect_exit(0 info ${form}.fw --json)
    if(NOT last_output MATCHES "\"verified\": true" OR NOT last_output MATCHES "\"pageCount\": 3")
        message(FATAL_ERROR "info --json of ${form}.fw:\n${last_output}")
    endif()
    expect_exit(0 verify ${form}.fw)
    expect_exit(0 verify ${form}.fw --hw1 0x1234)
    expect_exit(15 verify ${form}.fw --hw1 0x99)
    expect_exit(0 unpack ${form}.fw -o ${form}.out)
    expect_exit(15 unpack ${form}.fw -o ${form}.other --hw1 1)
    expect_same(${form}.out ${form}.other)
    expect_exit(0 unpack ${form}.fw --raw -o ${form}.raw)
    expect_same(${form}.raw padded.bin)
endforeach()
# An odd page count carries no padding, so the host's view of both is the image alone.
expect_same(plain.out sealed.out)

# Failure kinds.
expect_exit(1)
expect_exit(1 bogus)
expect_exit(0 pack --help)
expect_exit(1 pack raw.bin)
expect_exit(1 pack raw.bin -o x.fw --form zipped)
expect_exit(1 pack raw.bin -o x.fw --pad 256)
expect_exit(1 pack raw.bin -o x.fw --hw1 0x10000)
expect_exit(1 verify plain.fw --hw1 twelve)
expect_exit(1 info a.fw b.fw)
expect_exit(2 info missing.fw)
expect_exit(2 pack missing.bin -o x.fw)
expect_exit(3 unpack plain.fw -o no/such/dir/out.bin)
string(REPEAT "x" 491521 large)
file(WRITE ${WORK_DIR}/large.bin "${large}")
expect_exit(4 pack large.bin -o large.fw)
file(WRITE ${WORK_DIR}/short.fw "not a firmware file")
expect_exit(11 verify short.fw)
expect_exit(6 info short.fw)
expect_exit(6 unpack short.fw --raw -o short.out)
string(REPEAT "0123456789abcdef" 10 text)
file(WRITE ${WORK_DIR}/text.fw "${text}")
expect_exit(13 verify text.fw)
