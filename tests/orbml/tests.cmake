# The program prints what is committed beside this file, and its manual page says what its help says.
file(GLOB transcripts CONFIGURE_DEPENDS "${CMAKE_CURRENT_LIST_DIR}/*.transcript")
foreach(transcript IN LISTS transcripts)
  cmake_path(GET transcript STEM name)
  add_test(NAME orbml.${name}
           COMMAND bash -c "diff -u \"$2\" <(\"$0\" \"$1\" \"$2\")" "${CMAKE_CURRENT_LIST_DIR}/transcript"
                   "$<TARGET_FILE_DIR:orbchart_orbml>" "${transcript}")
endforeach()

add_test(NAME orbml.manual COMMAND "${CMAKE_CURRENT_LIST_DIR}/compare_manual" "$<TARGET_FILE:orbchart_orbml>"
                                   "${PROJECT_SOURCE_DIR}/orbml/orbml.1")
