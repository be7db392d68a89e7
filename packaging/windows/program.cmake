# SPDX-License-Identifier: MIT
# What only the Windows program has: icon, version and manifest inside, and beside it the type and
# the libraries, so that the build folder runs as the shipped one does.
enable_language(RC)
foreach(file IN ITEMS rc manifest)
    configure_file(${CMAKE_CURRENT_LIST_DIR}/mirakla-desk.${file}.in
        ${PROJECT_BINARY_DIR}/mirakla-desk.${file} @ONLY)
endforeach()
target_sources(mirakla-desk PRIVATE ${PROJECT_BINARY_DIR}/mirakla-desk.rc)
set_source_files_properties(${PROJECT_BINARY_DIR}/mirakla-desk.rc
    TARGET_DIRECTORY mirakla-desk PROPERTIES OBJECT_DEPENDS
    "${CMAKE_CURRENT_LIST_DIR}/mirakla-desk.ico;${PROJECT_BINARY_DIR}/mirakla-desk.manifest")

foreach(type IN ITEMS NotoSans-Regular NotoSans-Bold NotoSansThai-Regular NotoSansThai-Bold
        NotoSansSymbols-Regular)
    file(COPY /usr/share/fonts/truetype/noto/${type}.ttf DESTINATION ${PROJECT_BINARY_DIR}/fonts)
endforeach()
