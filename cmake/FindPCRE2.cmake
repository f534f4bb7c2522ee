# Finds the 8-bit PCRE2 library; sets PCRE2_INCLUDE_DIR and PCRE2_LIBRARY, defines PCRE2::PCRE2.
find_path(PCRE2_INCLUDE_DIR pcre2.h)
find_library(PCRE2_LIBRARY pcre2-8)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(PCRE2 REQUIRED_VARS PCRE2_LIBRARY PCRE2_INCLUDE_DIR)

if(PCRE2_FOUND AND NOT TARGET PCRE2::PCRE2)
    add_library(PCRE2::PCRE2 UNKNOWN IMPORTED)
    set_target_properties(PCRE2::PCRE2 PROPERTIES
        IMPORTED_LOCATION ${PCRE2_LIBRARY}
        INTERFACE_INCLUDE_DIRECTORIES ${PCRE2_INCLUDE_DIR})
endif()
