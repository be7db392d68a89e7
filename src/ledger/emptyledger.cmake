# SPDX-License-Identifier: MIT
# Creates the empty Ledger LEDGER with the command MAKER unless it exists. The file is renamed when
# it is complete, so that an interrupted build leaves no partial Ledger.
if(NOT EXISTS "${LEDGER}")
    if(EXISTS "${LEDGER}-wal") # has the latest bets of a Ledger that was moved away
        message(FATAL_ERROR "${LEDGER} is missing, but its WAL exists: move both away or back")
    endif()
    file(REMOVE "${LEDGER}.new" "${LEDGER}.new-wal")
    execute_process(COMMAND ${MAKER} "${LEDGER}.new" COMMAND_ERROR_IS_FATAL ANY)
    file(RENAME "${LEDGER}.new" "${LEDGER}")
endif()
