# One interface target carries what every target of the project is compiled with.
add_library(tessarin_build_flags INTERFACE)
target_compile_options(tessarin_build_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion)
target_compile_definitions(tessarin_build_flags INTERFACE
    QT_NO_FOREACH QT_NO_CAST_TO_ASCII QT_DEPRECATED_WARNINGS)

if(TESSARIN_SANITIZE)
    add_compile_options(-fsanitize=${TESSARIN_SANITIZE} -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${TESSARIN_SANITIZE})
endif()
