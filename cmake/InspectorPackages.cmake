# Debian packages: `cpack -G DEB` gives a run-time and a development package, or only the second one for
# a static library. Those for Qt 5 have names of their own. With a suffix ("-qt5") their files have
# other names as well, and both can be installed; without one they stand in each other's way, and say
# so.
set(INSPECTOR_PACKAGE_SUFFIX "${INSPECTOR_SUFFIX}")
if(INSPECTOR_QT EQUAL 5)
    set(INSPECTOR_QT_DEV_PACKAGE qtbase5-dev)
    if(NOT INSPECTOR_SUFFIX)
        set(INSPECTOR_PACKAGE_SUFFIX -qt5)
        set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONFLICTS libinspector${PROJECT_VERSION_MAJOR})
        set(CPACK_DEBIAN_DEV_PACKAGE_CONFLICTS libinspector-dev)
    endif()
else()
    set(INSPECTOR_QT_DEV_PACKAGE qt6-base-dev)
endif()
if(INSPECTOR_PACKAGE_SUFFIX)
    set(INSPECTOR_RUNTIME_PACKAGE libinspector${INSPECTOR_PACKAGE_SUFFIX}-${PROJECT_VERSION_MAJOR})
else()
    set(INSPECTOR_RUNTIME_PACKAGE libinspector${PROJECT_VERSION_MAJOR})
endif()
set(INSPECTOR_DEV_PACKAGE libinspector${INSPECTOR_PACKAGE_SUFFIX}-dev)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME inspector${INSPECTOR_PACKAGE_SUFFIX})
set(CPACK_PACKAGE_VENDOR "Inspector developers")
set(CPACK_PACKAGE_CONTACT "Inspector developers <inspector@example.org>" CACHE STRING
    "Maintainer that packages name: a name and an address")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "property inspector for Qt ${INSPECTOR_QT}")
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
if(INSPECTOR_LIBRARY_TYPE STREQUAL "STATIC")
    set(CPACK_COMPONENTS_ALL dev)
    set(INSPECTOR_DEV_DEPENDS ${INSPECTOR_QT_DEV_PACKAGE})
else()
    set(CPACK_COMPONENTS_ALL runtime dev)
    set(INSPECTOR_DEV_DEPENDS
        "${INSPECTOR_RUNTIME_PACKAGE} (= ${PROJECT_VERSION}), ${INSPECTOR_QT_DEV_PACKAGE}")
endif()
set(CPACK_COMPONENTS_GROUPING IGNORE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${INSPECTOR_RUNTIME_PACKAGE})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
    "A vertical, scrollable panel of labelled controls that shows and
edits the parameters of an object. This package holds the shared library.")
set(CPACK_DEBIAN_DEV_PACKAGE_NAME ${INSPECTOR_DEV_PACKAGE})
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "${INSPECTOR_DEV_DEPENDS}")
set(CPACK_COMPONENT_DEV_DESCRIPTION
    "A vertical, scrollable panel of labelled controls that shows and
edits the parameters of an object. This package holds the headers, the
files for CMake and pkg-config, the guide and examples.")

# The files that every Debian package carries, and the notice to the linker's cache.
string(TIMESTAMP INSPECTOR_PACKAGE_DATE "%a, %d %b %Y %H:%M:%S +0000" UTC)
find_program(INSPECTOR_GZIP gzip)
mark_as_advanced(INSPECTOR_GZIP)
foreach(component IN ITEMS RUNTIME DEV)
    set(package ${INSPECTOR_${component}_PACKAGE})
    string(TOLOWER ${component} lower)
    set(folder ${PROJECT_BINARY_DIR}/packages/${package})
    set(files ${folder}/copyright)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/debian/copyright.in ${folder}/copyright @ONLY)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/debian/changelog.in ${folder}/changelog @ONLY)
    if(INSPECTOR_GZIP)
        execute_process(COMMAND ${INSPECTOR_GZIP} -9nkf ${folder}/changelog
            COMMAND_ERROR_IS_FATAL ANY)
        list(APPEND files ${folder}/changelog.gz)
    endif()
    install(FILES ${files}
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package} COMPONENT ${lower} EXCLUDE_FROM_ALL)
endforeach()
configure_file(${PROJECT_SOURCE_DIR}/cmake/debian/triggers ${PROJECT_BINARY_DIR}/packages/triggers
    COPYONLY)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/packages/triggers)

include(CPack)
