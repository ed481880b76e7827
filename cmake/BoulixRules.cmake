# SPDX-FileCopyrightText: The Boulix developers
# SPDX-License-Identifier: GPL-3.0-or-later

# boulix_rules: language standard, warnings and sanitizers for every target of the project.
# A target gets them by linking it; no other file sets compiler flags, but for the three files of
# src/winnings that are optimised in every build.
include(CheckCXXCompilerFlag)

add_library(boulix_rules INTERFACE)
target_compile_features(boulix_rules INTERFACE cxx_std_20)

# -Wrestrict: g++ 12 reports overlaps inside std::string's own operator+ that cannot happen.
target_compile_options(boulix_rules INTERFACE
    -Wall -Wextra -Wpedantic
    -Wconversion -Wsign-conversion -Wshadow
    -Wold-style-cast -Wcast-align -Wcast-qual
    -Wnon-virtual-dtor -Woverloaded-virtual
    -Wmissing-declarations -Wextra-semi -Wundef -Wformat=2 -Wimplicit-fallthrough
    $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond -Wlogical-op -Wsuggest-override -Wno-restrict>
    $<$<CXX_COMPILER_ID:Clang>:-Wsuggest-override -Wunreachable-code>
    $<$<BOOL:${BOULIX_WERROR}>:-Werror>)

# Grids are compared as 64-bit masks: every x86-64 processor since 2009 counts bits in one step.
if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
    check_cxx_compiler_flag(-march=x86-64-v2 BOULIX_HAS_X86_64_V2)
    if(BOULIX_HAS_X86_64_V2)
        target_compile_options(boulix_rules INTERFACE -march=x86-64-v2)
    endif()
endif()

if(BOULIX_SANITIZE)
    target_compile_options(boulix_rules INTERFACE
        -fsanitize=${BOULIX_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(boulix_rules INTERFACE -fsanitize=${BOULIX_SANITIZE})
endif()
