# SPDX-License-Identifier: MIT
# Carries into FOLDER what PROGRAM and PLUGINS need and a desktop need not have, and the licence of
# each thing carried, TYPES among them. Runs while the folder is installed. No link is made, so that
# the folder can live on a stick that knows none.

# Every desktop has these, and needs its own: the C and C++ run time, the X server's client side,
# the graphics drivers' base, type, sound, glib, D-Bus. Printing belongs to the machine altogether.
set(left_to_the_desktop
    ld-linux c m dl pthread rt resolv util stdc\\+\\+ gcc_s
    X11 X11-xcb xcb drm gbm
    fontconfig freetype expat png16 brotlidec brotlicommon z harfbuzz
    asound glib-2.0 gobject-2.0 gmodule-2.0 dbus-1 systemd cups)
list(JOIN left_to_the_desktop | left_pattern)

file(GET_RUNTIME_DEPENDENCIES EXECUTABLES ${PROGRAM} MODULES ${PLUGINS}
    RESOLVED_DEPENDENCIES_VAR libraries UNRESOLVED_DEPENDENCIES_VAR missing
    PRE_EXCLUDE_REGEXES "^(lib(${left_pattern})|ld-linux.*)\\.so")
if(missing)
    message(FATAL_ERROR "These libraries are not on this machine: ${missing}")
endif()

# lead_home(FILE): a search path that a library came with has to lead to its new neighbours.
function(lead_home file)
    file(READ_ELF "${file}" RUNPATH own)
    if(own)
        file(RPATH_CHANGE FILE "${file}" OLD_RPATH "${own}" NEW_RPATH "$ORIGIN")
    endif()
endfunction()

set(sources ${TYPES})
foreach(library IN LISTS libraries)
    cmake_path(GET library FILENAME name)
    file(REAL_PATH "${library}" source)
    list(APPEND sources "${source}")
    file(INSTALL FILES "${source}" DESTINATION "${FOLDER}/lib" RENAME "${name}")
    lead_home("${FOLDER}/lib/${name}")
endforeach()
foreach(plugin IN LISTS PLUGINS)
    cmake_path(GET plugin PARENT_PATH room)
    cmake_path(GET room FILENAME room)
    list(APPEND sources "${plugin}")
    file(INSTALL FILES "${plugin}" DESTINATION "${FOLDER}/plugins/${room}")
endforeach()

# The package system knows a file by the name it was shipped under, which may lack the leading /usr.
list(TRANSFORM sources REPLACE "^/usr/" "/" OUTPUT_VARIABLE shipped)
execute_process(COMMAND dpkg-query -S ${sources} ${shipped} OUTPUT_VARIABLE owners ERROR_QUIET)
string(REGEX REPLACE "diversion by [^\n]*\n" "" owners "${owners}") # Ubuntu moves one library aside
foreach(source IN LISTS sources)
    cmake_path(GET source FILENAME name)
    string(FIND "${owners}" "/${name}\n" found)
    if(found EQUAL -1)
        message(FATAL_ERROR "No package owns ${source}, so its licence is not known")
    endif()
endforeach()
string(REGEX MATCHALL "(^|\n)[^:\n]+" packages "${owners}")
list(TRANSFORM packages STRIP)
list(REMOVE_DUPLICATES packages)
execute_process(COMMAND dpkg-query -W -f "\${Package} \${Version}, source \${source:Package}\n"
    ${packages} OUTPUT_VARIABLE versions COMMAND_ERROR_IS_FATAL ANY)
file(WRITE "${FOLDER}/licenses/PACKAGES.txt"
    "What this folder carries comes from these packages of Debian, where their sources are too:\n\n"
    "${versions}")
foreach(package IN LISTS packages)
    file(READ "/usr/share/doc/${package}/copyright" terms)
    file(WRITE "${FOLDER}/licenses/${package}.txt" "${terms}")
    string(REGEX MATCHALL "/usr/share/common-licenses/[A-Za-z0-9.-]*[A-Za-z0-9]" texts "${terms}")
    list(APPEND common ${texts})
endforeach()
list(REMOVE_DUPLICATES common)
foreach(text IN LISTS common)
    if(EXISTS "${text}")
        cmake_path(GET text FILENAME name)
        file(REAL_PATH "${text}" text)
        file(INSTALL FILES "${text}" DESTINATION "${FOLDER}/licenses" RENAME "${name}.txt")
    endif()
endforeach()
