# How every target of the project is compiled, and where Qt comes from.

if(NOT INSPECTOR_CORE_ONLY)
    find_package(Qt${INSPECTOR_QT} REQUIRED COMPONENTS Widgets)
endif()

# The project's own targets: language level, warnings, sanitizers. Nothing of it is exported.
function(inspector_compile_options target)
    set_target_properties(${target} PROPERTIES
        CXX_STANDARD 17
        CXX_STANDARD_REQUIRED ON
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    if(NOT MSVC)
        target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow)
        if(INSPECTOR_WARNINGS_AS_ERRORS)
            target_compile_options(${target} PRIVATE -Werror)
        endif()
        if(INSPECTOR_SANITIZE)
            target_compile_options(${target} PRIVATE
                -fsanitize=${INSPECTOR_SANITIZE} -fno-sanitize-recover=all
                -fno-omit-frame-pointer)
            target_link_options(${target} PRIVATE -fsanitize=${INSPECTOR_SANITIZE})
        endif()
    endif()
endfunction()

# Targets that use Qt: moc, and none of Qt's old conveniences.
function(inspector_qt_options target)
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    target_compile_definitions(${target} PRIVATE
        QT_NO_KEYWORDS
        QT_NO_FOREACH
        QT_NO_CAST_FROM_ASCII
        QT_NO_CAST_TO_ASCII
        QT_NO_URL_CAST_FROM_STRING)
endfunction()
