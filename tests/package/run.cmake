# Builds one consumer outside the source tree and runs it.
#
# Variables: kind (find_package, pkg_config, add_subdirectory, fetch_content, getting_started, examples
# or deb), guide_test (the test of the guide), sources (the root of the project), build (its build folder), work (a folder of the test), package, version, qt,
# compiler, build_type, shared.
#
# The library is installed into one folder and moved to another before it is used, so that a path
# that was written down anywhere is a wrong one.

function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# A folder with nothing of the source tree above it.
string(MD5 id "${work}-${kind}")
set(temporary "$ENV{TMPDIR}")
if(NOT temporary)
    set(temporary /tmp)
endif()
set(place "${temporary}/package-${id}")
file(REMOVE_RECURSE "${place}")
file(MAKE_DIRECTORY "${place}")
set(consumer ${kind})
if(kind STREQUAL "deb")
    set(consumer find_package)
elseif(kind STREQUAL "fetch_content")
    set(consumer add_subdirectory)
endif()
file(COPY "${sources}/tests/package/host" DESTINATION "${place}/consumer")
if(NOT kind STREQUAL "examples")
    file(COPY "${sources}/tests/package/${consumer}" DESTINATION "${place}/consumer")
endif()

set(ENV{QT_QPA_PLATFORM} offscreen)
unset(ENV{DESTDIR})
set(common
    -G Ninja
    -DCMAKE_CXX_COMPILER=${compiler}
    -DCMAKE_BUILD_TYPE=${build_type}
    -DHOST_PACKAGE=${package}
    -DHOST_EXPECTED_VERSION=${version})

if(consumer STREQUAL "add_subdirectory")
    # From a copy of the sources, as a host has them in its own tree.
    file(COPY "${sources}/CMakeLists.txt" "${sources}/cmake" "${sources}/include"
        "${sources}/inspector" DESTINATION "${place}/library")
    run(${CMAKE_COMMAND} -S ${place}/consumer/add_subdirectory -B ${place}/build ${common}
        -DHOST_LIBRARY_SOURCES=${place}/library
        -DHOST_WAY=${kind}
        -DHOST_HEADERS=${place}/library/include
        -DINSPECTOR_QT=${qt}
        -DBUILD_SHARED_LIBS=${shared})
    # Fetched, it is added in the same way: that the project accepts it says enough.
    if(kind STREQUAL "add_subdirectory")
        run(${CMAKE_COMMAND} --build ${place}/build)
        run(${place}/build/host/host)
    endif()
else()
    if(kind STREQUAL "deb")
        run(${CMAKE_CPACK_COMMAND} -G DEB --config ${build}/CPackConfig.cmake -B ${place}/deb)
        file(GLOB packages "${place}/deb/*.deb")
        list(LENGTH packages count)
        if(shared)
            set(expected 2)
        else()
            set(expected 1)
        endif()
        if(NOT count EQUAL expected)
            message(FATAL_ERROR "not ${expected} packages (one run-time, unless the library is static, and "
                "one development package): ${packages}")
        endif()
        find_program(lintian lintian)
        if(lintian)
            run(${lintian} --allow-root --fail-on error ${packages})
        endif()
        foreach(deb IN LISTS packages)
            run(dpkg-deb --info ${deb})
            run(dpkg-deb --extract ${deb} ${place}/root)
        endforeach()
        file(RENAME "${place}/root/usr" "${place}/moved")
    else()
        run(${CMAKE_COMMAND} --install ${build} --prefix ${place}/first)
        file(RENAME "${place}/first" "${place}/moved")
    endif()
    # A debug build keeps its paths, for the debugger.
    set(searched)
    if(build_type STREQUAL "Debug")
        set(searched --include=*.h --include=*.cmake --include=*.pc)
    endif()
    foreach(forbidden IN ITEMS "${sources}" "${build}" "${place}/first")
        execute_process(COMMAND grep -rlF ${searched} ${forbidden} ${place}/moved
            OUTPUT_VARIABLE found RESULT_VARIABLE status)
        if(NOT status EQUAL 1)
            message(FATAL_ERROR "installed files name ${forbidden}:\n${found}")
        endif()
    endforeach()
    file(GLOB_RECURSE libraries "${place}/moved/lib*/lib${package}.*")
    list(GET libraries 0 library)
    get_filename_component(folder "${library}" DIRECTORY)

    if(kind STREQUAL "getting_started")
        # The project of the guide, as the guide has it.
        set(project ${place}/consumer/getting_started)
        configure_file(${sources}/examples/01-three-rows.cpp ${project}/main.cpp COPYONLY)
        run(${CMAKE_COMMAND} -S ${project} -B ${place}/build -G Ninja
            -DCMAKE_CXX_COMPILER=${compiler} -DCMAKE_PREFIX_PATH=${place}/moved)
        run(${CMAKE_COMMAND} --build ${place}/build)
        run(${place}/build/circle --once)
    elseif(kind STREQUAL "examples")
        # Guide and examples, as a reader has them who knows only the installed files.
        set(documents ${place}/moved/share/doc/${package})
        run(${CMAKE_COMMAND} -E env INSPECTOR_GUIDE=${documents}
            ${guide_test} --gtest_filter=Guide.LinksOnlyToWhatExists:Guide.ShowsEveryPictureOfTheGallery)
        run(${CMAKE_COMMAND} -S ${documents}/examples -B ${place}/build -G Ninja
            -DCMAKE_CXX_COMPILER=${compiler} -DCMAKE_PREFIX_PATH=${place}/moved)
        run(${CMAKE_COMMAND} --build ${place}/build)
        include(${documents}/examples/numbered.cmake)
        foreach(name IN LISTS INSPECTOR_NUMBERED_EXAMPLES)
            run(${place}/build/${name} --once)
        endforeach()
    elseif(consumer STREQUAL "find_package")
        run(${CMAKE_COMMAND} -S ${place}/consumer/find_package -B ${place}/build ${common}
            -DCMAKE_PREFIX_PATH=${place}/moved
            -DHOST_HEADERS=${place}/moved/include/${package})
        run(${CMAKE_COMMAND} --build ${place}/build)
        run(${place}/build/host/host)
    else()
        set(ENV{PKG_CONFIG_PATH} ${folder}/pkgconfig)
        set(ENV{LD_LIBRARY_PATH} ${folder})
        run(${place}/consumer/pkg_config/build.sh ${compiler} ${package} ${version} ${qt}
            ${place}/host)
        run(${place}/host)
        # One line, as the guide has it.
        execute_process(COMMAND pkg-config --cflags --libs ${package}
            OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
        separate_arguments(flags UNIX_COMMAND "${flags}")
        run(${compiler} -std=c++17 -fPIC ${place}/moved/share/doc/${package}/examples/01-three-rows.cpp
            -o ${place}/circle ${flags})
        run(${place}/circle --once)
    endif()
endif()
file(REMOVE_RECURSE "${place}")
