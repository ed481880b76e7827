# SPDX-FileCopyrightText: The Boulix developers
# SPDX-License-Identifier: GPL-3.0-or-later

# ccache and a quick linker where they are there; nothing depends on either.
if(NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
    find_program(BOULIX_CCACHE ccache)
    if(BOULIX_CCACHE)
        set(CMAKE_CXX_COMPILER_LAUNCHER "${BOULIX_CCACHE}" CACHE STRING "Compiler launcher")
    endif()
endif()

find_program(BOULIX_LLD ld.lld)
if(BOULIX_LLD)
    add_link_options(-fuse-ld=lld)
endif()

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()
