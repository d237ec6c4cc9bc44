# The freedesktop.org ways, and a package for Debian and Ubuntu.
include(GNUInstallDirs)
set(linux_sources "${CMAKE_CURRENT_SOURCE_DIR}/linux")
set(linux_built "${CMAKE_CURRENT_BINARY_DIR}/linux")

# The launcher finds both folders from where it lies itself: the tree may be moved as a whole.
set(program_folder "${CMAKE_INSTALL_LIBEXECDIR}/tessarin")
set(data_folder "${CMAKE_INSTALL_DATADIR}/tessarin")
file(RELATIVE_PATH TESSARIN_PROGRAM_FOLDER
    "${CMAKE_INSTALL_FULL_BINDIR}" "${CMAKE_INSTALL_FULL_LIBEXECDIR}/tessarin")
file(RELATIVE_PATH TESSARIN_DATA_FOLDER
    "${CMAKE_INSTALL_FULL_BINDIR}" "${CMAKE_INSTALL_FULL_DATADIR}/tessarin")

# Debian's form of a licence text: each line behind a space, an empty one as a dot.
file(READ "${PROJECT_SOURCE_DIR}/LICENSE" licence)
if(NOT licence MATCHES "Copyright \\(c\\) ([^\n]*)\n\n(.*)\n$")
    message(FATAL_ERROR "LICENSE holds no line of copyright with the terms under it")
endif()
set(TESSARIN_COPYRIGHT "${CMAKE_MATCH_1}")
string(REPLACE "\n" "\n " TESSARIN_LICENCE " ${CMAKE_MATCH_2}")
string(REPLACE "\n \n" "\n .\n" TESSARIN_LICENCE "${TESSARIN_LICENCE}")

# The menu's entry and the software centre's page tell the same categories.
set(categories Graphics Photography RasterGraphics 2DGraphics)
list(JOIN categories "</category><category>" TESSARIN_CATEGORY_ELEMENTS)
set(TESSARIN_CATEGORY_ELEMENTS "<category>${TESSARIN_CATEGORY_ELEMENTS}</category>")
set(TESSARIN_CATEGORIES "${categories}")

foreach(file IN ITEMS launcher tessarin.desktop tessarin.metainfo.xml tessarin.1 copyright)
    configure_file(linux/${file}.in linux/${file} @ONLY)
endforeach()
configure_file("${PROJECT_SOURCE_DIR}/CHANGELOG.md" linux/CHANGELOG.md COPYONLY)

# Manuals and lists of changes are installed packed.
find_program(TESSARIN_GZIP gzip)
function(pack file variable)
    set(packed "${linux_built}/${file}")
    if(TESSARIN_GZIP)
        set(packed "${packed}.gz")
        execute_process(COMMAND "${TESSARIN_GZIP}" -9nc "${linux_built}/${file}"
            OUTPUT_FILE "${packed}" COMMAND_ERROR_IS_FATAL ANY)
    endif()
    set(${variable} "${packed}" PARENT_SCOPE)
endfunction()
pack(tessarin.1 manual)
pack(CHANGELOG.md changes)
# Debian wants its packages to have a list of a form of its own, with dates as in mails.
find_program(TESSARIN_DPKG dpkg)
if(TESSARIN_DPKG AND TESSARIN_GZIP)
    execute_process(COMMAND date --utc --rfc-email --date "${TESSARIN_RELEASE_DATE}"
        OUTPUT_VARIABLE TESSARIN_RELEASE_DAY OUTPUT_STRIP_TRAILING_WHITESPACE
        COMMAND_ERROR_IS_FATAL ANY)
    configure_file(linux/changelog.in linux/changelog @ONLY)
    pack(changelog debian_changes)
endif()

install(TARGETS Tessarin RUNTIME DESTINATION "${program_folder}")
tessarin_install_resources("${data_folder}")
install(PROGRAMS "${linux_built}/launcher" DESTINATION "${CMAKE_INSTALL_BINDIR}" RENAME tessarin)
install(FILES "${linux_built}/copyright" "${changes}" ${debian_changes}
    DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/tessarin")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/docs/flows"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/tessarin")

# What the desktop reads is a component of its own: it can be installed, and checked, unbuilt.
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME desktop)
# Wayland looks for the desktop file by the organization's domain, turned round, and the program's name.
install(FILES "${linux_built}/tessarin.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications"
    RENAME "${TESSARIN_APPLICATION_ID}.desktop")
install(FILES "${linux_built}/tessarin.metainfo.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo"
    RENAME "${TESSARIN_APPLICATION_ID}.metainfo.xml")
install(FILES "${linux_sources}/tessarin-flow.xml"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/mime/packages" RENAME tessarin.xml)
install(FILES "${manual}" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
function(install_icon source_name target_name)
    set(source "${PROJECT_SOURCE_DIR}/app/art/icons/${source_name}")
    set(theme "${CMAKE_INSTALL_DATADIR}/icons/hicolor")
    foreach(size IN ITEMS 16 24 32 48 64 128 256 512)
        cmake_path(GET target_name PARENT_PATH folder)
        cmake_path(GET target_name FILENAME name)
        install(FILES "${source}-${size}.png" DESTINATION "${theme}/${size}x${size}/${folder}"
            RENAME "${name}.png")
    endforeach()
    install(FILES "${source}.svg" DESTINATION "${theme}/scalable/${folder}" RENAME "${name}.svg")
endfunction()
install_icon(tessarin apps/tessarin)
install_icon(flow-file mimetypes/application-x-tessarin-flow+xml)
unset(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tessarin)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Plug-ins that no library of the program names. Without the first, saving as TIFF writes nothing;
# with the second, the program reads more kinds of photos.
set(CPACK_DEBIAN_PACKAGE_DEPENDS qt5-image-formats-plugins)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS kimageformat-plugins)
