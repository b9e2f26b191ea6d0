# The package as hosts meet it. A host finds the installed package by CMake and by pkg-config, in three forms: as it is
# released, with static libraries, and with another library behind quvaiocv.h. Or it adds the sources to its own.
set(package_test "${CMAKE_CURRENT_SOURCE_DIR}/package/package_test")
set(package_dir "${CMAKE_CURRENT_BINARY_DIR}/package")

function(orbchart_add_package_test name)
  add_test(NAME package.${name} COMMAND "${package_test}" ${ARGN})
  set_tests_properties(package.${name} PROPERTIES ENVIRONMENT
                       "CMAKE_GENERATOR=${CMAKE_GENERATOR};CMAKE_BUILD_TYPE=${CMAKE_BUILD_TYPE}\
;CXX=${CMAKE_CXX_COMPILER};CXXFLAGS=${CMAKE_CXX_FLAGS}")
endfunction()

# orbchart_add_package_tests(<form> <libraries that the host has to load> [<option of cmake>...])
function(orbchart_add_package_tests form loaded)
  set(directory "${package_dir}/${form}")
  orbchart_add_package_test(${form}.install install "${directory}" "${PROJECT_BINARY_DIR}" ${ARGN})
  orbchart_add_package_test(${form}.cmake cmake "${directory}" "${loaded}")
  orbchart_add_package_test(${form}.pkg_config pkg_config "${directory}" "${loaded}")
  set_tests_properties(package.${form}.install PROPERTIES FIXTURES_SETUP package.${form})
  set_tests_properties(package.${form}.cmake package.${form}.pkg_config PROPERTIES
                       FIXTURES_REQUIRED package.${form})
endfunction()

# The host's own library behind quvaiocv.h: the same operations under another name.
file(GLOB sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/quvaiocv/src/*.cpp")
add_library(orbchart_other_quvaiocv SHARED ${sources})
orbchart_configure_target(orbchart_other_quvaiocv)
set_target_properties(orbchart_other_quvaiocv PROPERTIES OUTPUT_NAME other)
target_include_directories(orbchart_other_quvaiocv PRIVATE "${PROJECT_SOURCE_DIR}/quvaiocv/include")

# Their objects are compiled as those of this tree are, and so need not be compiled again.
set(same_objects -D "CMAKE_COMPILE_WARNING_AS_ERROR=${CMAKE_COMPILE_WARNING_AS_ERROR}"
                 -D "ORBCHART_NAMESPACE_HOST=${ORBCHART_NAMESPACE_HOST}")
orbchart_add_package_tests(released "liborbchart libquvaiocv")
orbchart_add_package_tests(static none -D BUILD_SHARED_LIBS=OFF ${same_objects})
orbchart_add_package_tests(other_quvaiocv "liborbchart libother"
                           -D "ORBCHART_QUVAIOCV_LIBRARY=$<TARGET_FILE:orbchart_other_quvaiocv>" ${same_objects})

# Debian's packages, where their tools are. The folders of the system are searched for what lies there.
find_program(dpkg_deb dpkg-deb)
find_program(dpkg_shlibdeps dpkg-shlibdeps)
if(TARGET orbchart_orbml AND dpkg_deb AND dpkg_shlibdeps)
  add_test(NAME package.debian.install
           COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/package/debian_test" "${package_dir}/debian" "${PROJECT_BINARY_DIR}"
                   "${PROJECT_VERSION}")
  set_tests_properties(package.debian.install PROPERTIES FIXTURES_SETUP package.debian)
  foreach(way IN ITEMS cmake pkg_config)
    orbchart_add_package_test(debian.${way} ${way} "${package_dir}/debian" "liborbchart libquvaiocv")
    set_property(TEST package.debian.${way} APPEND PROPERTY ENVIRONMENT "LD_LIBRARY_PATH=${package_dir}/debian/prefix/lib")
    set_property(TEST package.debian.${way} PROPERTY FIXTURES_REQUIRED package.debian)
  endforeach()
endif()

foreach(way IN ITEMS ctest_before ctest_after fetch_content everything)
  orbchart_add_package_test(subproject.${way} subproject "${package_dir}/${way}" ${way})
endforeach()
orbchart_add_package_test(no_library refuses "${package_dir}/no_library" "ORBCHART_QUVAIOCV_LIBRARY is no file: /none.so"
                          -D ORBCHART_QUVAIOCV_LIBRARY=/none.so)
