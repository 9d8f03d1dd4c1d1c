# For Windows from elsewhere: MinGW, and Wine to run what it builds. The programs bring the compiler's libraries along.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix) # the other variant has no threads
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
# In a folder of its own, and without entries for the desktop's menus: nothing of the user's is touched.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_COMMAND};-E;env
    WINEPREFIX=${CMAKE_BINARY_DIR}/wine;WINEDLLOVERRIDES=winemenubuilder.exe=;WINEDEBUG=-all;wine)
