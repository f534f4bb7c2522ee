# In three components: library (the kernel and the default host), development (headers under
# include/lmrtext, the CMake package, pkg-config) and program (with its manual page and completions).
include(CMakePackageConfigHelpers)

set(header_folder ${CMAKE_INSTALL_INCLUDEDIR}/lmrtext)
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/lmrtext)

set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME development)
install(TARGETS lmrtext kovrhost lmrtext_host_interface EXPORT lmrtextTargets
        LIBRARY COMPONENT library NAMELINK_COMPONENT development
        FILE_SET HEADERS DESTINATION ${header_folder})
install(EXPORT lmrtextTargets NAMESPACE lmrtext:: DESTINATION ${package_folder})

configure_package_config_file(cmake/lmrtextConfig.cmake.in lmrtextConfig.cmake
                              INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(lmrtextConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/lmrtextConfig.cmake
              ${PROJECT_BINARY_DIR}/lmrtextConfigVersion.cmake
        DESTINATION ${package_folder})

# From the folder of the .pc file up to the prefix, so that an installed tree may be moved.
file(RELATIVE_PATH pc_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(cmake/lmrtext.pc.in lmrtext.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/lmrtext.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME program)
if(LMRTEXT_BUILD_PROGRAM)
    install(TARGETS lmrtext_program)
endif()
if(LMRTEXT_BUILD_PROGRAM AND NOT CMAKE_CROSSCOMPILING)
    set(texts ${PROJECT_BINARY_DIR}/cli)
    install(FILES ${texts}/lmrtext.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
    install(FILES ${texts}/lmrtext.bash RENAME lmrtext
            DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
    install(FILES ${texts}/_lmrtext DESTINATION ${zsh_folder})
    install(FILES ${texts}/lmrtext.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
endif()
