# SPDX-FileCopyrightText: The Boulix developers
# SPDX-License-Identifier: GPL-3.0-or-later
include(GoogleTest)

# A private corner for the tests: no run touches the settings of the person who runs them.
set(BOULIX_TEST_HOME "${PROJECT_BINARY_DIR}/test-home")
file(MAKE_DIRECTORY "${BOULIX_TEST_HOME}/runtime" "${BOULIX_TEST_HOME}/config")
file(CHMOD "${BOULIX_TEST_HOME}/runtime" PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)

set(BOULIX_TEST_ENVIRONMENT
    "LC_ALL=C.UTF-8"
    "TZ=Europe/Paris"
    "BOULIX_TOP=${PROJECT_SOURCE_DIR}"
    "BOULIX_PICTURES=${PROJECT_BINARY_DIR}/pictures"
    "XDG_RUNTIME_DIR=${BOULIX_TEST_HOME}/runtime"
    "XDG_CONFIG_HOME=${BOULIX_TEST_HOME}/config"
    "UBSAN_OPTIONS=print_stacktrace=1"
    "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/cmake/lsan.supp:print_suppressions=0")

# boulix_test(NAME name LABEL logic|ui|tour|printing SOURCES file... [LIBS target...]
#             [REAL_WINDOW] [OWN_FOLDER] [WHOLE] [TIMEOUT seconds])
#
# Makes the GoogleTest executable `name`. Every test in it is a ctest entry of its own, called
# "name.Suite.Behaviour"; with WHOLE the executable is a single entry. The labels ui, tour and
# printing bring Qt and a main() with a QApplication on the offscreen platform. REAL_WINDOW runs
# the executable, whole, in an X server of its own with a window manager; OWN_FOLDER runs it, whole,
# where it can write nowhere but in a folder of its own.
function(boulix_test)
    cmake_parse_arguments(PARSE_ARGV 0 T "REAL_WINDOW;OWN_FOLDER;WHOLE" "NAME;LABEL;TIMEOUT" "SOURCES;LIBS")
    if(T_UNPARSED_ARGUMENTS OR NOT T_NAME OR NOT T_SOURCES)
        message(FATAL_ERROR "boulix_test: NAME, LABEL and SOURCES expected, got: ${ARGV}")
    endif()
    if(NOT T_LABEL MATCHES "^(logic|ui|tour|printing)$")
        message(FATAL_ERROR "boulix_test(${T_NAME}): no such label: ${T_LABEL}")
    endif()
    if(NOT T_TIMEOUT)
        set(T_TIMEOUT 300)
    endif()

    add_executable(${T_NAME} ${T_SOURCES})
    if(T_LABEL STREQUAL "logic")
        target_link_libraries(${T_NAME} PRIVATE ${T_LIBS} boulix_test_support GTest::gtest_main)
    else()
        set_target_properties(${T_NAME} PROPERTIES AUTOMOC ON)
        target_link_libraries(${T_NAME} PRIVATE ${T_LIBS} boulix_ui_test_support)
    endif()

    set(environment ${BOULIX_TEST_ENVIRONMENT})
    if(T_REAL_WINDOW)
        list(APPEND environment "QT_QPA_PLATFORM=xcb")
        add_test(NAME ${T_NAME} COMMAND "${PROJECT_SOURCE_DIR}/scripts/with-display" $<TARGET_FILE:${T_NAME}>)
    else()
        list(APPEND environment "QT_QPA_PLATFORM=offscreen")
        if(T_OWN_FOLDER)
            add_test(NAME ${T_NAME} COMMAND "${PROJECT_SOURCE_DIR}/scripts/in-own-folder" $<TARGET_FILE:${T_NAME}>)
        elseif(T_WHOLE)
            add_test(NAME ${T_NAME} COMMAND ${T_NAME})
        endif()
    endif()

    if(T_REAL_WINDOW OR T_OWN_FOLDER OR T_WHOLE)
        set_tests_properties(${T_NAME} PROPERTIES
            LABELS ${T_LABEL} TIMEOUT ${T_TIMEOUT} ENVIRONMENT "${environment}")
    else()
        gtest_discover_tests(${T_NAME} TEST_PREFIX "${T_NAME}." DISCOVERY_MODE PRE_TEST
            NO_PRETTY_VALUES PROPERTIES LABELS ${T_LABEL} TIMEOUT ${T_TIMEOUT})
        # gtest_discover_tests() cannot carry a list, so a script that ctest reads after the
        # discovered tests gives them their environment.
        set(script "${CMAKE_CURRENT_BINARY_DIR}/${T_NAME}_environment.cmake")
        file(WRITE "${script}"
            "if(${T_NAME}_TESTS)\n"
            "    set_tests_properties(\${${T_NAME}_TESTS} PROPERTIES ENVIRONMENT \"${environment}\")\n"
            "endif()\n")
        set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES "${script}")
    endif()
endfunction()
