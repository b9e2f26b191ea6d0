# What an installation holds: the headers, the libraries, the descriptions by which CMake and pkg-config find them, and
# the schema.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/orbchart")
set(include_dir "${CMAKE_INSTALL_INCLUDEDIR}/orbchart")

install(TARGETS orbchart orbchart_quvaiocv EXPORT orbchartTargets
        LIBRARY COMPONENT Runtime NAMELINK_COMPONENT Development
        ARCHIVE COMPONENT Development
        INCLUDES DESTINATION "${include_dir}")
install(DIRECTORY orbchart/include/ quvaiocv/include/ DESTINATION "${include_dir}" COMPONENT Development
        FILES_MATCHING PATTERN "*.h")
install(FILES orbchart/schema/orbml-2.9.xsd DESTINATION "${CMAKE_INSTALL_DATADIR}/xml/orbml" COMPONENT Program)

install(EXPORT orbchartTargets NAMESPACE orbchart:: DESTINATION "${package_dir}" COMPONENT Development)
configure_package_config_file(cmake/orbchartConfig.cmake.in orbchartConfig.cmake INSTALL_DESTINATION "${package_dir}"
                              NO_SET_AND_CHECK_MACRO)
# Before 1.0 a minor version may change the interface.
write_basic_package_version_file(orbchartConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/orbchartConfig.cmake"
              "${CMAKE_CURRENT_BINARY_DIR}/orbchartConfigVersion.cmake" DESTINATION "${package_dir}"
        COMPONENT Development)

# The .pc file finds the headers from where it lies itself, so that a moved installation stays whole.
file(RELATIVE_PATH includedir_from_pc "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig"
     "${CMAKE_INSTALL_FULL_INCLUDEDIR}/orbchart")
if(ORBCHART_QUVAIOCV_LIBRARY)
  set(quvaiocv_link "${ORBCHART_QUVAIOCV_LIBRARY}")
else()
  set(quvaiocv_link "-lquvaiocv")
endif()
# A shared library brings ICU along; a host that links the static one needs it on its own command line.
set(requirements "xerces-c >= 3.2")
if(NOT BUILD_SHARED_LIBS)
  string(APPEND requirements ", icu-uc")
endif()
configure_file(cmake/orbchart.pc.in orbchart.pc @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/orbchart.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig"
        COMPONENT Development)
