# SPDX-License-Identifier: GPL-3.0-or-later
# The programs of a build tree stand in one folder, bin, with the icons and the databases beside
# them: started from there they work in that folder and leave the user's own data alone.
set(program_folder ${PROJECT_BINARY_DIR}/bin)
set(manual_pdf ${program_folder}/IDROVA.PDF)

foreach(program IN ITEMS idrova idrova-calc)
    if(TARGET ${program})
        set_target_properties(${program} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${program_folder})
    endif()
endforeach()

file(COPY data/IMG data/samples DESTINATION ${program_folder})
# Databases that were edited there stay.
file(GLOB databases CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}/data data/*.dat)
foreach(database IN LISTS databases)
    if(NOT EXISTS ${program_folder}/${database})
        file(COPY data/${database} DESTINATION ${program_folder})
    endif()
endforeach()
