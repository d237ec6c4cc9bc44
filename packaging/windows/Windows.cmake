# A program without a console, with icon and version, and an installer by NSIS.
include(Deployment.cmake)
enable_language(RC)
set(windows_built "${CMAKE_CURRENT_BINARY_DIR}/windows")
tessarin_pack_icon("${windows_built}/tessarin.ico")
target_sources(Tessarin PRIVATE "${windows_built}/tessarin.rc")
set_source_files_properties("${windows_built}/tessarin.rc" TARGET_DIRECTORY Tessarin
    PROPERTIES OBJECT_DEPENDS "${windows_built}/tessarin.ico"
               INCLUDE_DIRECTORIES "${windows_built}")
set_target_properties(Tessarin PROPERTIES WIN32_EXECUTABLE ON)

install(TARGETS Tessarin RUNTIME DESTINATION .)
tessarin_install_resources(.)
tessarin_deploy(windeployqt Tessarin.exe)

set(CPACK_GENERATOR NSIS)
set(CPACK_PACKAGE_INSTALL_DIRECTORY Tessarin)
set(CPACK_NSIS_DISPLAY_NAME Tessarin)
set(CPACK_NSIS_PACKAGE_NAME Tessarin)
set(CPACK_NSIS_MUI_ICON "${windows_built}/tessarin.ico")
set(CPACK_NSIS_MUI_UNIICON "${windows_built}/tessarin.ico")
set(CPACK_NSIS_INSTALLED_ICON_NAME Tessarin.exe)
set(CPACK_NSIS_URL_INFO_ABOUT "${TESSARIN_MAKER_HOME}")
set(CPACK_NSIS_CONTACT "${TESSARIN_SUPPORT_MAIL}")
set(CPACK_NSIS_ENABLE_UNINSTALL_BEFORE_INSTALL ON)
# A shortcut starts the program in the folder that the installer stands in when it makes it: the one
# that holds "Resources".
set(CPACK_NSIS_EXECUTABLES_DIRECTORY .)
set(CPACK_PACKAGE_EXECUTABLES Tessarin Tessarin)
set(CPACK_CREATE_DESKTOP_LINKS Tessarin)
