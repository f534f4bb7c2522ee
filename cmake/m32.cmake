# Builds for 32-bit x86 Linux with the compiler of a 64-bit one.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(CMAKE_C_FLAGS_INIT -m32)
set(CMAKE_CXX_FLAGS_INIT -m32)
set(CMAKE_CROSSCOMPILING_EMULATOR "")
# The program looks for its libraries where it is installed; those that are only unpacked lie elsewhere.
set(CMAKE_EXE_LINKER_FLAGS_INIT
    "\"-Wl,-rpath,${CMAKE_CURRENT_LIST_DIR}/../build/i386/usr/lib/i386-linux-gnu\"")
