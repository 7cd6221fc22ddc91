# How every target of the project is compiled, and where Qt comes from.

if(NOT INSPECTOR_CORE_ONLY)
    if(NOT INSPECTOR_QT MATCHES "^[56]$")
        message(FATAL_ERROR "INSPECTOR_QT is '${INSPECTOR_QT}'; it must be 6 or 5")
    endif()
    find_package(Qt${INSPECTOR_QT} REQUIRED COMPONENTS Widgets)
    # Qt is compatible within a minor version and upwards, so this is what a host needs at least.
    string(REGEX MATCH "^[0-9]+\\.[0-9]+" INSPECTOR_QT_MINIMUM
        "${Qt${INSPECTOR_QT}Widgets_VERSION}")
endif()

# Shared unless the builder says otherwise.
if(DEFINED BUILD_SHARED_LIBS AND NOT BUILD_SHARED_LIBS)
    set(INSPECTOR_LIBRARY_TYPE STATIC)
else()
    set(INSPECTOR_LIBRARY_TYPE SHARED)
endif()

# The name that hosts find the library by.
set(INSPECTOR_PACKAGE inspector${INSPECTOR_SUFFIX})

set(INSPECTOR_GENERATED_HEADER ${PROJECT_BINARY_DIR}/include/inspectorversion.h)
configure_file(${PROJECT_SOURCE_DIR}/cmake/inspectorversion.h.in ${INSPECTOR_GENERATED_HEADER}
    @ONLY)

# The project's own targets: language level, warnings, sanitizers. Nothing of it is exported.
function(inspector_compile_options target)
    set_target_properties(${target} PROPERTIES
        CXX_STANDARD 17
        CXX_STANDARD_REQUIRED ON
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    if(MSVC)
        return()
    endif()
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow)
    # What is shipped does not say where it was built; a debug build keeps the paths for debuggers.
    target_compile_options(${target} PRIVATE $<$<NOT:$<CONFIG:Debug>>:
        -ffile-prefix-map=${PROJECT_SOURCE_DIR}=. -ffile-prefix-map=${PROJECT_BINARY_DIR}=.>)
    if(INSPECTOR_WARNINGS_AS_ERRORS)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    if(INSPECTOR_SANITIZE)
        target_compile_options(${target} PRIVATE
            -fsanitize=${INSPECTOR_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(${target} PRIVATE -fsanitize=${INSPECTOR_SANITIZE})
    endif()
endfunction()

# A shared library must name everything it needs. A sanitizer's run-time library is found only when
# the program is linked, so that the check cannot hold there.
function(inspector_no_undefined_symbols target)
    if(CMAKE_SYSTEM_NAME STREQUAL "Linux" AND NOT INSPECTOR_SANITIZE
            AND NOT "${CMAKE_CXX_FLAGS} ${CMAKE_SHARED_LINKER_FLAGS}" MATCHES "-fsanitize")
        target_link_options(${target} PRIVATE LINKER:--no-undefined)
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
