# SPDX-License-Identifier: MIT
# The portable folder for Linux, as "cmake --install" lays it out and CPack packs it: the program
# with its data, its type, the libraries that a desktop need not have, their licences and the guide.

set(folder_name mirakla-desk-${PROJECT_VERSION}-linux-${CMAKE_SYSTEM_PROCESSOR})
set(portable_folder ${PROJECT_SOURCE_DIR}/build/portable)
if(CMAKE_INSTALL_PREFIX STREQUAL "/usr/local") # the tool's own default, where a folder would be spilled
    set(CMAKE_INSTALL_PREFIX ${portable_folder}/${folder_name} CACHE PATH
        "Where the portable folder is laid out" FORCE)
endif()

# The old tag of the search path: unlike the new one it also holds for the libraries that a carried
# library or plugin needs in its turn.
set_target_properties(mirakla-desk PROPERTIES INSTALL_RPATH "$ORIGIN/lib")
target_link_options(mirakla-desk PRIVATE -Wl,--disable-new-dtags)

set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON) # the folder needs the program, not the tests
install(TARGETS mirakla-desk DESTINATION .)
install(FILES ${CMAKE_CURRENT_LIST_DIR}/qt.conf DESTINATION .)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION . RENAME LICENSE.txt)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/packaging/guide/ DESTINATION .)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/data DESTINATION .)

# Never the book of the build folder, which may be somebody's own; and never over a book.
install(CODE "
    execute_process(COMMAND \"${CMAKE_COMMAND}\" \"-DMAKER=$<TARGET_FILE:make-empty-ledger>\"
        \"-DLEDGER=\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/data/ztkdata.ZDB\"
        -P \"${PROJECT_SOURCE_DIR}/src/ledger/emptyledger.cmake\" COMMAND_ERROR_IS_FATAL ANY)")

set(type_folder /usr/share/fonts/truetype/noto)
set(types NotoSans-Regular NotoSans-Bold NotoSansThai-Regular NotoSansThai-Bold
    NotoSansSymbols-Regular)
list(TRANSFORM types PREPEND ${type_folder}/)
list(TRANSFORM types APPEND .ttf)
install(FILES ${types} DESTINATION fonts)

set(plugins
    platforms/libqxcb.so                                           # windows
    platforminputcontexts/libcomposeplatforminputcontextplugin.so  # keys that make a letter together
    platforminputcontexts/libibusplatforminputcontextplugin.so     # the desktop's input method
    printsupport/libcupsprintersupport.so)                         # printers
list(TRANSFORM plugins PREPEND ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_PLUGINS}/)

install(CODE "
    set(PROGRAM \"$<TARGET_FILE:mirakla-desk>\")
    set(PLUGINS \"${plugins}\")
    set(TYPES \"${types}\")
    set(FOLDER \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}\")
    include(\"${CMAKE_CURRENT_LIST_DIR}/carry.cmake\")")

set(CPACK_GENERATOR TGZ)
set(CPACK_PACKAGE_FILE_NAME ${folder_name})
set(CPACK_PACKAGE_DIRECTORY ${portable_folder})
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
