# SPDX-FileCopyrightText: 2026 The telecfg authors
# SPDX-License-Identifier: MIT
# Fails when a translation catalogue no longer matches its sources. Called by the test that
# telecfg_add_catalogue_check makes, with -DLUPDATE -DLCONVERT -DTS -DSOURCES (comma list)
# -DSOURCE_LANGUAGE -DTARGET_LANGUAGE -DWORK_DIR. To bring a catalogue up to date, run the
# lupdate line this prints on the catalogue itself, translate what it marks unfinished and
# remove what it marks obsolete.
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})
get_filename_component(name ${TS} NAME)
file(COPY ${TS} DESTINATION ${WORK_DIR})
string(REPLACE "," ";" sources "${SOURCES}")
set(lupdate_args ${sources} -extensions cpp,h,ui -locations none -no-ui-lines
    -source-language ${SOURCE_LANGUAGE} -target-language ${TARGET_LANGUAGE})
execute_process(COMMAND ${LUPDATE} ${lupdate_args} -ts ${WORK_DIR}/${name}
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
if(result)
    message(FATAL_ERROR "lupdate failed:\n${output}${errors}")
endif()

file(READ ${TS} committed)
set(problems "")
foreach(kind unfinished obsolete vanished)
    if(committed MATCHES "type=\"${kind}\"")
        string(APPEND problems "${TS} holds ${kind} entries.\n")
    endif()
endforeach()
# Compare both in the form lconvert writes, so that only the messages count.
foreach(pair "${TS};committed" "${WORK_DIR}/${name};extracted")
    list(GET pair 0 file)
    list(GET pair 1 stem)
    execute_process(COMMAND ${LCONVERT} -locations none -i ${file} -o ${WORK_DIR}/${stem}.ts
        RESULT_VARIABLE result)
    if(result)
        message(FATAL_ERROR "lconvert failed on ${file}")
    endif()
endforeach()
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${WORK_DIR}/committed.ts
    ${WORK_DIR}/extracted.ts RESULT_VARIABLE differ)
if(differ)
    execute_process(COMMAND diff -u ${TS} ${WORK_DIR}/${name} OUTPUT_VARIABLE diff)
    string(APPEND problems "${TS} does not match the sources any more:\n${diff}")
endif()
if(problems)
    string(REPLACE ";" " " shown "${lupdate_args}")
    message(FATAL_ERROR "${problems}\nUpdate it with: lupdate ${shown} -ts ${TS}\n"
        "then translate every entry marked unfinished and delete the obsolete ones.")
endif()
