# SPDX-License-Identifier: GPL-3.0-or-later
# cmake -DSOURCES=<src folder> -DARROWS=<file> -P check_includes.cmake
# The linker sees a wrong arrow between two folders only when a function is called. This script
# sees every include, and keeps the toolkit and the machine's locale out of the logic.
cmake_minimum_required(VERSION 3.25)

# A line of the file of arrows: a folder, a colon, the folders that it may use besides what those use.
file(STRINGS ${ARROWS} arrows)
foreach(arrow IN LISTS arrows)
    string(REGEX MATCH "^([a-z]+): *(.*)$" matched "${arrow}")
    set(folder ${CMAKE_MATCH_1})
    string(REPLACE " " ";" ${folder}_names "${CMAKE_MATCH_2}")
    set(${folder}_uses ${folder})
    foreach(named IN LISTS ${folder}_names)
        list(APPEND ${folder}_uses ${named} ${${named}_uses})
    endforeach()
    list(APPEND folders ${folder})
endforeach()

set(knows_toolkit ui app)
set(locale_functions "(^|[^A-Za-z_])(v?[sf]?n?printf|[sf]?scanf|strto(d|f|ld)|atof|sto(d|f|ld)) *\\(")

set(faults "")
function(fault file text)
    set(faults ${faults} "${file}: ${text}" PARENT_SCOPE)
endfunction()

file(GLOB_RECURSE files RELATIVE ${SOURCES} ${SOURCES}/*.h ${SOURCES}/*.cpp)
if(NOT files)
    message(FATAL_ERROR "No sources in ${SOURCES}")
endif()

foreach(file IN LISTS files)
    string(REGEX REPLACE "/.*" "" folder ${file})
    if(NOT DEFINED ${folder}_uses)
        fault(${file} "the folder ${folder} has no place among the others")
    endif()

    file(STRINGS ${SOURCES}/${file} includes REGEX "^ *#include \"")
    foreach(include IN LISTS includes)
        string(REGEX REPLACE "^ *#include \"([^/\"]*).*" "\\1" used ${include})
        list(APPEND ${folder}_used ${used})
        if(NOT used IN_LIST ${folder}_uses)
            fault(${file} "${folder} must not use ${used}")
        endif()
    endforeach()

    file(STRINGS ${SOURCES}/${file} toolkit REGEX "^ *#include <(Q[A-Z]|qcustomplot)")
    if(NOT toolkit STREQUAL "" AND NOT folder IN_LIST knows_toolkit)
        fault(${file} "only ui and app know the toolkit")
    endif()

    file(STRINGS ${SOURCES}/${file} calls REGEX "${locale_functions}")
    if(NOT calls STREQUAL "")
        fault(${file} "numbers are read and written by base/number_text only: ${calls}")
    endif()
endforeach()

foreach(folder IN LISTS folders)
    foreach(named IN LISTS ${folder}_names)
        if(NOT named IN_LIST ${folder}_used)
            fault(${folder} "nothing in it uses ${named}")
        endif()
    endforeach()
endforeach()

if(faults)
    list(JOIN faults "\n  " text)
    message(FATAL_ERROR "The house has faults:\n  ${text}")
endif()
list(LENGTH files count)
message(STATUS "${count} files keep to the house")
