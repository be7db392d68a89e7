# SPDX-License-Identifier: MIT
# The portable folder for Linux, installed by "cmake --install" and packed by CPack: the program
# with its data and fonts, the libraries that a desktop may lack, their licences and the guide.

set(folder_name mirakla-desk-${PROJECT_VERSION}-linux-${CMAKE_SYSTEM_PROCESSOR})
set(portable_folder ${PROJECT_SOURCE_DIR}/build/portable)
if(CMAKE_INSTALL_PREFIX STREQUAL "/usr/local") # CMake's default, which is no separate folder
    set(CMAKE_INSTALL_PREFIX ${portable_folder}/${folder_name} CACHE PATH
        "Where the portable folder is installed" FORCE)
endif()

# DT_RPATH instead of DT_RUNPATH, since only DT_RPATH also applies to the dependencies of the copied
# libraries and plugins.
set_target_properties(mirakla-desk PROPERTIES INSTALL_RPATH "$ORIGIN/lib")
target_link_options(mirakla-desk PRIVATE -Wl,--disable-new-dtags)

set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON) # the folder needs the program, not the tests
install(TARGETS mirakla-desk DESTINATION .)
install(FILES ${CMAKE_CURRENT_LIST_DIR}/qt.conf DESTINATION .)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION . RENAME LICENSE.txt)
install(PROGRAMS ${CMAKE_CURRENT_LIST_DIR}/mirakla-desk.desktop DESTINATION .) # desktops ask for that bit
install(DIRECTORY ${PROJECT_SOURCE_DIR}/packaging/guide/ DESTINATION .)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/data DESTINATION .)

# A new empty Ledger, since the one in the build folder may be in use. Never overwrites a book.
install(CODE "
    execute_process(COMMAND \"${CMAKE_COMMAND}\" \"-DMAKER=$<TARGET_FILE:make-empty-ledger>\"
        \"-DLEDGER=\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/data/ztkdata.ZDB\"
        -P \"${PROJECT_SOURCE_DIR}/src/ledger/emptyledger.cmake\" COMMAND_ERROR_IS_FATAL ANY)")

set(font_folder /usr/share/fonts/truetype/noto)
set(fonts NotoSans-Regular NotoSans-Bold NotoSansThai-Regular NotoSansThai-Bold
    NotoSansSymbols-Regular)
list(TRANSFORM fonts PREPEND ${font_folder}/)
list(TRANSFORM fonts APPEND .ttf)
install(FILES ${fonts} DESTINATION fonts)

set(plugins
    platforms/libqxcb.so                                           # windows
    platforminputcontexts/libcomposeplatforminputcontextplugin.so  # Compose key
    platforminputcontexts/libibusplatforminputcontextplugin.so     # the desktop's input method
    printsupport/libcupsprintersupport.so)                         # printers
list(TRANSFORM plugins PREPEND ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_PLUGINS}/)

install(CODE "
    set(PROGRAM \"$<TARGET_FILE:mirakla-desk>\")
    set(PLUGINS \"${plugins}\")
    set(FONTS \"${fonts}\")
    set(FOLDER \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}\")
    include(\"${CMAKE_CURRENT_LIST_DIR}/dependencies.cmake\")")

set(CPACK_GENERATOR TGZ)
set(CPACK_PACKAGE_FILE_NAME ${folder_name})
set(CPACK_PACKAGE_DIRECTORY ${portable_folder})
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
