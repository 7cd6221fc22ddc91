# What is installed: library, headers, the CMake package and the pkg-config file; and by the project
# itself also guide and examples. Every path is
# relative to the place where it ends up, so that the whole can be moved.
include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

set(INSPECTOR_INSTALL_HEADERS ${CMAKE_INSTALL_INCLUDEDIR}/${INSPECTOR_PACKAGE})
set(INSPECTOR_INSTALL_CMAKE ${CMAKE_INSTALL_LIBDIR}/cmake/${INSPECTOR_PACKAGE})
set(INSPECTOR_INSTALL_PKGCONFIG ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

set(INSPECTOR_HEADERS
    booldataelement.h
    buttondataelement.h
    enumdataelement.h
    inplaceeditsink.h
    inspectorcontroller.h
    inspectordataelement.h
    inspectordatawidget.h
    inspectorexport.h
    inspectorview.h
    qtbuttonwidget.h
    qtenumdatawidget.h
    qtinspectorview.h
    qtsimpleboolwidget.h
    qtsimpledatawidget.h
    qtsimpletextwidget.h
    qtstaticwidget.h
    qttextencoding.h
    simpledataelement.h
    simpledataprovider.h
    staticdataelement.h)
list(TRANSFORM INSPECTOR_HEADERS PREPEND ${PROJECT_SOURCE_DIR}/include/)

set_target_properties(inspector PROPERTIES EXPORT_NAME inspector)
install(TARGETS inspector EXPORT inspectorTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT dev
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT dev
    INCLUDES DESTINATION ${INSPECTOR_INSTALL_HEADERS})
install(FILES ${INSPECTOR_HEADERS} ${INSPECTOR_GENERATED_HEADER}
    DESTINATION ${INSPECTOR_INSTALL_HEADERS} COMPONENT dev)

install(EXPORT inspectorTargets
    NAMESPACE inspector::
    FILE ${INSPECTOR_PACKAGE}Targets.cmake
    DESTINATION ${INSPECTOR_INSTALL_CMAKE} COMPONENT dev)
configure_package_config_file(
    ${PROJECT_SOURCE_DIR}/cmake/inspectorConfig.cmake.in
    ${PROJECT_BINARY_DIR}/${INSPECTOR_PACKAGE}Config.cmake
    INSTALL_DESTINATION ${INSPECTOR_INSTALL_CMAKE}
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(
    ${PROJECT_BINARY_DIR}/${INSPECTOR_PACKAGE}ConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/${INSPECTOR_PACKAGE}Config.cmake
    ${PROJECT_BINARY_DIR}/${INSPECTOR_PACKAGE}ConfigVersion.cmake
    DESTINATION ${INSPECTOR_INSTALL_CMAKE} COMPONENT dev)

# pkg-config: the prefix is found from the place of the file itself.
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}" OR IS_ABSOLUTE "${CMAKE_INSTALL_INCLUDEDIR}")
    set(INSPECTOR_PC_PREFIX "${CMAKE_INSTALL_PREFIX}")
    set(INSPECTOR_PC_LIBDIR "${CMAKE_INSTALL_FULL_LIBDIR}")
    set(INSPECTOR_PC_INCLUDEDIR "${CMAKE_INSTALL_FULL_INCLUDEDIR}/${INSPECTOR_PACKAGE}")
else()
    file(RELATIVE_PATH INSPECTOR_PC_UP "/${INSPECTOR_INSTALL_PKGCONFIG}" "/")
    string(REGEX REPLACE "/$" "" INSPECTOR_PC_UP "${INSPECTOR_PC_UP}")
    set(INSPECTOR_PC_PREFIX "\${pcfiledir}/${INSPECTOR_PC_UP}")
    set(INSPECTOR_PC_LIBDIR "\${prefix}/${CMAKE_INSTALL_LIBDIR}")
    set(INSPECTOR_PC_INCLUDEDIR "\${prefix}/${INSPECTOR_INSTALL_HEADERS}")
endif()
set(INSPECTOR_PC_CFLAGS "-I\${includedir}")
set(INSPECTOR_PC_LIBS "-L\${libdir} -l${INSPECTOR_PACKAGE}")
if(INSPECTOR_LIBRARY_TYPE STREQUAL "STATIC")
    string(APPEND INSPECTOR_PC_CFLAGS " -DINSPECTOR_STATIC")
    string(APPEND INSPECTOR_PC_LIBS " -lstdc++")
endif()
configure_file(${PROJECT_SOURCE_DIR}/cmake/inspector.pc.in
    ${PROJECT_BINARY_DIR}/${INSPECTOR_PACKAGE}.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/${INSPECTOR_PACKAGE}.pc
    DESTINATION ${INSPECTOR_INSTALL_PKGCONFIG} COMPONENT dev)

if(PROJECT_IS_TOP_LEVEL)
    include(InspectorDocuments)
    include(InspectorPackages)
endif()
