# The guide and the numbered examples, installed as they stand in the tree, so that links between
# them work. The examples come with a project file that finds the installed library.
set(INSPECTOR_INSTALL_DOCUMENTS ${CMAKE_INSTALL_DATADIR}/doc/${INSPECTOR_PACKAGE})
install(FILES README.md CHANGELOG.md CONTRIBUTING.md
    DESTINATION ${INSPECTOR_INSTALL_DOCUMENTS} COMPONENT dev)
install(DIRECTORY docs
    DESTINATION ${INSPECTOR_INSTALL_DOCUMENTS} COMPONENT dev
    FILES_MATCHING PATTERN "*.md" PATTERN "*.png" PATTERN "*.svg")

include(examples/numbered.cmake)
list(TRANSFORM INSPECTOR_NUMBERED_EXAMPLES PREPEND examples/ OUTPUT_VARIABLE INSPECTOR_EXAMPLE_SOURCES)
list(TRANSFORM INSPECTOR_EXAMPLE_SOURCES APPEND .cpp)
install(FILES ${INSPECTOR_EXAMPLE_SOURCES} examples/numbered.cmake
    DESTINATION ${INSPECTOR_INSTALL_DOCUMENTS}/examples COMPONENT dev)
install(DIRECTORY examples/support
    DESTINATION ${INSPECTOR_INSTALL_DOCUMENTS}/examples COMPONENT dev)
configure_file(cmake/installed-examples.cmake.in
    ${PROJECT_BINARY_DIR}/installed-examples/CMakeLists.txt @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/installed-examples/CMakeLists.txt
    DESTINATION ${INSPECTOR_INSTALL_DOCUMENTS}/examples COMPONENT dev)
