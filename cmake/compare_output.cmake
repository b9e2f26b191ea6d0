# Runs PROGRAM with ARGUMENT, keeps what it prints in ACTUAL, and fails where that differs from EXPECTED.
execute_process(COMMAND "${PROGRAM}" "${ARGUMENT}" OUTPUT_FILE "${ACTUAL}" COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND diff -u "${EXPECTED}" "${ACTUAL}" COMMAND_ERROR_IS_FATAL ANY)
