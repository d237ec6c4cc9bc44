# Compiles translations/*.ts and makes a resource source of the results, with Qt's own translations.
# A language whose texts this machine's Qt lacks takes them from translations/qt_<code>.ts, if there
# is one. Sets `output` to the source file.
# Resources: :/Translations/libs_<code>.qm, :/Translations/Tessarin_<code>.qm,
# :/Translations/qt_<code>.qm.
function(tessarin_translations output)
    set(codes ar de es fr hi it ko pt ru zh_CN)
    set(folder ${CMAKE_SOURCE_DIR}/translations)
    set(entries "")
    set(sources "")
    foreach(code IN LISTS codes)
        set(kinds libs Tessarin)
        # Qt's Portuguese is that of Brazil.
        string(REGEX REPLACE "^pt$" "pt_BR" qtCode ${code})
        set(qtFile ${TESSARIN_QT_TRANSLATIONS}/qtbase_${qtCode}.qm)
        if(EXISTS ${qtFile})
            string(APPEND entries "  <file alias=\"qt_${code}.qm\">${qtFile}</file>\n")
        elseif(EXISTS ${folder}/qt_${code}.ts)
            list(APPEND kinds qt)
        endif()
        foreach(kind IN LISTS kinds)
            list(APPEND sources ${folder}/${kind}_${code}.ts)
            string(APPEND entries "  <file alias=\"${kind}_${code}.qm\">${kind}_${code}.qm</file>\n")
        endforeach()
    endforeach()

    qt5_add_translation(compiled ${sources})
    set(resource ${CMAKE_CURRENT_BINARY_DIR}/translations.qrc)
    file(CONFIGURE OUTPUT ${resource} @ONLY CONTENT
        "<RCC>\n <qresource prefix=\"/Translations\">\n@entries@ </qresource>\n</RCC>\n")
    set(source ${CMAKE_CURRENT_BINARY_DIR}/qrc_translations.cpp)
    add_custom_command(
        OUTPUT ${source}
        COMMAND Qt5::rcc --name translations --output ${source} ${resource}
        DEPENDS ${resource} ${compiled}
        VERBATIM)
    set_source_files_properties(${source} PROPERTIES SKIP_AUTOGEN ON)
    set(${output} ${source} PARENT_SCOPE)
endfunction()

get_target_property(TESSARIN_QMAKE Qt5::qmake IMPORTED_LOCATION)
execute_process(
    COMMAND ${TESSARIN_QMAKE} -query QT_INSTALL_TRANSLATIONS
    OUTPUT_VARIABLE TESSARIN_QT_TRANSLATIONS
    OUTPUT_STRIP_TRAILING_WHITESPACE)
