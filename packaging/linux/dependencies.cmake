# SPDX-License-Identifier: MIT
# Copies into FOLDER the libraries that PROGRAM and PLUGINS need and a desktop may lack, and the
# licences of all copied files, FONTS included. Runs at install time. Makes no symbolic links, so
# that the folder also works on a FAT stick.

# Not copied, since every desktop has its own version of these: C and C++ runtime, X11 client
# libraries, graphics drivers, fonts, sound, GLib, D-Bus and printing.
set(system_libraries
    ld-linux c m dl pthread rt resolv util stdc\\+\\+ gcc_s
    X11 X11-xcb xcb drm gbm
    fontconfig freetype expat png16 brotlidec brotlicommon z harfbuzz
    asound glib-2.0 gobject-2.0 gmodule-2.0 dbus-1 systemd cups)
list(JOIN system_libraries | system_pattern)

file(GET_RUNTIME_DEPENDENCIES EXECUTABLES ${PROGRAM} MODULES ${PLUGINS}
    RESOLVED_DEPENDENCIES_VAR libraries UNRESOLVED_DEPENDENCIES_VAR missing
    PRE_EXCLUDE_REGEXES "^(lib(${system_pattern})|ld-linux.*)\\.so")
if(missing)
    message(FATAL_ERROR "These libraries are not on this machine: ${missing}")
endif()

# set_runpath(FILE): makes a library that has a search path search its own folder instead.
function(set_runpath file)
    file(READ_ELF "${file}" RUNPATH own)
    if(own)
        file(RPATH_CHANGE FILE "${file}" OLD_RPATH "${own}" NEW_RPATH "$ORIGIN")
    endif()
endfunction()

set(sources ${FONTS})
foreach(library IN LISTS libraries)
    cmake_path(GET library FILENAME name)
    file(REAL_PATH "${library}" source)
    list(APPEND sources "${source}")
    file(INSTALL FILES "${source}" DESTINATION "${FOLDER}/lib" RENAME "${name}")
    set_runpath("${FOLDER}/lib/${name}")
endforeach()
foreach(plugin IN LISTS PLUGINS)
    cmake_path(GET plugin PARENT_PATH kind)
    cmake_path(GET kind FILENAME kind)
    list(APPEND sources "${plugin}")
    file(INSTALL FILES "${plugin}" DESTINATION "${FOLDER}/plugins/${kind}")
endforeach()

# dpkg lists a file under the path in its package, which may lack the leading /usr.
list(TRANSFORM sources REPLACE "^/usr/" "/" OUTPUT_VARIABLE shipped)
execute_process(COMMAND dpkg-query -S ${sources} ${shipped} OUTPUT_VARIABLE owners ERROR_QUIET)
string(REGEX REPLACE "diversion by [^\n]*\n" "" owners "${owners}") # Ubuntu diverts one library
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
