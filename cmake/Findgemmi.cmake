# Finds the headers of gemmi, which are all that is used of it; defines gemmi::gemmi.
find_path(GEMMI_INCLUDE_DIR gemmi/cif.hpp)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(gemmi REQUIRED_VARS GEMMI_INCLUDE_DIR)

if(gemmi_FOUND AND NOT TARGET gemmi::gemmi)
    add_library(gemmi::gemmi INTERFACE IMPORTED)
    set_target_properties(gemmi::gemmi PROPERTIES
        INTERFACE_INCLUDE_DIRECTORIES ${GEMMI_INCLUDE_DIR})
endif()
