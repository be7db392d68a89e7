# SPDX-License-Identifier: MIT
# Has MAKER make the empty Ledger at LEDGER unless a Ledger is there already.
if(NOT EXISTS "${LEDGER}")
    execute_process(COMMAND "${MAKER}" "${LEDGER}" COMMAND_ERROR_IS_FATAL ANY)
endif()
