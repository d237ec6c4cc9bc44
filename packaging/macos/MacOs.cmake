# A bundle, and a disk image to drag it from. macOS starts programs in the root folder, so the bundle
# names a launcher that starts the program in "Contents", where "Resources" lies.
include(Deployment.cmake)
set(icns "${CMAKE_CURRENT_BINARY_DIR}/macos/tessarin.icns")
file(MAKE_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/macos")
tessarin_pack_icon("${icns}")
set_target_properties(Tessarin PROPERTIES
    MACOSX_BUNDLE ON
    MACOSX_BUNDLE_INFO_PLIST "${CMAKE_CURRENT_SOURCE_DIR}/macos/Info.plist.in")

install(TARGETS Tessarin BUNDLE DESTINATION .)
install(PROGRAMS macos/launch DESTINATION Tessarin.app/Contents/MacOS)
install(FILES "${icns}" DESTINATION Tessarin.app/Contents/Resources)
tessarin_install_resources(Tessarin.app/Contents)
tessarin_deploy(macdeployqt Tessarin.app)

set(CPACK_GENERATOR DragNDrop)
