# SPDX-License-Identifier: MIT
# Additions of the Windows program: icon, version and manifest as resources, and the fonts beside
# it, so that it finds them in the build folder as in the shipped folder.
enable_language(RC)
string(REGEX MATCH "^[0-9]+[.][0-9]+[.][0-9]+[.][0-9]+" four_numbers "${PROJECT_VERSION}.0.0.0")
string(REPLACE "." "," four_numbers_rc "${four_numbers}")
foreach(file IN ITEMS rc manifest)
    configure_file(${CMAKE_CURRENT_LIST_DIR}/mirakla-desk.${file}.in
        ${PROJECT_BINARY_DIR}/mirakla-desk.${file} @ONLY)
endforeach()
target_sources(mirakla-desk PRIVATE ${PROJECT_BINARY_DIR}/mirakla-desk.rc)
set_source_files_properties(${PROJECT_BINARY_DIR}/mirakla-desk.rc
    TARGET_DIRECTORY mirakla-desk PROPERTIES OBJECT_DEPENDS
    "${CMAKE_CURRENT_LIST_DIR}/mirakla-desk.ico;${PROJECT_BINARY_DIR}/mirakla-desk.manifest")

foreach(font IN ITEMS NotoSans-Regular NotoSans-Bold NotoSansThai-Regular NotoSansThai-Bold
        NotoSansSymbols-Regular)
    file(COPY /usr/share/fonts/truetype/noto/${font}.ttf DESTINATION ${PROJECT_BINARY_DIR}/fonts)
endforeach()
