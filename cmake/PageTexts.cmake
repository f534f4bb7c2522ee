# Writes a source with texts that stand in pages, each as a PageText with the hash by which a page allows it.

set(base64_digits ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/)

# The hash in base 64, which CMake itself writes in hexadecimal digits only.
function(find_hash_in_base64 path result)
    file(SHA256 ${path} hash)
    set(digits "")
    foreach(start RANGE 0 60 6)
        string(SUBSTRING ${hash} ${start} 6 group)
        string(LENGTH ${group} size)
        string(SUBSTRING ${group}00 0 6 group)  # the last one lacks a byte
        foreach(shift IN ITEMS 18 12 6 0)
            math(EXPR digit "(0x${group} >> ${shift}) & 63")
            string(SUBSTRING ${base64_digits} ${digit} 1 digit)
            string(APPEND digits ${digit})
        endforeach()
    endforeach()
    string(SUBSTRING ${digits} 0 43 digits)
    set(${result} "${digits}=" PARENT_SCOPE)
endfunction()

# Arguments behind the output: pairs of a name and a file.
function(write_page_texts output)
    set(source "#include \"output/page_texts.h\"\n")
    while(ARGN)
        list(POP_FRONT ARGN name path)
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${path})
        find_hash_in_base64(${path} hash)
        file(READ ${path} text)
        string(APPEND source "\nconst PageText ${name} = {R\"page-text(${text})page-text\",\n    \"sha256-${hash}\"};\n")
    endwhile()
    file(CONFIGURE OUTPUT ${output} CONTENT "${source}" @ONLY)
endfunction()
