# SPDX-License-Identifier: GPL-3.0-or-later
# Finds KLU of SuiteSparse, which has no CMake files of its own in older releases: the target
# SuiteSparse::KLU.
find_path(KLU_INCLUDE_DIR klu.h PATH_SUFFIXES suitesparse)
find_library(KLU_LIBRARY klu)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(KLU REQUIRED_VARS KLU_LIBRARY KLU_INCLUDE_DIR)
mark_as_advanced(KLU_INCLUDE_DIR KLU_LIBRARY)
if(KLU_FOUND AND NOT TARGET SuiteSparse::KLU)
    add_library(SuiteSparse::KLU UNKNOWN IMPORTED)
    set_target_properties(SuiteSparse::KLU PROPERTIES
        IMPORTED_LOCATION "${KLU_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${KLU_INCLUDE_DIR}")
endif()
