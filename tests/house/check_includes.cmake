# SPDX-License-Identifier: GPL-3.0-or-later
# cmake -DSOURCES=<src folder> -P check_includes.cmake
# The linker sees a wrong arrow between two folders only when a function is called. This script
# sees every include, and keeps the toolkit and the machine's locale out of the logic.
cmake_minimum_required(VERSION 3.25)

set(base_uses base)
set(model_uses ${base_uses} model)
set(physdata_uses ${model_uses} physdata)
set(hydraulics_uses ${physdata_uses} hydraulics)
set(results_uses ${hydraulics_uses} results)
set(editor_uses ${hydraulics_uses} editor)
set(table_uses ${hydraulics_uses} table)
set(calc_uses ${results_uses} table calc)
set(shell_uses ${results_uses} editor table shell)
set(ui_uses ${shell_uses} ui)
set(app_uses ${ui_uses} app)
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

if(faults)
    list(JOIN faults "\n  " text)
    message(FATAL_ERROR "The house has faults:\n  ${text}")
endif()
list(LENGTH files count)
message(STATUS "${count} files keep to the house")
