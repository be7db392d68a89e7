# SPDX-License-Identifier: MIT
# Has the command MAKER make the empty Ledger at LEDGER unless a Ledger is there already. It gets its name once
# it is whole, so that a build cut short leaves no half of one.
if(NOT EXISTS "${LEDGER}")
    if(EXISTS "${LEDGER}-wal") # holds what was filed last in a book that somebody has moved away
        message(FATAL_ERROR "${LEDGER} is missing, but its journal waits: put both away or back")
    endif()
    file(REMOVE "${LEDGER}.new" "${LEDGER}.new-wal")
    execute_process(COMMAND ${MAKER} "${LEDGER}.new" COMMAND_ERROR_IS_FATAL ANY)
    file(RENAME "${LEDGER}.new" "${LEDGER}")
endif()
