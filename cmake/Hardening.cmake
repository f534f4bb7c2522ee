# What Debian hardens its programs with, for release builds, as far as compiler and processor know it: canaries
# before return addresses, checked calls of the C library, no stack that grows past its guard page unnoticed,
# marked targets of indirect jumps, and tables of addresses that are complete and read-only from the start.
include(CheckCXXCompilerFlag)

add_compile_options("$<$<CONFIG:Release>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
foreach(flag stack-protector-strong stack-clash-protection cf-protection)
    check_cxx_compiler_flag(-f${flag} has_${flag})
    if(has_${flag})
        add_compile_options($<$<CONFIG:Release>:-f${flag}>)
    endif()
endforeach()
add_link_options("$<$<CONFIG:Release>:LINKER:-z,relro,-z,now>")
