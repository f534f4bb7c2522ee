# Debian packages: `cpack` in a build for the prefix /usr, as the preset release is.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VENDOR "${PROJECT_NAME} developers")
# The project has no address of its own: no mail can ever reach this host.
set(CPACK_PACKAGE_CONTACT "${PROJECT_NAME} developers <developers@lmrtext.invalid>")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_STRIP_FILES ON)
# Whatever the umask of who makes them.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/${CMAKE_INSTALL_LIBDIR})

# The program and the headers fit the library of the same build.
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS library)
set(CPACK_COMPONENT_PROGRAM_DEPENDS library)

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME liblmrtext${soname_version})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
# Others' packages depend on the library by its sonames, and the cache of libraries is renewed.
set(control ${PROJECT_BINARY_DIR}/debian)
file(WRITE ${control}/triggers "activate-noawait ldconfig\n")
file(WRITE ${control}/shlibs "")
foreach(library lmrtext kovrhost)
    file(APPEND ${control}/shlibs "lib${library} ${soname_version} ${CPACK_DEBIAN_LIBRARY_PACKAGE_NAME} "
                                  "(>= ${PROJECT_VERSION})\n")
endforeach()
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${control}/shlibs ${control}/triggers)
set(CPACK_COMPONENT_LIBRARY_DESCRIPTION
    "Holds the text fields of crystal-structure entries with their styles, converts
them between mark-ups, and highlights what a search matches.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME liblmrtext-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
    "What programs need to be built with the library: headers, CMake package and
pkg-config file.")

set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME lmrtext)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION science)
set(CPACK_COMPONENT_PROGRAM_DESCRIPTION
    "The program that converts, shows, searches and compares the texts of
crystal-structure entries.")

set(CPACK_COMPONENTS_ALL library development)
if(LMRTEXT_BUILD_PROGRAM)
    list(APPEND CPACK_COMPONENTS_ALL program)
endif()
set(changelog ${PROJECT_BINARY_DIR}/changelog.gz)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS CHANGELOG.md)
execute_process(COMMAND cmake/debian_changelog.sh CHANGELOG.md ${PROJECT_NAME} ${CPACK_PACKAGE_CONTACT}
                COMMAND gzip -9n
                WORKING_DIRECTORY ${PROJECT_SOURCE_DIR} OUTPUT_FILE ${changelog}
                COMMAND_ERROR_IS_FATAL ANY)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} upper)
    install(FILES cmake/copyright ${changelog} COMPONENT ${component}
            DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
endforeach()
include(CPack)
