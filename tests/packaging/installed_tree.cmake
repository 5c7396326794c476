# SPDX-License-Identifier: GPL-3.0-or-later
# cmake -DBUILD=<build folder> -DSTAGE=<folder> -DAPP_ID=<id> -DDESKTOP=<0|1> -P installed_tree.cmake
# Installs below STAGE and uses what is there as a user of the installed program does.
cmake_minimum_required(VERSION 3.25)

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status ERROR_VARIABLE errors
        OUTPUT_VARIABLE output)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "${ARGN}: ${status}\n${output}${errors}")
    endif()
endfunction()

# The first line of `file` that matches gives its part in brackets.
function(first_match result file expression)
    file(STRINGS ${file} lines REGEX "${expression}" LIMIT_COUNT 1)
    if(NOT lines)
        message(FATAL_ERROR "${file} has no line ${expression}")
    endif()
    string(REGEX REPLACE "${expression}" "\\1" match "${lines}")
    set(${result} "${match}" PARENT_SCOPE)
endfunction()

function(expect_file path)
    if(NOT EXISTS ${path})
        message(FATAL_ERROR "${path} was not installed")
    endif()
endfunction()

file(REMOVE_RECURSE ${STAGE})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${STAGE})

# The desktop finds the program, its icons and its files.
set(entry ${STAGE}/share/applications/${APP_ID}.desktop)
first_match(program ${entry} "^Exec=([^ ]+).*")
first_match(icon ${entry} "^Icon=(.*)")
first_match(type ${entry} "^MimeType=([a-z/-]+).*")
expect_file(${STAGE}/bin/${program})
expect_file(${STAGE}/share/man/man1/${program}.1.gz)
string(REPLACE "/" "-" type_icon ${type})
foreach(size IN ITEMS 16 24 32 48 64 128 256)
    set(icons ${STAGE}/share/icons/hicolor/${size}x${size})
    expect_file(${icons}/apps/${icon}.png)
    expect_file(${icons}/mimetypes/${type_icon}.png)
endforeach()
run(update-mime-database ${STAGE}/share/mime)
first_match(pattern ${STAGE}/share/mime/globs2 "^[0-9]+:${type}:(.*)")
if(NOT pattern STREQUAL "*.iv")
    message(FATAL_ERROR "${type} stands for ${pattern}")
endif()

# The manual is made by the build, with its pictures in it.
if(DESKTOP)
    set(manual ${STAGE}/share/doc/idrova/IDROVA.PDF)
    expect_file(${manual})
    file(READ ${manual} start LIMIT 5)
    file(SIZE ${manual} size)
    if(NOT start MATCHES "^%PDF-" OR size LESS 300000)
        message(FATAL_ERROR "${manual} is no manual: ${size} bytes, ${start}")
    endif()
endif()

# Every sample is computed from the installed files alone.
set(work ${STAGE}/work)
file(COPY ${STAGE}/share/idrova/ DESTINATION ${work})
foreach(icon_file IN ITEMS arrt arlt ardn arup PERC)
    expect_file(${work}/IMG/${icon_file}.ico)
endforeach()
file(GLOB samples ${work}/samples/*.iv)
list(LENGTH samples count)
if(count LESS 4)
    message(FATAL_ERROR "Only ${count} sample projects were installed")
endif()
foreach(sample IN LISTS samples)
    # Graphic or table: a project file does not say which of the two it is for.
    set(settled FALSE)
    foreach(mode IN ITEMS graphic table)
        execute_process(COMMAND ${STAGE}/bin/idrova-calc --data ${work} --mode ${mode} ${sample}
            RESULT_VARIABLE status OUTPUT_QUIET ERROR_VARIABLE messages)
        if(status EQUAL 0)
            set(settled TRUE)
        endif()
    endforeach()
    if(NOT settled)
        message(FATAL_ERROR "${sample} was not computed: ${status}\n${messages}")
    endif()
endforeach()
