# SPDX-FileCopyrightText: The Boulix developers
# SPDX-License-Identifier: GPL-3.0-or-later

# boulix_allow_empty(target): lets a library whose rooms have no sources yet be configured and built.
function(boulix_allow_empty target)
    get_target_property(sources ${target} SOURCES)
    if(NOT sources)
        set(file "${CMAKE_CURRENT_BINARY_DIR}/${target}_empty.cpp")
        file(WRITE "${file}" "")
        target_sources(${target} PRIVATE "${file}")
    endif()
endfunction()
