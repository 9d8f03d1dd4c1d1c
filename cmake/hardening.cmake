# What the shipped program is built with beyond its own care: checked stacks, buffers and jumps, addresses that cannot be
# guessed, tables that cannot be written.
include(CheckCXXCompilerFlag)
include(CheckPIESupported)

check_pie_supported()
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

if(CMAKE_BUILD_TYPE STREQUAL "Release" AND NOT WIN32)
    add_compile_options(-fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
    foreach(flag -fstack-clash-protection -fcf-protection=full)
        string(MAKE_C_IDENTIFIER "has${flag}" has_flag)
        check_cxx_compiler_flag(${flag} ${has_flag})
        if(${has_flag})
            add_compile_options(${flag})
        endif()
    endforeach()
    add_link_options(-Wl,-z,relro,-z,now,-z,noexecstack)
endif()
