# What Windows and macOS have in common: all sizes of the icon in one file, and packages that hold the
# toolkit's libraries and plug-ins, as the toolkit's own tool gathers them.

# Makes an icon file, by its extension, before the program is built.
function(tessarin_pack_icon file)
    find_package(Python3 REQUIRED COMPONENTS Interpreter)
    set(script "${PROJECT_SOURCE_DIR}/packaging/icons.py")
    add_custom_command(OUTPUT "${file}"
        COMMAND Python3::Interpreter "${script}" "${file}"
        DEPENDS "${script}" VERBATIM)
    add_custom_target(tessarin_icon DEPENDS "${file}")
    add_dependencies(Tessarin tessarin_icon)
endfunction()

# Lets the tool loose on what has been installed; `program` is told from the install folder on.
function(tessarin_deploy tool program)
    get_target_property(qmake Qt5::qmake IMPORTED_LOCATION)
    cmake_path(GET qmake PARENT_PATH folder)
    find_program(TESSARIN_DEPLOY_TOOL ${tool} HINTS "${folder}")
    if(NOT TESSARIN_DEPLOY_TOOL)
        message(WARNING "${tool} is missing: what is installed will lack the toolkit's libraries")
        return()
    endif()
    install(CODE "execute_process(
        COMMAND \"${TESSARIN_DEPLOY_TOOL}\" \"\${CMAKE_INSTALL_PREFIX}/${program}\"
        COMMAND_ERROR_IS_FATAL ANY)")
endfunction()
