# Runs FUZZER for a short while over a fresh copy of CORPUS, with the words of DICTIONARY. New inputs and crashes stay in
# DIRECTORY.
file(REMOVE_RECURSE "${DIRECTORY}/corpus")
file(COPY "${CORPUS}" DESTINATION "${DIRECTORY}")
execute_process(COMMAND "${FUZZER}" -runs=20000 -max_total_time=20 -timeout=10 "-artifact_prefix=${DIRECTORY}/"
                        "-dict=${DICTIONARY}" "${DIRECTORY}/corpus" COMMAND_ERROR_IS_FATAL ANY)
