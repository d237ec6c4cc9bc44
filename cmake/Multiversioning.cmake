# Pixel kernels are compiled once per instruction set and chosen at run time. The check links and
# runs, with the flags of this build: thread sanitizing, for one, lets such programs die at start.
include(CheckCXXSourceRuns)

set(TESSARIN_MULTIVERSION_ATTRIBUTE "")
if(TESSARIN_MULTIVERSION AND NOT TESSARIN_SANITIZE MATCHES "thread")
    set(CMAKE_REQUIRED_FLAGS "${CMAKE_CXX_FLAGS}")
    if(TESSARIN_SANITIZE)
        string(APPEND CMAKE_REQUIRED_FLAGS " -fsanitize=${TESSARIN_SANITIZE}")
        set(CMAKE_REQUIRED_LINK_OPTIONS "-fsanitize=${TESSARIN_SANITIZE}")
    endif()
    check_cxx_source_runs("
        namespace {
        __attribute__((target_clones(\"default\", \"avx2\", \"arch=x86-64-v4\")))
        int twice(int value) { return 2 * value; }
        }
        int main(int argc, char**) { return twice(argc) - 2 * argc; }"
        TESSARIN_HAS_TARGET_CLONES)
    unset(CMAKE_REQUIRED_FLAGS)
    unset(CMAKE_REQUIRED_LINK_OPTIONS)
    if(TESSARIN_HAS_TARGET_CLONES)
        set(TESSARIN_MULTIVERSION_ATTRIBUTE
            "__attribute__((target_clones(\"default\", \"avx2\", \"arch=x86-64-v4\")))")
    endif()
endif()
