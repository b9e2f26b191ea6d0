# How the project's targets are compiled and linked. All of it is set on the target and nothing on the directory, so
# that it stays with us wherever the project is added.
if(ORBCHART_FUZZ AND NOT CMAKE_CXX_COMPILER_ID MATCHES Clang)
  message(FATAL_ERROR "ORBCHART_FUZZ needs clang++, this is ${CMAKE_CXX_COMPILER}")
endif()

function(orbchart_configure_target target)
  set_target_properties(${target} PROPERTIES CXX_STANDARD 20 CXX_STANDARD_REQUIRED ON CXX_EXTENSIONS OFF
                                             CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)

  # The prefix map makes the source paths in exceptions and in the error log independent of where the tree lies.
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic "-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=")
  # GCC 12 takes the sum of a literal and a std::string for an overlapping copy.
  target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)

  if(ORBCHART_SANITIZE)
    target_compile_options(${target} PRIVATE -fsanitize=address,undefined -fno-sanitize-recover=all
                                             -fno-omit-frame-pointer -O1 -g1)
    target_link_options(${target} PRIVATE -fsanitize=address,undefined)
    # GCC takes what the sanitizers insert for reads of what was never written.
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  endif()
  if(ORBCHART_FUZZ)
    target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
  endif()
endfunction()
