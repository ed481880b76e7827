# SPDX-FileCopyrightText: The Boulix developers
# SPDX-License-Identifier: GPL-3.0-or-later

# `cmake --install build/release --prefix DIR` makes a folder that runs from where it lies: the
# program keeps all of its data beside itself, so executable, help and samples share one folder.
if(TARGET boulix)
    install(TARGETS boulix RUNTIME DESTINATION .)
    install(FILES "${PROJECT_SOURCE_DIR}/src/ui/style/icons/boulix.svg"
        "${PROJECT_SOURCE_DIR}/packaging/boulix-types.xml" DESTINATION .)
    # The menu entry names its folder, which is known at the time of the installation only.
    set(BOULIX_MENU_ENTRY "${PROJECT_SOURCE_DIR}/packaging/boulix.desktop.in")
    install(CODE "
        set(BOULIX_FOLDER \"\${CMAKE_INSTALL_PREFIX}\")
        configure_file(\"${BOULIX_MENU_ENTRY}\" \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/boulix.desktop\" @ONLY)")
endif()
# A prize table of zeros to begin with; the player's own is not written over.
install(CODE "
    if(NOT EXISTS \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/defrapp.rap\")
        file(INSTALL \"${PROJECT_SOURCE_DIR}/packaging/defrapp.rap\"
            DESTINATION \"\${CMAKE_INSTALL_PREFIX}\")
    endif()")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/samples/" DESTINATION samples)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/help/" DESTINATION help)
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION .)
