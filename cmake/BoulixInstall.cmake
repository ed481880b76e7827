# SPDX-FileCopyrightText: The Boulix developers
# SPDX-License-Identifier: GPL-3.0-or-later

# `cmake --install build/release --prefix DIR` makes a folder that runs from where it lies: the
# program keeps all of its data beside itself, so executable, help and samples share one folder.
if(TARGET boulix)
    install(TARGETS boulix RUNTIME DESTINATION .)
endif()
install(DIRECTORY "${PROJECT_SOURCE_DIR}/samples/" DESTINATION samples)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/help/" DESTINATION help OPTIONAL)
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION .)
