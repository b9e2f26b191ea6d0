# Debian packages: the library, what developers need of it, and the program. `cpack` makes them from a build tree.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME orbchart)
set(CPACK_PACKAGE_VENDOR orbchart)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own
set(CPACK_PACKAGE_CONTACT "orbchart developers <orbchart@orbchart.example>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ
                                                WORLD_EXECUTE)
# What Debian asks of a package beyond what an installation holds.
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/packaging/complete.cmake")

set(CPACK_COMPONENTS_ALL Runtime Development)
if(ORBCHART_PROGRAM)
  list(APPEND CPACK_COMPONENTS_ALL Program)
endif()
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}") # where our own libraries are found meanwhile
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(same_version "liborbchart0 (= ${PROJECT_VERSION})")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME liborbchart0)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
# Which package other packages depend on that use the library, and that the linker's cache is renewed.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA "${PROJECT_SOURCE_DIR}/packaging/shlibs"
                                               "${PROJECT_SOURCE_DIR}/packaging/triggers")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "typed object model of the chart language orbml
Holds one chart description in memory as a typed object model over an XML
document: a class for each element of the chart language, over a Xerces-C++
DOM. It neither draws nor computes.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME liborbchart-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${same_version}, libxerces-c-dev")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "typed object model of the chart language orbml (development)
The headers of liborbchart, and the descriptions by which CMake and pkg-config
find it.")

set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME orbml)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_DEPENDS "${same_version}")
set(CPACK_COMPONENT_PROGRAM_DESCRIPTION "look at chart documents of the language orbml
Tells what is wrong with chart documents and where, prints them in the layout
of the language, shows what stands in them, and describes the language. With
its schema.")

include(CPack)
