# SPDX-License-Identifier: GPL-3.0-or-later
# One interface target carries the language level, the warnings and the sanitizers of every target.
add_library(idrova_flags INTERFACE)
target_compile_features(idrova_flags INTERFACE cxx_std_20)
target_include_directories(idrova_flags INTERFACE ${PROJECT_SOURCE_DIR}/src)
# Contraction into fused operations would make results depend on the processor.
target_compile_options(idrova_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor
    -Woverloaded-virtual -Wold-style-cast -ffp-contract=off
    $<$<BOOL:${IDROVA_WERROR}>:-Werror>)

# g++ 12 reports overlapping copies in its own std::string (GCC bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(idrova_flags INTERFACE -Wno-restrict)
endif()

# What distributions expect of a program that reads files of others.
if(NOT IDROVA_SANITIZE AND NOT IDROVA_FUZZ)
    target_compile_options(idrova_flags INTERFACE
        "$<$<CONFIG:Release>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
    target_link_options(idrova_flags INTERFACE $<$<CONFIG:Release>:LINKER:-z,relro,-z,now>)
endif()

if(IDROVA_SANITIZE)
    set(sanitizers -fsanitize=address,undefined,float-cast-overflow -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    target_compile_options(idrova_flags INTERFACE ${sanitizers})
    target_compile_definitions(idrova_flags INTERFACE _GLIBCXX_ASSERTIONS)
    target_link_options(idrova_flags INTERFACE ${sanitizers})
endif()

if(IDROVA_FUZZ)
    target_compile_options(idrova_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# Notes what a folder of src may use besides itself.
function(idrova_arrows folder)
    list(JOIN ARGN " " used)
    set_property(GLOBAL APPEND PROPERTY idrova_arrows "${folder}: ${used}")
endfunction()

# idrova_library(<folder> [<folder it may use>...]): one library for one folder of src.
function(idrova_library folder)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp)
    add_library(${folder} STATIC ${sources})
    target_link_libraries(${folder} PUBLIC idrova_flags ${ARGN})
    idrova_arrows(${folder} ${ARGN})
endfunction()

# idrova_program(<program> <folder> [<folder it may use>...])
function(idrova_program program folder)
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp)
    add_executable(${program} ${sources})
    target_link_libraries(${program} PRIVATE idrova_flags ${ARGN})
    idrova_arrows(${folder} ${ARGN})
endfunction()
