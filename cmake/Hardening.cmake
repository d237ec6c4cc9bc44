# Builds that are given away guard themselves: a write beyond an array, or beyond what a container
# holds, ends the program where it happens, and no part of it lies at an address known beforehand.
# Each guard is taken where compiler and linker have it. Builds with sanitizers have guards of their
# own, and the library's checked functions need optimization.
include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)
include(CheckPIESupported)

option(TESSARIN_HARDEN "Guard stack, memory and addresses in optimized builds" ON)

if(NOT TESSARIN_HARDEN OR TESSARIN_SANITIZE
        OR NOT CMAKE_BUILD_TYPE MATCHES "^(Release|RelWithDebInfo|MinSizeRel)$")
    return()
endif()

# Some systems bring the guard of the stack in a library of its own, so that linking is part of the
# check.
set(CMAKE_REQUIRED_LINK_OPTIONS -fstack-protector-strong)
check_cxx_compiler_flag(-fstack-protector-strong TESSARIN_HAS_STACK_PROTECTOR)
unset(CMAKE_REQUIRED_LINK_OPTIONS)
if(TESSARIN_HAS_STACK_PROTECTOR)
    # Compilers of some systems define _FORTIFY_SOURCE themselves, and warn of another value.
    add_compile_options(-fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2
        -D_GLIBCXX_ASSERTIONS)
    add_link_options(-fstack-protector-strong)
endif()

check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

check_linker_flag(CXX "-Wl,-z,relro,-z,now" TESSARIN_HAS_READ_ONLY_RELOCATIONS)
if(TESSARIN_HAS_READ_ONLY_RELOCATIONS)
    add_link_options("-Wl,-z,relro,-z,now")
endif()
