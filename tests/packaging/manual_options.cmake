# SPDX-License-Identifier: GPL-3.0-or-later
# cmake -DPROGRAM=<idrova-calc> -DPAGE=<its manual page> -P manual_options.cmake
# The page explains every option that the program lists.
cmake_minimum_required(VERSION 3.25)
execute_process(COMMAND ${PROGRAM} --help OUTPUT_VARIABLE help COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "--[a-z-]+" options "${help}")
file(READ ${PAGE} page)
string(REPLACE "\\-" "-" page "${page}")
foreach(option IN LISTS options)
    string(FIND "${page}" "${option}" position)
    if(position LESS 0)
        message(SEND_ERROR "${PAGE} does not explain ${option}")
    endif()
endforeach()
list(LENGTH options count)
if(count LESS 10)
    message(FATAL_ERROR "Only ${count} options were listed:\n${help}")
endif()
